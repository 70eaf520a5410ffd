#include "gui/shell/kwexportcommands.h"
#include "gui/shell/kwfilecommands.h"
#include "support/gui/openwindow.h"
#include "support/gui/planfolder.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QImageReader>

#include <new>

// The picture of the floor plan in a file.

namespace {

const QString memoryAdvice =
    s("\nYou may have insufficient memory.\nTry closing some other applications.");

/// Exports with pictures that go wrong in the way that a test sets.
class FailingExport : public KWExportCommands
{
public:
    using KWExportCommands::KWExportCommands;

    enum Failure { NoPicture, NoObject, NoImage, OtherSize };
    Failure failure = NoPicture;

protected:
    QPixmap floorPlanPicture() override
    {
        return failure == NoPicture ? QPixmap() : KWExportCommands::floorPlanPicture();
    }

    QImage toImage(const QPixmap &picture) override
    {
        if (failure == NoObject)
            throw std::bad_alloc();
        const QImage image = KWExportCommands::toImage(picture);
        return failure == OtherSize ? image.scaled(3, 3) : QImage();
    }
};

/// A window with a round table in its plan.
struct WindowWithTable : OpenWindow
{
    WindowWithTable() { addTable(plan(), "T", KWTable::Circular, 8); }
};
} // namespace

