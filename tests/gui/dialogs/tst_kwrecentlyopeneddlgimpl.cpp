#include "gui/dialogs/kwrecentlyopeneddlgimpl.h"
#include "gui/framework/kwusersettings.h"
#include "support/gui/dialogtest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

/// The parts of the dialog that the tests work with.
struct Dialog : KWRecentlyOpenedDlgImpl
{
    explicit Dialog(KWUserSettings &settings, const QStringList &paths, const QString &open = {})
        : KWRecentlyOpenedDlgImpl(nullptr, paths, open, &settings)
    {
    }

    QTreeWidget *list = child<QTreeWidget>(*this, "m_filesListView");
    QCheckBox *showAtStart = child<QCheckBox>(*this, "m_showAtStartCheckBox");
    QPushButton *ok = child<QPushButton>(*this, "m_okButton");
    QPushButton *cancel = child<QPushButton>(*this, "m_cancelButton");

    /// Both columns of each row.
    QStringList rows() const
    {
        QStringList result;
        for (int i = 0; i < list->topLevelItemCount(); ++i)
            result.append(list->topLevelItem(i)->text(0) + u'|' + list->topLevelItem(i)->text(1));
        return result;
    }
    QRect row(int index) const { return list->visualItemRect(list->topLevelItem(index)); }
};
} // namespace

