#include "gui/shell/kwfilecommands.h"
#include "support/gui/openwindow.h"
#include "support/gui/planfolder.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QStatusBar>

#include <unistd.h>

// Save, save as, and the backup that a save makes.

namespace {

QStringList messages(const OpenWindow &open)
{
    QStringList result;
    for (const KWMessage &message : open.prompts.messages)
        result.append(message.text + s(" [") + message.buttons.join(u'|') + u']');
    return result;
}

/// Takes away what root may do while it lives, since root may write anywhere.
class NoPrivileges
{
public:
    NoPrivileges() { setUser(nobody); }
    ~NoPrivileges() { setUser(0); }
    NoPrivileges(const NoPrivileges &) = delete;
    NoPrivileges &operator=(const NoPrivileges &) = delete;

private:
    static constexpr uid_t nobody = 65534;

    void setUser(uid_t user) const
    {
        if (m_isRoot)
            QCOMPARE(seteuid(user), 0);
    }

    const bool m_isRoot = geteuid() == 0;
};

QString refusal(const QString &path)
{
    return s("Unable to save plan to '%1'\nThe file may be read-only or you may have insufficient "
             "access to save here. [&OK]")
        .arg(path);
}
} // namespace

class TestFileCommandsSave : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void savingANewPlanLeadsThroughSaveAs()
    {
        PlanFolder folder;
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        const QString start = open.window.fileCommands()->planDirPath();
        open.prompts.answerFile(folder.path(s("new.kw")));
        open.run("m_fileSaveAction");
        const KWFileQuestion &question = open.prompts.files.first();
        QCOMPARE(question.mode, KWFileQuestion::Save);
        QCOMPARE(question.filters, s("Ambrelune (*.kw)"));
        QCOMPARE(question.startPath, start + s("plan.kw"));
        QCOMPARE(folder.files(), QStringList{s("new.kw")});
        QVERIFY(!open.plan().isModified());
        QCOMPARE(open.plan().fileName(), folder.path(s("new.kw")));
        QCOMPARE(open.window.windowTitle(), s("Ambrelune - new.kw"));
        QCOMPARE(open.window.statusBar()->currentMessage(), s("Saved ") + folder.path(s("new.kw")));
        QCOMPARE(open.window.fileCommands()->recentPlans().paths(),
                 QStringList{folder.path(s("new.kw"))});
        QCOMPARE(open.window.fileCommands()->planDirPath(), folder.path(QString()) + u'/');
        QVERIFY(!open.window.fileCommands()->backups()->changedSinceBackup());
        QVERIFY(!QApplication::overrideCursor());
    }

    void cancellingTheDialogLeavesThePlanModifiedAndUnnamed()
    {
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        open.prompts.answerFile(QString());
        open.run("m_fileSaveAction");
        QVERIFY(open.plan().isModified());
        QVERIFY(open.plan().fileName().isEmpty());
    }

    void saveAsStartsWithThePlansOwnName()
    {
        PlanFolder folder;
        const QString path = folder.writePlan(s("one.kw"));
        OpenWindow open({path});
        open.prompts.answerFile(QString());
        open.run("m_fileSaveAsAction");
        QCOMPARE(open.prompts.files.first().startPath, path);
    }

    void aNameWithoutADotGetsTheExtension()
    {
        PlanFolder folder;
        OpenWindow open;
        // The temporary directory's own name has no dot.
        QVERIFY(!folder.path(QString()).contains(u'.'));
        open.prompts.answerFile(folder.path(s("ours")));
        open.run("m_fileSaveAsAction");
        QCOMPARE(folder.files(), QStringList{s("ours.kw")});
    }

    void aDotInADirectorysNameKeepsTheExtensionAway()
    {
        PlanFolder folder;
        QVERIFY(QDir(folder.path(QString())).mkdir(s("june.2026")));
        OpenWindow open;
        open.prompts.answerFile(folder.path(s("june.2026/ours")));
        open.run("m_fileSaveAsAction");
        QVERIFY(QFile::exists(folder.path(s("june.2026/ours"))));
        QVERIFY(!QFile::exists(folder.path(s("june.2026/ours.kw"))));
    }

    void anExistingFileIsReplacedOnlyIfWanted_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("guests");
        QTest::newRow("ok") << s("&OK") << 1;
        QTest::newRow("cancel") << s("&Cancel") << 3;
    }

    void anExistingFileIsReplacedOnlyIfWanted()
    {
        QFETCH(QString, answer);
        QFETCH(int, guests);
        PlanFolder folder;
        const QString path = folder.writePlan(s("one.kw"), 3);
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        const QString before = open.window.fileCommands()->planDirPath();
        open.prompts.answerFile(path);
        open.prompts.answer(answer);
        open.run("m_fileSaveAsAction");
        QCOMPARE(
            messages(open),
            QStringList{
                s("Do you wish to overwrite the existing file '%1'? [&OK|&Cancel]").arg(path)});
        QCOMPARE(folder.guestsIn(s("one.kw")), guests);
        QCOMPARE(open.window.fileCommands()->planDirPath(),
                 guests == 3 ? before : folder.path(QString()) + u'/');
    }

    void theOldFileIsBackedUpBeforeASave()
    {
        PlanFolder folder;
        OpenWindow open({folder.writePlan(s("one.kw"), 3)});
        addGuest(open.plan(), {"Ann"});
        open.run("m_fileSaveAction");
        QCOMPARE(folder.files(), QStringList({s("one.kw"), s("one_2026-06-13T14-30-05.kwb")}));
        QCOMPARE(folder.guestsIn(s("one_2026-06-13T14-30-05.kwb")), 3);
        QCOMPARE(folder.guestsIn(s("one.kw")), 4);
    }

    void aBackupIsAsPrivateAsItsPlan()
    {
        PlanFolder folder;
        const QString path = folder.writePlan(s("one.kw"));
        const auto privately = QFile::ReadOwner | QFile::WriteOwner;
        QVERIFY(QFile::setPermissions(path, privately));
        OpenWindow open({path});
        open.run("m_fileSaveAction");
        const QFile backup(folder.path(s("one_2026-06-13T14-30-05.kwb")));
        QCOMPARE(backup.permissions() & ~(QFile::ReadUser | QFile::WriteUser),
                 QFile::Permissions(privately));
    }

    void withoutTheSettingASaveMakesNoBackup()
    {
        KWUserSettings().setBackupOnSave(false);
        PlanFolder folder;
        OpenWindow open({folder.writePlan(s("one.kw"), 3)});
        open.run("m_fileSaveAction");
        QCOMPARE(folder.files(), QStringList{s("one.kw")});
    }

    void twoSavesWithinASecondLeaveOneBackup()
    {
        PlanFolder folder;
        OpenWindow open({folder.writePlan(s("one.kw"), 3)});
        addGuest(open.plan(), {"Ann"});
        open.run("m_fileSaveAction");
        open.run("m_fileSaveAction");
        QCOMPARE(folder.files(), QStringList({s("one.kw"), s("one_2026-06-13T14-30-05.kwb")}));
        QCOMPARE(folder.guestsIn(s("one_2026-06-13T14-30-05.kwb")), 4);
        open.now = open.now.addSecs(1);
        open.run("m_fileSaveAction");
        QCOMPARE(folder.files(), QStringList({s("one.kw"), s("one_2026-06-13T14-30-05.kwb"),
                                              s("one_2026-06-13T14-30-06.kwb")}));
    }

    void theBackupOfANameWithDotsBearsThePartBeforeTheFirst()
    {
        PlanFolder folder;
        OpenWindow open({folder.writePlan(s("a.b.kw"))});
        open.run("m_fileSaveAction");
        QCOMPARE(folder.files(), QStringList({s("a.b.kw"), s("a_2026-06-13T14-30-05.kwb")}));
    }

    void anOpenedBackupHasNoNameSoThatASaveAsksForOne()
    {
        PlanFolder folder;
        OpenWindow open({folder.writePlan(s("old.kwb"), 2)});
        QVERIFY(open.plan().fileName().isEmpty());
        open.prompts.answerFile(QString());
        open.run("m_fileSaveAction");
        QCOMPARE(folder.files(), QStringList{s("old.kwb")});
    }

    void aBackupThatIsSavedOverIsBackedUpBesideIt()
    {
        PlanFolder folder;
        const QString path = folder.writePlan(s("old.kwb"), 2);
        OpenWindow open({path});
        addGuest(open.plan(), {"Ann"});
        open.prompts.answerFile(path);
        open.prompts.answer(s("&OK"));
        open.run("m_fileSaveAction");
        QCOMPARE(folder.files(), QStringList({s("old.kwb"), s("old_2026-06-13T14-30-05.kwb")}));
        QCOMPARE(folder.guestsIn(s("old.kwb")), 3);
        QCOMPARE(folder.guestsIn(s("old_2026-06-13T14-30-05.kwb")), 2);
        QCOMPARE(open.window.fileCommands()->recentPlans().paths(), QStringList());
    }

    void aFailedBackupDoesNotKeepFromSaving()
    {
        PlanFolder folder;
        OpenWindow open({folder.writePlan(s("one.kw"), 3)});
        addGuest(open.plan(), {"Ann"});
        // A directory in the way of the backup.
        QVERIFY(QDir(folder.path(QString())).mkdir(s("one_2026-06-13T14-30-05.kwb")));
        QTest::ignoreMessage(QtWarningMsg,
                             qPrintable(s("backup %1 to %2 failed")
                                            .arg(folder.path(s("one.kw")),
                                                 folder.path(s("one_2026-06-13T14-30-05.kwb")))));
        open.run("m_fileSaveAction");
        QCOMPARE(folder.guestsIn(s("one.kw")), 4);
        QVERIFY(!open.plan().isModified());
        QVERIFY(!open.window.fileCommands()->backups()->changedSinceBackup());
        QVERIFY(open.prompts.messages.isEmpty());
    }

    void aSavedPlanIsNoRecentOneToOpen()
    {
        const PlanFolder folder;
        OpenWindow open;
        open.window.fileCommands()->savePlan(folder.path(s("one.kw")));
        QVERIFY(!open.action("m_openRecentAction")->isEnabled());
        open.window.fileCommands()->savePlan(folder.path(s("two.kw")));
        QVERIFY(open.action("m_openRecentAction")->isEnabled());
    }

    void alsoASaveThatFailsIsNoChangeSinceABackup()
    {
        const PlanFolder folder;
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        QVERIFY(open.window.fileCommands()->backups()->changedSinceBackup());
        open.prompts.answer(s("&OK"));
        open.window.fileCommands()->savePlan(folder.path(s("no/such.kw")));
        QVERIFY(!open.window.fileCommands()->backups()->changedSinceBackup());
        QVERIFY(open.plan().isModified());
    }

    void duringASaveTheCursorIsBusyAndTheStatusBarSaysWhatIsSaved()
    {
        PlanFolder folder;
        const QString path = folder.writePlan(s("one.kw"), 2);
        OpenWindow open({path});
        addGuest(open.plan(), {"Ann"});
        Qt::CursorShape shape = Qt::ArrowCursor;
        QString message;
        connect(&open.plan(), &KWDocument::eventDocumentNameChange, &open.window, [&] {
            if (const QCursor *cursor = QApplication::overrideCursor())
                shape = cursor->shape();
            message = open.window.statusBar()->currentMessage();
        });
        open.run("m_fileSaveAction");
        QCOMPARE(shape, Qt::WaitCursor);
        QCOMPARE(message, s("Saving %1").arg(path));
        QVERIFY(!QApplication::overrideCursor());
    }

    void aSaveIntoAMissingDirectoryIsReported()
    {
        PlanFolder folder;
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        open.prompts.answerFile(folder.path(s("no/such.kw")));
        open.prompts.answer(s("&OK"));
        open.run("m_fileSaveAsAction");
        QCOMPARE(messages(open), QStringList{refusal(folder.path(s("no/such.kw")))});
        QCOMPARE(open.prompts.messages.first().icon, KWMessage::Critical);
        QVERIFY(open.plan().isModified());
        QVERIFY(open.plan().fileName().isEmpty());
        QCOMPARE(open.plan().guestCount(), 1);
        QCOMPARE(open.window.fileCommands()->recentPlans().paths(), QStringList());
        QVERIFY(!QApplication::overrideCursor());
    }

    void aSaveOverADirectoryIsReported()
    {
        PlanFolder folder;
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        QVERIFY(QDir(folder.path(QString())).mkdir(s("one.kw")));
        open.prompts.answerFile(folder.path(s("one.kw")));
        open.prompts.answer(s("&OK"));
        open.prompts.answer(s("&OK"));
        open.run("m_fileSaveAsAction");
        QCOMPARE(messages(open).last(), refusal(folder.path(s("one.kw"))));
        QVERIFY(open.plan().isModified());
    }

    void aSaveIntoAReadOnlyDirectoryIsReported()
    {
        PlanFolder folder;
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        const QString path = folder.path(s("one.kw"));
        QFile directory(folder.path(QString()));
        const auto permissions = directory.permissions();
        QVERIFY(directory.setPermissions(QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther |
                                         QFile::ExeOther));
        open.prompts.answerFile(path);
        open.prompts.answer(s("&OK"));
        {
            const NoPrivileges noPrivileges;
            open.run("m_fileSaveAsAction");
        }
        QVERIFY(directory.setPermissions(permissions));
        QCOMPARE(messages(open), QStringList{refusal(path)});
        QVERIFY(open.plan().isModified());
        QCOMPARE(folder.files(), QStringList());
    }

    void aFullDiskIsReportedAndThePlanStaysModified()
    {
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        open.plan().setFileName(s("/dev/full"));
        KWUserSettings().setBackupOnSave(false);
        open.prompts.answer(s("&OK"));
        open.run("m_fileSaveAction");
        QCOMPARE(messages(open), QStringList{refusal(s("/dev/full"))});
        QVERIFY(open.plan().isModified());
        QCOMPARE(open.plan().guestCount(), 1);
    }
};

REGISTER_TEST(TestFileCommandsSave)
#include "tst_filecommands_save.moc"
