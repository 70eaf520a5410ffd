#include "gui/dialogs/kwpreferencesdlgimpl.h"
#include "gui/framework/kwtimer.h"
#include "gui/shell/kwfilecommands.h"
#include "support/gui/modaluser.h"
#include "support/gui/openwindow.h"
#include "support/gui/planfolder.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QCheckBox>
#include <QSpinBox>
#include <QStatusBar>

// Copies of plan files: backups, and the timer that makes them.

namespace {

KWTimer *timerOf(const OpenWindow &open)
{
    return open.window.findChild<KWTimer *>(s("auto save timer"));
}

/// Lets the timer fire as it would after its interval.
void fire(OpenWindow &open)
{
    open.now = open.now.addMSecs(timerOf(open)->interval());
    timerOf(open)->timeoutFired();
}

/// Sets the two widgets of the preferences and accepts them.
void changePreferences(OpenWindow &open, bool on, int minutes)
{
    ModalUser user;
    user.onDialog<KWPreferencesDlgImpl>([&](QDialog &dialog) {
        dialog.findChild<QCheckBox *>(s("m_backupAutoCheckBox"))->setChecked(on);
        dialog.findChild<QSpinBox *>(s("m_backupAutoSpinBox"))->setValue(minutes);
        dialog.accept();
    });
    open.run("m_preferencesAction");
}
} // namespace

class TestFileCommandsBackup : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void aBackupIsADatedCopyBesideThePlan()
    {
        PlanFolder folder;
        OpenWindow open;
        const QString path = folder.writePlan(s("one.kw"), 2);
        QVERIFY(open.window.fileCommands()->backups()->backupPlan(path));
        QCOMPARE(folder.files(), QStringList({s("one.kw"), s("one_2026-06-13T14-30-05.kwb")}));
        QVERIFY(!open.window.fileCommands()->backups()->changedSinceBackup());
    }

    void aBackupOfAMissingFileFailsAndIsStillDue()
    {
        PlanFolder folder;
        OpenWindow open;
        QTest::ignoreMessage(QtWarningMsg,
                             qPrintable(s("backup %1 to %2 failed")
                                            .arg(folder.path(s("one.kw")),
                                                 folder.path(s("one_2026-06-13T14-30-05.kwb")))));
        QVERIFY(!open.window.fileCommands()->backups()->backupPlan(folder.path(s("one.kw"))));
        QVERIFY(open.window.fileCommands()->backups()->changedSinceBackup());
        QCOMPARE(folder.files(), QStringList());
    }

    void aBackupMayBeReadByThoseWhoMayReadThePlan()
    {
        PlanFolder folder;
        OpenWindow open;
        const QString path = folder.writePlan(s("one.kw"), 2);
        const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
        QVERIFY(QFile::setPermissions(path, permissions));
        QVERIFY(open.window.fileCommands()->backups()->backupPlan(path));
        const QString backup = folder.path(s("one_2026-06-13T14-30-05.kwb"));
        QVERIFY(QFile::permissions(backup).testFlag(QFile::ReadGroup));
        QVERIFY(!QFile::permissions(backup).testFlag(QFile::ReadOther));
    }

    void autoSaveCopiesTheFileAsLastSavedNotThePlanInMemory()
    {
        PlanFolder folder;
        OpenWindow open({folder.writePlan(s("one.kw"), 2)});
        addGuest(open.plan(), {"Ann"});
        fire(open);
        const QString backup = s("one_2026-06-13T14-40-05.kwb");
        QCOMPARE(folder.files(), QStringList({s("one.kw"), backup}));
        QCOMPARE(folder.guestsIn(backup), 2);
        QVERIFY(open.plan().isModified());
        QCOMPARE(open.window.statusBar()->currentMessage(), s("Auto-save one.kw"));
    }

    void autoSaveWaitsForAChange()
    {
        PlanFolder folder;
        OpenWindow open({folder.writePlan(s("one.kw"), 2)});
        fire(open);
        QCOMPARE(folder.files(), QStringList{s("one.kw")});
        addGuest(open.plan(), {"Ann"});
        fire(open);
        QCOMPARE(folder.files().size(), 2);
        fire(open);
        QCOMPARE(folder.files().size(), 2);
    }

    void autoSaveGivesAnUnsavedOrEmptyPlanNothing()
    {
        OpenWindow open;
        QVERIFY(QDir::setCurrent(testHome().path(QString())));
        const QStringList before = QDir(testHome().path(QString())).entryList();
        addGuest(open.plan(), {"Ann"});
        fire(open);
        QCOMPARE(QDir(testHome().path(QString())).entryList(), before);
        PlanFolder folder;
        open.window.fileCommands()->openPlan(folder.writePlan(s("empty.kw"), 0));
        open.plan().announceModified();
        fire(open);
        QCOMPARE(folder.files(), QStringList{s("empty.kw")});
    }

    void aFailedAutoSaveIsTriedAgain()
    {
        PlanFolder folder;
        OpenWindow open({folder.writePlan(s("one.kw"), 2)});
        addGuest(open.plan(), {"Ann"});
        QVERIFY(QFile::remove(folder.path(s("one.kw"))));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(s("^backup .* failed$")));
        fire(open);
        folder.writePlan(s("one.kw"), 2);
        fire(open);
        QCOMPARE(folder.files(), QStringList({s("one.kw"), s("one_2026-06-13T14-50-05.kwb")}));
    }

    void aNewIntervalInThePreferencesReachesTheRunningTimer()
    {
        OpenWindow open;
        QCOMPARE(timerOf(open)->interval(), 600000);
        changePreferences(open, true, 3);
        QCOMPARE(timerOf(open)->interval(), 180000);
        QVERIFY(timerOf(open)->isActive());
    }

    void turningItOffInThePreferencesStopsTheTimerAndOnStartsIt()
    {
        OpenWindow open;
        changePreferences(open, false, 10);
        QVERIFY(!timerOf(open)->isActive());
        changePreferences(open, true, 5);
        QVERIFY(timerOf(open)->isActive());
        QCOMPARE(timerOf(open)->interval(), 300000);
    }

    void thereIsOneTimer()
    {
        OpenWindow open;
        open.window.fileCommands()->backups()->setupAutoSave(true, 20);
        QCOMPARE(open.window.findChildren<KWTimer *>().size(), 1);
        QCOMPARE(timerOf(open)->interval(), 1200000);
    }

    void cancelledPreferencesChangeNothing()
    {
        OpenWindow open;
        {
            ModalUser user;
            user.onDialog<KWPreferencesDlgImpl>([&](QDialog &dialog) {
                dialog.findChild<QSpinBox *>(s("m_backupAutoSpinBox"))->setValue(3);
                dialog.reject();
            });
            open.run("m_preferencesAction");
        }
        QCOMPARE(timerOf(open)->interval(), 600000);
        QCOMPARE(KWUserSettings().backupAutoInterval(), 10);
    }
};

REGISTER_TEST(TestFileCommandsBackup)
#include "tst_filecommands_backup.moc"