class TestKWRecentlyOpenedDlgImpl : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir().mkpath(s("plans")));
        for (const QString &path : {m_wedding, m_banquet, m_party}) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }

    void init() { TestHome::clearSettings(); }

    void eachWidgetHasItsTexts_data()
    {
        addFormRows({
            {"m_filesListView", "", "Most recently opened/saved files"},
            {"m_showAtStartCheckBox", "show this window at start-up",
             "Check this box to show this window every time Ambrelune starts up"},
            {"m_okButton", "&OK", "Open the selected plan and close window", "Alt+O"},
            {"m_cancelButton", "&Cancel", "Close window", "Alt+C"},
            {"m_helpButton", "&Help", "Context sensitive help", "Alt+H"},
        });
    }

    void eachWidgetHasItsTexts()
    {
        KWUserSettings settings;
        compareFormRow(Dialog(settings, {m_wedding}));
    }

    void theDialogHasItsCaptionAndColumns()
    {
        KWUserSettings settings;
        const Dialog dialog(settings, {});
        QCOMPARE(dialog.windowTitle(), s("Most recently accessed"));
        QVERIFY(dialog.isModal());
        QCOMPARE(dialog.list->columnCount(), 2);
        QCOMPARE(dialog.list->headerItem()->text(0), s("File"));
        QCOMPARE(dialog.list->headerItem()->text(1), s("Location"));
    }

    void rowsKeepTheOrderOfTheList()
    {
        KWUserSettings settings;
        const Dialog dialog(settings, {m_wedding, m_party, m_banquet});
        QCOMPARE(dialog.rows(), (QStringList{s("wedding.kw|") + m_wedding, s("party.kw|") + m_party,
                                             s("banquet.kw|") + m_banquet}));
        QCOMPARE(dialog.selectedFile(), m_wedding);
        QVERIFY(dialog.ok->isEnabled());
    }

    void theColumnsShowTheirTextsInFull()
    {
        KWUserSettings settings;
        Dialog dialog(settings, {m_wedding, m_banquet});
        QVERIFY(showActive(dialog));
        for (const int column : {0, 1}) {
            const auto width = [&](const QString &text) {
                return dialog.list->fontMetrics().horizontalAdvance(text);
            };
            QVERIFY(dialog.list->columnWidth(column) >
                    width(dialog.list->topLevelItem(1)->text(column)));
        }
        QCOMPARE(dialog.list->horizontalScrollBar()->maximum(), 0);
    }

    void pathsTooLongForTheWindowCanBeScrolledTo()
    {
        const QString folder = testHome().path(QString(150, u'x'));
        QVERIFY(QDir().mkpath(folder));
        QFile file(folder + s("/long.kw"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        KWUserSettings settings;
        Dialog dialog(settings, {file.fileName()});
        QVERIFY(showActive(dialog));
        QVERIFY(dialog.list->horizontalScrollBar()->maximum() > 0);
        QVERIFY(dialog.list->columnWidth(1) >
                dialog.list->fontMetrics().horizontalAdvance(file.fileName()));
        QVERIFY(dialog.width() <= 1000);
    }

    void missingFilesStayOutOfSight()
    {
        KWUserSettings settings;
        const QString missing = testHome().path(s("missing.kw"));
        const QString directory = testHome().path(s("plans"));
        const Dialog dialog(settings, {missing, m_party, directory, m_banquet});
        QCOMPARE(dialog.rows(),
                 (QStringList{s("party.kw|") + m_party, s("banquet.kw|") + m_banquet}));
    }

    void withEveryFileDeletedItIsEmptyAndTheSettingsKeepTheList()
    {
        KWUserSettings settings;
        const QStringList missing{testHome().path(s("a.kw")), testHome().path(s("b.kw"))};
        settings.setMostRecentFiles(missing);
        Dialog dialog(settings, settings.mostRecentFiles());
        QCOMPARE(dialog.rows(), QStringList());
        QVERIFY(dialog.selectedFile().isNull());
        QVERIFY(showActive(dialog));
        QVERIFY(!dialog.ok->isEnabled());
        QTest::keyClick(&dialog, Qt::Key_Return);
        QVERIFY(dialog.isVisible());
        dialog.reject();
        QCOMPARE(settings.mostRecentFiles(), missing);
    }

    void theOpenPlanIsLeftOut_data()
    {
        QTest::addColumn<QString>("open");
        QTest::newRow("absolute") << m_wedding;
        QTest::newRow("relative") << s("wedding.kw");
        QTest::newRow("with detours") << testHome().path(s("plans/../wedding.kw"));
    }

    void theOpenPlanIsLeftOut()
    {
        QFETCH(QString, open);
        KWUserSettings settings;
        const Dialog dialog(settings, {m_wedding, m_party}, open);
        QCOMPARE(dialog.rows(), QStringList{s("party.kw|") + m_party});
        QCOMPARE(dialog.selectedFile(), m_party);
    }

    void aPathInTheListMayBeRelative()
    {
        KWUserSettings settings;
        const Dialog dialog(settings, {s("plans/banquet.kw")});
        QCOMPARE(dialog.rows(), QStringList{s("banquet.kw|") + m_banquet});
        QCOMPARE(dialog.selectedFile(), m_banquet);
    }

    void okIsEnabledWhileARowIsSelected()
    {
        KWUserSettings settings;
        const Dialog dialog(settings, {m_wedding, m_party});
        dialog.list->clearSelection();
        QVERIFY(!dialog.ok->isEnabled());
        QVERIFY(dialog.selectedFile().isNull());
        dialog.list->setCurrentItem(dialog.list->topLevelItem(1));
        QVERIFY(dialog.ok->isEnabled());
        QCOMPARE(dialog.selectedFile(), m_party);
    }

    void aDoubleClickOnARowAcceptsIt()
    {
        KWUserSettings settings;
        Dialog dialog(settings, {m_wedding, m_party});
        QVERIFY(showActive(dialog));
        const QPoint place = dialog.row(1).center();
        QTest::mouseClick(dialog.list->viewport(), Qt::LeftButton, {}, place);
        QVERIFY(dialog.isVisible());
        QTest::mouseDClick(dialog.list->viewport(), Qt::LeftButton, {}, place);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.selectedFile(), m_party);
    }

    void aDoubleClickBelowTheRowsDoesNothing()
    {
        KWUserSettings settings;
        Dialog dialog(settings, {m_wedding});
        QVERIFY(showActive(dialog));
        QTest::mouseDClick(dialog.list->viewport(), Qt::LeftButton, {},
                           dialog.row(0).bottomLeft() + QPoint(10, 20));
        QVERIFY(dialog.isVisible());
    }

    void enterOnARowAcceptsIt()
    {
        KWUserSettings settings;
        Dialog dialog(settings, {m_wedding, m_party});
        QVERIFY(showActive(dialog));
        QVERIFY(dialog.list->hasFocus());
        QTest::keyClick(dialog.list, Qt::Key_Down);
        QTest::keyClick(dialog.list, Qt::Key_Return);
        QTRY_VERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.selectedFile(), m_party);
    }

    void theCheckBoxStandsForItsKey()
    {
        KWUserSettings settings;
        QVERIFY(!Dialog(settings, {}).showAtStart->isChecked());
        settings.setMostRecentShowAtStart(true);
        QVERIFY(Dialog(settings, {}).showAtStart->isChecked());
    }

    void theCheckBoxIsWrittenOnEveryWayOfClosing_data()
    {
        using Close = std::function<void(Dialog &)>;
        QTest::addColumn<Close>("close");
        const auto row = [](const char *name, const Close &close) { QTest::newRow(name) << close; };
        row("OK", [](Dialog &dialog) { QTest::mouseClick(dialog.ok, Qt::LeftButton); });
        row("Cancel", [](Dialog &dialog) { QTest::mouseClick(dialog.cancel, Qt::LeftButton); });
        row("Esc", [](Dialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        row("close box", [](Dialog &dialog) { dialog.close(); });
    }

    void theCheckBoxIsWrittenOnEveryWayOfClosing()
    {
        QFETCH(std::function<void(Dialog &)>, close);
        KWUserSettings settings;
        for (const bool on : {true, false}) {
            Dialog dialog(settings, {m_wedding});
            QVERIFY(showActive(dialog));
            dialog.showAtStart->setChecked(on);
            QCOMPARE(settings.mostRecentShowAtStart(), !on);
            close(dialog);
            QVERIFY(!dialog.isVisible());
            QCOMPARE(settings.mostRecentShowAtStart(), on);
        }
    }

    void theHelpButtonAndF1AskForTheTopic()
    {
        KWUserSettings settings;
        Dialog dialog(settings, {});
        QVERIFY(showActive(dialog));
        auto *button = child<QPushButton>(dialog, "m_helpButton");
        QCOMPARE(topicAskedFor([&] { QTest::mouseClick(button, Qt::LeftButton); }),
                 s("Most_recently_accessed_window.htm"));
        QCOMPARE(topicAskedFor([&] { QTest::keyClick(&dialog, Qt::Key_F1); }),
                 s("Most_recently_accessed_window.htm"));
    }

    void aNewLanguageTranslatesTheForm()
    {
        KWUserSettings settings;
        const Dialog dialog(settings, {m_wedding});
        const BracketTranslator translator;
        QTRY_COMPARE(dialog.windowTitle(), s("[Most recently accessed]"));
        QCOMPARE(dialog.list->headerItem()->text(1), s("[Location]"));
        QTRY_COMPARE(dialog.list->whatsThis(), s("[Most recently opened/saved files]"));
        QCOMPARE(dialog.rows(), QStringList{s("wedding.kw|") + m_wedding});
    }

private:
    const QString m_wedding = testHome().path(s("wedding.kw"));
    const QString m_banquet = testHome().path(s("plans/banquet.kw"));
    const QString m_party = testHome().path(s("party.kw"));
};

REGISTER_TEST(TestKWRecentlyOpenedDlgImpl)
#include "tst_kwrecentlyopeneddlgimpl.moc"
