#include "gui/dialogs/kwpreferencesdlgimpl.h"
#include "gui/framework/kwtooltips.h"
#include "gui/framework/kwusersettings.h"
#include "support/gui/dialogtest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

struct FlagRow
{
    const char *box;
    const char *key;
};

const QList<FlagRow> flagRows{
    {"m_backupSavedCheckBox", "backup/on_save"},
    {"m_backupAutoCheckBox", "backup/auto_on"},
    {"m_warnOnDeleteGuestCheckBox", "warning/delete_guest"},
    {"m_warnOnDeleteTableCheckBox", "warning/delete_table"},
    {"m_warnOnAutoLayoutCheckBox", "warning/autolayout_unassign"},
    {"m_warnOnDuplicateGuestNameCheckBox", "warning/duplicate_guest"},
    {"m_showToolTipsCheckBox", "misc/show_tool_tips"},
    {"m_autoCapitaliseNames", "misc/capitalise_names"},
};

/// The parts of the dialog that the tests work with.
struct Dialog : KWPreferencesDlgImpl
{
    explicit Dialog(KWUserSettings &settings)
        : KWPreferencesDlgImpl(nullptr, &settings)
    {
    }

    QCheckBox *box(const char *name) const { return child<QCheckBox>(*this, name); }
    QSpinBox *interval = child<QSpinBox>(*this, "m_backupAutoSpinBox");
    QSpinBox *seconds = child<QSpinBox>(*this, "m_solverSecondsSpinBox");
    QSpinBox *generations = child<QSpinBox>(*this, "m_solverGenerationsSpinBox");
    QRadioButton *afterSeconds = child<QRadioButton>(*this, "m_solverSecondsRadioButton");
    QRadioButton *afterGenerations = child<QRadioButton>(*this, "m_solverGenerationsRadioButton");
    QRadioButton *afterEither = child<QRadioButton>(*this, "m_solverEitherRadioButton");
    QPushButton *ok = child<QPushButton>(*this, "m_okButton");
    QPushButton *cancel = child<QPushButton>(*this, "m_cancelButton");
    QTabWidget *tabs = child<QTabWidget>(*this, "m_tabWidget");

    /// 1, 2 or 3, or 0 if none is on.
    int criterion() const
    {
        return afterSeconds->isChecked()       ? 1
               : afterGenerations->isChecked() ? 2
               : afterEither->isChecked()      ? 3
                                               : 0;
    }
};
} // namespace

