#include "gui/dialogs/kwaboutdlgimpl.h"
#include "gui/dialogs/kwbuildstamp.h"
#include "gui/dialogs/kwcreditsdlg.h"
#include "gui/framework/kwwebpage.h"
#include "support/gui/dialogtest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QDesktopServices>

namespace {

/// Takes the place of the user's browser while it lives.
class FakeBrowser : public QObject
{
    Q_OBJECT

public:
    FakeBrowser() { QDesktopServices::setUrlHandler(s("file"), this, "open"); }
    ~FakeBrowser() override { QDesktopServices::unsetUrlHandler(s("file")); }

    QList<QUrl> opened;

public slots:
    void open(const QUrl &url) { opened.append(url); }
};

/// Of all rows, the most pixels of exactly that colour.
int mostPixelsInARow(const QImage &picture, const QColor &colour)
{
    int most = 0;
    for (int y = 0; y < picture.height(); ++y) {
        int count = 0;
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixelColor(x, y) == colour;
        most = qMax(most, count);
    }
    return most;
}
} // namespace

class TestKWAboutDlgImpl : public QObject
{
    Q_OBJECT

private slots:
    void eachWidgetHasItsTexts_data()
    {
        addFormRows({
            {"m_versionTextLabel", "Version:", "Application version"},
            {"m_versionLabel", "1.2.14", "Application version"},
            {"m_buildTextLabel", "Build:", "Application build time-stamp"},
            {"m_okButton", "&OK", "Close window", "Alt+O"},
        });
    }

    void eachWidgetHasItsTexts() { compareFormRow(KWAboutDlgImpl(nullptr)); }

    void theDialogHasItsCaptionAndTheBuildStamp()
    {
        const KWAboutDlgImpl dialog(nullptr);
        QCOMPARE(dialog.windowTitle(), s("About Ambrelune"));
        QVERIFY(dialog.isModal());
        const auto *build = child<QLabel>(dialog, "m_buildLabel");
        QCOMPARE(build->text(), buildStamp());
        QCOMPARE(build->toolTip(), s("Application build time-stamp"));
    }

    void theBuildStampIsADateABlankAndATime()
    {
        const QString stamp = buildStamp();
        const qsizetype blank = stamp.lastIndexOf(u' ');
        const QString date = stamp.left(blank).simplified();
        QVERIFY2(QLocale::c().toDate(date, s("MMM d yyyy")).isValid(), qPrintable(stamp));
        QVERIFY2(QTime::fromString(stamp.mid(blank + 1), s("hh:mm:ss")).isValid(),
                 qPrintable(stamp));
    }