class TestExportFloorPlan : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void itIsOnExactlyForAPlanWithGuestsOrTables()
    {
        OpenWindow open;
        QVERIFY(!open.action("m_exportFloorPlanAction")->isEnabled());
        KWGuest *guest = addGuest(open.plan(), {"Ann"});
        QVERIFY(open.action("m_exportFloorPlanAction")->isEnabled());
        open.plan().deleteGuest(guest, true);
        QVERIFY(!open.action("m_exportFloorPlanAction")->isEnabled());
        addTable(open.plan(), "T", KWTable::Circular, 8);
        QVERIFY(open.action("m_exportFloorPlanAction")->isEnabled());
    }

    void theDialogAsksAsStated()
    {
        WindowWithTable open;
        open.prompts.answerFile(QString());
        open.run("m_exportFloorPlanAction");
        const KWFileQuestion question = open.prompts.files.constFirst();
        QCOMPARE(question.mode, KWFileQuestion::Save);
        QCOMPARE(question.caption, s("Export image"));
        QCOMPARE(question.name, s("image export"));
        QCOMPARE(question.filters, s("PNG image file (*.png);;Bitmap image file (*.bmp);;JPEG "
                                     "image file (*.jpg)"));
        QCOMPARE(question.startPath, open.window.fileCommands()->planDirPath() + s("plan"));
    }

    void theDialogStartsWithTheBaseNameOfThePlan()
    {
        const PlanFolder folder;
        const QString planFile = folder.writePlan(s("June.party.kw"));
        OpenWindow open({planFile});
        open.prompts.answerFile(QString());
        open.run("m_exportFloorPlanAction");
        QCOMPARE(open.prompts.files.constFirst().startPath,
                 open.window.fileCommands()->planDirPath() + s("June"));
    }

    void theFormatFollowsTheExtensionOrTheFilter_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QByteArray>("format");
        const QString png = s("PNG image file (*.png)");
        const QString bmp = s("Bitmap image file (*.bmp)");
        const QString jpg = s("JPEG image file (*.jpg)");
        QTest::newRow("png") << s("a.png") << bmp << s("a.png") << QByteArray("png");
        QTest::newRow("bmp") << s("a.bmp") << png << s("a.bmp") << QByteArray("bmp");
        QTest::newRow("jpg") << s("a.jpg") << png << s("a.jpg") << QByteArray("jpeg");
        QTest::newRow("capitals") << s("a.PNG") << png << s("a.PNG") << QByteArray("png");
        QTest::newRow("png filter") << s("a") << png << s("a.png") << QByteArray("png");
        QTest::newRow("bmp filter") << s("a") << bmp << s("a.bmp") << QByteArray("bmp");
        QTest::newRow("jpg filter") << s("a") << jpg << s("a.jpg") << QByteArray("jpeg");
    }

    void theFormatFollowsTheExtensionOrTheFilter()
    {
        QFETCH(QString, name);
        QFETCH(QString, filter);
        QFETCH(QString, written);
        const PlanFolder folder;
        WindowWithTable open;
        open.prompts.answerFile(folder.path(name), filter);
        open.run("m_exportFloorPlanAction");
        QCOMPARE(open.prompts.texts(), QStringList());
        QCOMPARE(folder.files(), QStringList{written});
        QImageReader reader(folder.path(written));
        reader.setDecideFormatFromContent(true);
        QTEST(reader.format(), "format");
        QVERIFY(!reader.read().isNull());
        QVERIFY(!QApplication::overrideCursor());
    }

    void theImageHoldsAllItemsWithAMarginOfATwentieth()
    {
        const PlanFolder folder;
        WindowWithTable open;
        open.plan().setFloorplanColourInside(Qt::cyan);
        open.prompts.answerFile(folder.path(s("a.png")));
        open.run("m_exportFloorPlanAction");
        const QImage image(folder.path(s("a.png")));
        // 8 seats round a table of 161: 361 of seats, and 18 on each side.
        QCOMPARE(image.size(), QSize(397, 397));
        QCOMPARE(image.pixelColor(2, 2), QColor(Qt::cyan));
        QCOMPARE(image.pixelColor(198, 15), QColor(Qt::cyan));
        QVERIFY(image.pixelColor(198, 20) != QColor(Qt::cyan));
    }

    void aFileThatExistsIsWrittenOverOnlyIfWanted_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("isWritten");
        QTest::newRow("overwrite") << s("&Overwrite") << true;
        QTest::newRow("cancel") << s("&Cancel") << false;
    }

    void aFileThatExistsIsWrittenOverOnlyIfWanted()
    {
        QFETCH(QString, answer);
        QFETCH(bool, isWritten);
        const PlanFolder folder;
        const QString path = folder.writeFile(s("a.png"), "old");
        WindowWithTable open;
        open.prompts.answerFile(folder.path(s("a")));
        open.prompts.answer(answer);
        open.run("m_exportFloorPlanAction");
        const KWMessage message = open.prompts.messages.constFirst();
        QCOMPARE(message.icon, KWMessage::Warning);
        QCOMPARE(message.text, s("Do you wish to overwrite existing file '%1'?").arg(path));
        QCOMPARE(message.buttons, QStringList({s("&Overwrite"), s("&Cancel")}));
        QCOMPARE(!QImage(path).isNull(), isWritten);
    }

    void anUnknownFormatIsRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("extension");
        QTest::newRow("jpeg") << s("a.jpeg") << s("jpeg");
        QTest::newRow("capitals") << s("a.GIF") << s("gif");
    }

    void anUnknownFormatIsRefused()
    {
        QFETCH(QString, name);
        QFETCH(QString, extension);
        const PlanFolder folder;
        WindowWithTable open;
        open.prompts.answerFile(folder.path(name));
        open.prompts.answer(s("&OK"));
        open.run("m_exportFloorPlanAction");
        QCOMPARE(open.prompts.texts(), QStringList{s("Unknown image format '%1'").arg(extension)});
        QCOMPARE(open.prompts.messages.constFirst().icon, KWMessage::Critical);
        QCOMPARE(folder.files(), QStringList());
        QVERIFY(!QApplication::overrideCursor());
    }

    void shortMemoryIsToldAsStated_data()
    {
        QTest::addColumn<int>("failure");
        QTest::addColumn<QString>("text");
        QTest::newRow("no picture")
            << int(FailingExport::NoPicture) << s("Unable to convert floor plan to image.");
        QTest::newRow("no object")
            << int(FailingExport::NoObject) << s("Unable to export 'JPEG' format image.");
        QTest::newRow("no image") << int(FailingExport::NoImage)
                                  << s("Unable to convert to 'JPEG' format image.");
        QTest::newRow("other size")
            << int(FailingExport::OtherSize) << s("Unable to create 'JPEG' format image.");
    }

    void shortMemoryIsToldAsStated()
    {
        QFETCH(int, failure);
        QFETCH(QString, text);
        const PlanFolder folder;
        WindowWithTable open;
        FailingExport commands(nullptr, &open.window, open.window.panes(),
                               open.window.fileCommands());
        commands.failure = static_cast<FailingExport::Failure>(failure);
        open.prompts.answerFile(folder.path(s("a.jpg")));
        open.prompts.answer(s("&OK"));
        commands.fileExportFloorPlan();
        QCOMPARE(open.prompts.texts(), QStringList{text + memoryAdvice});
        QCOMPARE(open.prompts.messages.constFirst().buttons, QStringList{s("&OK")});
        QCOMPARE(folder.files(), QStringList());
        QVERIFY(!QApplication::overrideCursor());
    }

    void aPictureThatCannotBeSavedIsToldWithPathAndFormat()
    {
        const PlanFolder folder;
        const QString path = folder.path(s("missing/a.jpg"));
        WindowWithTable open;
        open.prompts.answerFile(path);
        open.prompts.answer(s("&OK"));
        open.run("m_exportFloorPlanAction");
        QCOMPARE(open.prompts.texts(),
                 QStringList{s("Unable to save to '%1' as 'JPEG' format image.").arg(path) +
                             memoryAdvice});
    }

    void thePlanIsNotChangedByIt()
    {
        const PlanFolder folder;
        WindowWithTable open;
        open.plan().setModified(false);
        open.prompts.answerFile(folder.path(s("a.png")));
        open.run("m_exportFloorPlanAction");
        QVERIFY(!open.plan().isModified());
    }
};

REGISTER_TEST(TestExportFloorPlan)
#include "tst_exportfloorplan.moc"