class TestKWPreferencesDlgImpl : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestHome::clearSettings(); }

    void cleanup() { setToolTipsEnabled(true); }

    void eachWidgetHasItsTexts_data()
    {
        addFormRows({
            {"m_backupGroupBox", "Backup file", ""},
            {"m_backupSavedCheckBox", "when &saved",
             "Create a backup (.kwb) file whenever a plan is saved", "Alt+S"},
            {"m_backupAutoCheckBox", "&automatically every",
             "Create a backup (.kwb) file periodically when plan has been changed", "Alt+A"},
            {"m_backupAutoSpinBox", "10 minutes", "Interval for creating backups"},
            {"m_warningsGroupBox", "Warnings", ""},
            {"m_warnOnDeleteGuestCheckBox", "warn on &delete guest or group",
             "Warn before deleting a guest or group", "Alt+D"},
            {"m_warnOnDeleteTableCheckBox", "warn on delete &table", "Warn before deleting a table",
             "Alt+T"},
            {"m_warnOnAutoLayoutCheckBox", "warn if auto layout will &re-assign guests",
             "Warn if auto-layout will re-assign guests who have already been assigned", "Alt+R"},
            {"m_warnOnDuplicateGuestNameCheckBox", "warn if guests have du&plicate names",
             "Warn when guests created with duplicate names", "Alt+P"},
            {"m_miscellaneousGroupBox", "Miscellaneous", ""},
            {"m_showToolTipsCheckBox", "show tool t&ips", "Show tool tips (like this one)",
             "Alt+I"},
            {"m_autoCapitaliseNames", "automatically capitalise &names",
             "Automatically capitalise guest names <br>e.g. \"john smith\"->\"John Smith\"",
             "Alt+N"},
            {"m_stopAfterButtonGroup", "Stop after", ""},
            {"m_solverSecondsRadioButton", "", "Stop after a fixed time"},
            {"m_solverSecondsSpinBox", "60", "Number of seconds to run"},
            {"m_solverSecondsLabel", "seconds", ""},
            {"m_solverGenerationsRadioButton", "",
             "Stop after a number of solver attempts without improvement"},
            {"m_solverGenerationsSpinBox", "20", "Number of attempts without improvement"},
            {"m_solverGenerationsLabel", "attempts without improvement", ""},
            {"m_solverEitherRadioButton", "&whichever happens first",
             "Stop when either of conditions above is fulfilled", "Alt+W"},
            {"m_okButton", "&OK", "Accept changes and close window", "Alt+O"},
            {"m_cancelButton", "&Cancel", "Discard changes and close window", "Alt+C"},
            {"m_helpButton", "&Help", "Context sensitive help", "Alt+H"},
        });
    }

    void eachWidgetHasItsTexts()
    {
        KWUserSettings settings;
        compareFormRow(Dialog(settings));
    }

    void theDialogIsModalAndHasTwoTabs()
    {
        KWUserSettings settings;
        const Dialog dialog(settings);
        QCOMPARE(dialog.windowTitle(), s("Preferences"));
        QVERIFY(dialog.isModal());
        QCOMPARE(dialog.tabs->count(), 2);
        QCOMPARE(dialog.tabs->tabText(0), s("&General"));
        QCOMPARE(dialog.tabs->tabText(1), s("&Auto layout"));
        QCOMPARE(dialog.tabs->currentIndex(), 0);
    }

    void theButtonsAreAtLeast80Wide()
    {
        KWUserSettings settings;
        const Dialog dialog(settings);
        for (const char *name : {"m_okButton", "m_cancelButton", "m_helpButton"})
            QVERIFY2(child<QPushButton>(dialog, name)->minimumWidth() >= 80, name);
    }

    void numbersStayInTheirRange_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("smallest");
        QTest::addColumn<int>("largest");
        QTest::newRow("interval") << s("m_backupAutoSpinBox") << 1 << 60;
        QTest::newRow("seconds") << s("m_solverSecondsSpinBox") << 10 << 99999;
        QTest::newRow("generations") << s("m_solverGenerationsSpinBox") << 1 << 99999;
    }

    void numbersStayInTheirRange()
    {
        QFETCH(QString, name);
        QFETCH(int, smallest);
        QFETCH(int, largest);
        KWUserSettings settings;
        const Dialog dialog(settings);
        auto *box = child<QSpinBox>(dialog, name);
        box->setValue(smallest);
        box->stepDown();
        QCOMPARE(box->value(), smallest);
        box->setValue(largest);
        box->stepUp();
        QCOMPARE(box->value(), largest);
    }

    void aFreshUserHasTheDefaults()
    {
        KWUserSettings settings;
        const Dialog dialog(settings);
        for (const FlagRow &row : flagRows)
            QVERIFY2(dialog.box(row.box)->isChecked(), row.box);
        QCOMPARE(dialog.interval->value(), 10);
        QVERIFY(dialog.interval->isEnabled());
        QCOMPARE(dialog.criterion(), 2);
        QCOMPARE(dialog.seconds->value(), 60);
        QVERIFY(!dialog.seconds->isEnabled());
        QCOMPARE(dialog.generations->value(), 20);
        QVERIFY(dialog.generations->isEnabled());
    }

    void eachCheckBoxStandsForItsKey_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < flagRows.size(); ++i)
            QTest::newRow(flagRows.at(i).key) << i;
    }

    void eachCheckBoxStandsForItsKey()
    {
        QFETCH(int, index);
        const FlagRow &row = flagRows.at(index);
        KWUserSettings settings;
        settings.setValue(row.key, false);
        Dialog dialog(settings);
        for (const FlagRow &other : flagRows)
            QCOMPARE(dialog.box(other.box)->isChecked(), &other != &row);
        for (const FlagRow &other : flagRows)
            dialog.box(other.box)->setChecked(&other == &row);
        dialog.accept();
        for (const FlagRow &other : flagRows)
            QCOMPARE(settings.value(other.key).toBool(), &other == &row);
    }

    void eachSpinBoxStandsForItsKey()
    {
        KWUserSettings settings;
        settings.setBackupAutoInterval(25);
        settings.setSolverMaxSeconds(90);
        settings.setSolverMaxGenerationsUnimproved(7);
        Dialog dialog(settings);
        QCOMPARE(dialog.interval->value(), 25);
        QCOMPARE(dialog.seconds->value(), 90);
        QCOMPARE(dialog.generations->value(), 7);
        dialog.interval->setValue(3);
        dialog.seconds->setValue(11);
        dialog.generations->setValue(5);
        dialog.accept();
        QCOMPARE(settings.value("backup/auto_interval").toInt(), 3);
        QCOMPARE(settings.value("solver/maxSeconds").toInt(), 11);
        QCOMPARE(settings.value("solver/maxGenerationsUnimproved").toInt(), 5);
    }

    void theStopCriterionChecksItsButton_data()
    {
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("criterion");
        QTest::newRow("after seconds") << 1 << 1;
        QTest::newRow("after generations") << 2 << 2;
        QTest::newRow("after either") << 3 << 3;
        QTest::newRow("none") << 0 << 3;
        QTest::newRow("beyond") << 4 << 3;
        QTest::newRow("negative") << -1 << 3;
    }

    void theStopCriterionChecksItsButton()
    {
        QFETCH(int, stored);
        QFETCH(int, criterion);
        KWUserSettings settings;
        settings.setSolverStopCriteria(stored);
        Dialog dialog(settings);
        QCOMPARE(dialog.criterion(), criterion);
        QCOMPARE(dialog.seconds->isEnabled(), criterion != 2);
        QCOMPARE(dialog.generations->isEnabled(), criterion != 1);
        dialog.accept();
        QCOMPARE(settings.value("solver/stopCriteria").toInt(), criterion);
    }

    void onlyTheNumbersOfTheChosenCriterionAreLive()
    {
        KWUserSettings settings;
        const Dialog dialog(settings);
        dialog.afterSeconds->setChecked(true);
        QVERIFY(dialog.seconds->isEnabled() && !dialog.generations->isEnabled());
        dialog.afterGenerations->setChecked(true);
        QVERIFY(!dialog.seconds->isEnabled() && dialog.generations->isEnabled());
        dialog.afterEither->setChecked(true);
        QVERIFY(dialog.seconds->isEnabled() && dialog.generations->isEnabled());
    }

    void aClickOnTheTextOfACriterionChecksItsButton_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::addColumn<int>("criterion");
        QTest::newRow("seconds") << s("m_solverSecondsLabel") << Qt::LeftButton << 1;
        QTest::newRow("attempts") << s("m_solverGenerationsLabel") << Qt::LeftButton << 2;
        QTest::newRow("right button") << s("m_solverSecondsLabel") << Qt::RightButton << 3;
    }

    void aClickOnTheTextOfACriterionChecksItsButton()
    {
        QFETCH(QString, label);
        QFETCH(Qt::MouseButton, button);
        QFETCH(int, criterion);
        KWUserSettings settings;
        settings.setSolverStopCriteria(KWUserSettings::StopAfterEither);
        Dialog dialog(settings);
        dialog.tabs->setCurrentIndex(1);
        QVERIFY(showActive(dialog));
        QTest::mouseClick(child<QLabel>(dialog, label), button);
        QCOMPARE(dialog.criterion(), criterion);
    }

    void untickingTheTimedBackupGreysTheIntervalAndKeepsIt()
    {
        KWUserSettings settings;
        settings.setBackupAutoInterval(25);
        Dialog dialog(settings);
        QVERIFY(showActive(dialog));
        QTest::keyClick(dialog.box("m_backupAutoCheckBox"), Qt::Key_Space);
        QVERIFY(!dialog.interval->isEnabled());
        dialog.accept();
        QVERIFY(!settings.backupAutoOn());
        QCOMPARE(settings.backupAutoInterval(), 25);
        QVERIFY(!Dialog(settings).interval->isEnabled());
    }

    void aWarningThatWasTurnedOffElsewhereIsUnticked()
    {
        KWUserSettings settings;
        settings.setWarning(s("warning/delete_table"), false);
        const Dialog dialog(settings);
        QVERIFY(!dialog.box("m_warnOnDeleteTableCheckBox")->isChecked());
        QVERIFY(dialog.box("m_warnOnDeleteGuestCheckBox")->isChecked());
    }

    void toolTipsFollowWhenTheDialogIsAccepted()
    {
        KWUserSettings settings;
        Dialog dialog(settings);
        dialog.box("m_showToolTipsCheckBox")->setChecked(false);
        QVERIFY(toolTipsEnabled());
        dialog.accept();
        QVERIFY(!toolTipsEnabled());
        Dialog again(settings);
        again.box("m_showToolTipsCheckBox")->setChecked(true);
        again.accept();
        QVERIFY(toolTipsEnabled());
    }

    void theButtonsCloseTheDialog()
    {
        KWUserSettings settings;
        Dialog dialog(settings);
        QVERIFY(showActive(dialog));
        QTest::keyClick(&dialog, Qt::Key_O, Qt::AltModifier);
        QTRY_VERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(settings.contains("solver/maxSeconds"));
    }

    void cancelWritesNothing()
    {
        KWUserSettings settings;
        Dialog dialog(settings);
        QVERIFY(showActive(dialog));
        for (const FlagRow &row : flagRows)
            dialog.box(row.box)->setChecked(false);
        dialog.interval->setValue(1);
        dialog.afterEither->setChecked(true);
        QTest::mouseClick(dialog.cancel, Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QCOMPARE(settings.allKeys(), QStringList());
        QVERIFY(toolTipsEnabled());
    }

    void theHelpButtonAndF1AskForTheTopic()
    {
        KWUserSettings settings;
        Dialog dialog(settings);
        QVERIFY(showActive(dialog));
        QCOMPARE(topicAskedFor([&] {
                     QTest::mouseClick(child<QPushButton>(dialog, "m_helpButton"), Qt::LeftButton);
                 }),
                 s("Preferences_window.htm"));
        QCOMPARE(topicAskedFor([&] { QTest::keyClick(&dialog, Qt::Key_F1); }),
                 s("Preferences_window.htm"));
    }

    void aNewLanguageTranslatesTheForm()
    {
        KWUserSettings settings;
        const Dialog dialog(settings);
        const BracketTranslator translator;
        QTRY_COMPARE(dialog.windowTitle(), s("[Preferences]"));
        QCOMPARE(dialog.tabs->tabText(1), s("[&Auto layout]"));
        QCOMPARE(dialog.ok->text(), s("[&OK]"));
        QTRY_COMPARE(dialog.ok->whatsThis(), s("[Accept changes and close window]"));
        QCOMPARE(dialog.ok->shortcut(), QKeySequence(Qt::ALT | Qt::Key_O));
    }
};

REGISTER_TEST(TestKWPreferencesDlgImpl)
#include "tst_kwpreferencesdlgimpl.moc"