    void eachPictureOpensItsPage_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("page");
        QTest::newRow("product") << s("m_productLabel") << s("home");
        QTest::newRow("maker") << s("m_veltraceLabel") << s("veltrace");
        QTest::newRow("toolkit") << s("m_toolkitLabel") << s("toolkit");
    }

    void eachPictureOpensItsPage()
    {
        QFETCH(QString, label);
        QFETCH(QString, page);
        const FakeBrowser browser;
        KWAboutDlgImpl dialog(nullptr);
        QVERIFY(showActive(dialog));
        auto *picture = child<QLabel>(dialog, label);
        QVERIFY(!picture->pixmap().isNull());
        QCOMPARE(picture->cursor().shape(), Qt::PointingHandCursor);
        QVERIFY(!picture->toolTip().isEmpty());
        QTest::mousePress(picture, Qt::LeftButton);
        QVERIFY(QFileInfo(webPage(page)).isFile());
        QCOMPARE(browser.opened, QList<QUrl>{QUrl::fromLocalFile(webPage(page))});
        QVERIFY(dialog.isVisible());
    }

    void theMakerAndTheToolkitLookLikeLinks_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("link");
        QTest::newRow("product") << s("m_productLabel") << false;
        QTest::newRow("maker") << s("m_veltraceLabel") << true;
        QTest::newRow("toolkit") << s("m_toolkitLabel") << true;
    }

    void theMakerAndTheToolkitLookLikeLinks()
    {
        QFETCH(QString, label);
        QFETCH(bool, link);
        KWAboutDlgImpl dialog(nullptr);
        QPalette palette = dialog.palette();
        palette.setColor(QPalette::WindowText, Qt::green);
        palette.setColor(QPalette::Link, Qt::red);
        dialog.setPalette(palette);
        const QImage picture = child<QLabel>(dialog, label)->pixmap().toImage();
        QCOMPARE(mostPixelsInARow(picture, Qt::red) > picture.width() * 3 / 4, link);
        QCOMPARE(mostPixelsInARow(picture, Qt::green) > 0, !link);
    }

    void thePicturesFollowTheFont()
    {
        KWAboutDlgImpl dialog(nullptr);
        QFont font = dialog.font();
        font.setPointSizeF(2 * font.pointSizeF());
        QList<int> heights;
        for (const char *label : {"m_productLabel", "m_veltraceLabel", "m_toolkitLabel"})
            heights.append(child<QLabel>(dialog, label)->pixmap().height());
        dialog.setFont(font);
        for (const char *label : {"m_productLabel", "m_veltraceLabel", "m_toolkitLabel"})
            QVERIFY2(child<QLabel>(dialog, label)->pixmap().height() > heights.takeFirst(), label);
    }

    void thePicturesAreDrawnAnewForAnotherStyle()
    {
        KWAboutDlgImpl dialog(nullptr);
        const auto *maker = child<QLabel>(dialog, "m_veltraceLabel");
        const qint64 before = maker->pixmap().cacheKey();
        const std::unique_ptr<QStyle> style(QStyleFactory::create(s("windows")));
        dialog.setStyle(style.get());
        QVERIFY(maker->pixmap().cacheKey() != before);
        dialog.setStyle(nullptr);
    }

    void okAndEscClose()
    {
        KWAboutDlgImpl dialog(nullptr);
        QVERIFY(showActive(dialog));
        QTest::keyClick(&dialog, Qt::Key_O, Qt::AltModifier);
        QTRY_VERIFY(!dialog.isVisible());
        QVERIFY(showActive(dialog));
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
    }

    void aNewLanguageTranslatesTheFormAndItsPictures()
    {
        const KWAboutDlgImpl dialog(nullptr);
        const auto *toolkit = child<QLabel>(dialog, "m_toolkitLabel");
        const QSize before = toolkit->pixmap().size();
        const BracketTranslator translator;
        QTRY_COMPARE(dialog.windowTitle(), s("[About Ambrelune]"));
        QCOMPARE(child<QLabel>(dialog, "m_versionLabel")->text(), s("1.2.14"));
        QVERIFY(toolkit->pixmap().width() > before.width());
        QTRY_COMPARE(child<QPushButton>(dialog, "m_okButton")->whatsThis(), s("[Close window]"));
    }

    void theCreditsNameTheMakersInOneRichLabel()
    {
        KWCreditsDlg dialog(nullptr);
        QCOMPARE(dialog.windowTitle(), s("Credits"));
        QVERIFY(dialog.isModal());
        const QList<QLabel *> labels = dialog.findChildren<QLabel *>();
        QCOMPARE(labels.size(), 1);
        QCOMPARE(labels.first()->textFormat(), Qt::RichText);
        for (const char *name : {"The Ambrelune team at Veltrace", "Qt", "Expat", "libmspack"})
            QVERIFY2(labels.first()->text().contains(s(name)), name);
        QVERIFY(showActive(dialog));
        QTest::keyClick(&dialog, Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
        const BracketTranslator translator;
        QTRY_COMPARE(dialog.windowTitle(), s("[Credits]"));
    }
};

REGISTER_TEST(TestKWAboutDlgImpl)
#include "tst_kwaboutdlgimpl.moc"
