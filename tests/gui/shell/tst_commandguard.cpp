#include "core/model/kwmodelhooks.h"
#include "gui/dialogs/kwguestdlgimpl.h"
#include "gui/dialogs/kwinfodlgimpl.h"
#include "gui/framework/kwhelpwindow.h"
#include "gui/framework/kwmessages.h"
#include "gui/framework/kwprompts.h"
#include "gui/panes/kwguestslistview.h"
#include "gui/shell/kwcommandguard.h"
#include "gui/shell/kwfilecommands.h"
#include "gui/shell/kwlefttab.h"
#include "support/gui/modaluser.h"
#include "support/gui/openwindow.h"
#include "support/gui/planfolder.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QAccessible>
#include <QMenu>
#include <QMessageBox>

// Commands that come while a dialog is up or the plan is being read or written, from elsewhere than
// mouse and keys.

namespace {

/// "m_fileNewAction m_fileOpenAction ...": the commands that are enabled, each with a "+" behind it
/// that is checked.
QString enabledCommands(const OpenWindow &open)
{
    QStringList names;
    for (const QAction *action : open.window.findChildren<QAction *>()) {
        if (action->objectName().startsWith(u"m_") && action->isEnabled() && !action->menu())
            names.append(action->objectName() + s(action->isChecked() ? "+" : ""));
    }
    names.sort();
    return names.join(u' ');
}

/// A window with a selected guest and something to undo.
struct BusyWindow : OpenWindow
{
    BusyWindow()
    {
        for (const char *name : {"Ann", "Bob"})
            addGuest(plan(), {name});
        window.saveUndoState(s("Lock"));
        plan().setGuestLocked(plan().guestAt(0), true);
        KWGuestsListView &list = *window.panes()->leftTab()->guestsView();
        list.setCurrentItem(list.topLevelItem(0));
        window.setActiveView(&list);
    }

    QByteArray text() { return plan().toPlanText({}); }
};

/// Triggers every command, as a menu bar of the desktop would.
void triggerAll(const OpenWindow &open)
{
    for (QAction *action : open.window.findChildren<QAction *>()) {
        if (action->objectName().startsWith(u"m_") && !action->menu())
            action->trigger();
    }
}

/// Acts once in the middle of each reading or writing of a plan.
class InTheMiddle
{
public:
    explicit InTheMiddle(const std::function<void()> &act)
    {
        const auto progress = modelHooks().progress;
        modelHooks().progress = [this, act, progress](int done, int total) {
            if (times++ == 0)
                QTimer::singleShot(0, act);
            progress(done, total);
        };
    }

    int times = 0;
};

QAccessibleInterface *childNamed(QAccessibleInterface *parent, const QString &name)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        QAccessibleInterface *child = parent->child(i);
        if (child && child->text(QAccessible::Name) == name)
            return child;
        if (QAccessibleInterface *found = child ? childNamed(child, name) : nullptr)
            return found;
    }
    return nullptr;
}
} // namespace

class TestCommandGuard : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void noCommandReachesThePlanUnderADialog()
    {
        BusyWindow open;
        const QByteArray before = open.text();
        const QString enabled = enabledCommands(open);
        QString under;
        ModalUser user;
        user.onDialog<KWGuestDlgImpl>([&](KWGuestDlgImpl &dialog) {
            under = enabledCommands(open);
            triggerAll(open);
            QCOMPARE(open.text(), before);
            QVERIFY(dialog.isVisible());
            dialog.reject();
        });
        open.run("m_editPropertiesAction");
        QCOMPARE(user.waiting(), 0);
        QCOMPARE(under, QString());
        QCOMPARE(open.text(), before);
        QCOMPARE(enabledCommands(open), enabled);
        QVERIFY(open.window.isVisible());
    }

    void aPressByAssistiveTechnologyDoesNothingUnderADialog()
    {
        BusyWindow open;
        QAccessible::setActive(true);
        auto *menu = open.window.findChild<QMenu *>(s("m_editMenu"));
        QVERIFY(menu);
        const auto press = [&] {
            QAccessibleInterface *entry =
                childNamed(QAccessible::queryAccessibleInterface(menu), s("Undo Lock"));
            QVERIFY(entry);
            entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        };
        ModalUser user;
        user.onDialog<KWInfoDlgImpl>([&](KWInfoDlgImpl &dialog) {
            press();
            dialog.reject();
        });
        open.run("m_fileInfo");
        QVERIFY(open.plan().guestAt(0)->isLocked());
        QVERIFY(open.action("m_editUndoAction")->isEnabled());
        // The same press works without a dialog.
        press();
        QTRY_VERIFY(!open.plan().guestAt(0)->isLocked());
        QAccessible::setActive(false);
    }

    void commandsStayOffWhateverADialogChanges()
    {
        OpenWindow open;
        QString under;
        ModalUser user;
        user.onDialog<KWInfoDlgImpl>([&](KWInfoDlgImpl &dialog) {
            open.window.saveUndoState(s("Insert guest"));
            addGuest(open.plan(), {"Ann"});
            open.window.setActiveView(open.window.panes()->leftTab()->guestsView());
            under = enabledCommands(open);
            dialog.reject();
        });
        open.run("m_fileInfo");
        QCOMPARE(under, QString());
        // Behind it they are as the plan has made them.
        QVERIFY(open.action("m_editUndoAction")->isEnabled());
        QVERIFY(open.action("m_exportFloorPlanAction")->isEnabled());
        QVERIFY(!open.action("m_editDeleteAction")->isEnabled());
        QVERIFY(!open.action("m_importDataAction")->isEnabled());
    }

    void commandsComeBackOnlyBehindTheLastDialog()
    {
        OpenWindow open;
        const QString enabled = enabledCommands(open);
        setPrompts(nullptr);
        QString between;
        ModalUser user;
        user.onDialog<KWInfoDlgImpl>([&](KWInfoDlgImpl &dialog) {
            QTimer::singleShot(0, &dialog, [&] {
                QApplication::activeModalWidget()->close();
                between = enabledCommands(open);
            });
            warningBox(s("A message over the dialog"), s("&OK"));
            QCOMPARE(enabledCommands(open), QString());
            dialog.reject();
        });
        open.run("m_fileInfo");
        setPrompts(&open.prompts);
        QCOMPARE(between, QString());
        QCOMPARE(enabledCommands(open), enabled);
    }

    void noCommandComesInTheMiddleOfASave()
    {
        const PlanFolder folder;
        BusyWindow open;
        const QString enabled = enabledCommands(open);
        const QByteArray before = open.text();
        QString inTheMiddle = s("never looked");
        const InTheMiddle look([&] {
            inTheMiddle = enabledCommands(open);
            triggerAll(open);
        });
        open.window.fileCommands()->savePlan(folder.path(s("one.kw")));
        QVERIFY(look.times > 0);
        QTRY_COMPARE(inTheMiddle, QString());
        QCOMPARE(open.text(), before);
        QCOMPARE(folder.guestsIn(s("one.kw")), 2);
        QCOMPARE(enabledCommands(open), enabled);
    }

    void noCommandComesInTheMiddleOfALoad()
    {
        const PlanFolder folder;
        const QString path = folder.writePlan(s("one.kw"), 30);
        BusyWindow open;
        QString inTheMiddle = s("never looked");
        const InTheMiddle look([&] {
            inTheMiddle = enabledCommands(open);
            triggerAll(open);
        });
        QVERIFY(open.window.fileCommands()->openPlan(path));
        QVERIFY(look.times > 0);
        QTRY_COMPARE(inTheMiddle, QString());
        QCOMPARE(open.plan().guestCount(), 30);
        QVERIFY(open.action("m_fileNewAction")->isEnabled());
        QVERIFY(!open.action("m_editUndoAction")->isEnabled());
    }

    void aTimedBackupIsNotMadeOfAFileThatIsReadOrWritten_data()
    {
        QTest::addColumn<bool>("isRead");
        QTest::newRow("written") << false;
        QTest::newRow("read") << true;
    }

    void aTimedBackupIsNotMadeOfAFileThatIsReadOrWritten()
    {
        QFETCH(bool, isRead);
        const PlanFolder folder;
        KWUserSettings().setBackupOnSave(false);
        OpenWindow open({folder.writePlan(s("one.kw"), 3)});
        addGuest(open.plan(), {"Ann"});
        bool came = false;
        const InTheMiddle backup([&] {
            open.plan().setFileName(folder.path(s("one.kw")));
            open.window.fileCommands()->backups()->setChangedSinceBackup(true);
            open.window.fileCommands()->autoSave();
            came = true;
        });
        if (isRead)
            open.window.fileCommands()->openPlan(folder.path(s("one.kw")));
        else
            open.run("m_fileSaveAction");
        QTRY_VERIFY(came);
        QCOMPARE(folder.files(), QStringList{s("one.kw")});
    }

    void theWindowClosesBehindASave()
    {
        const PlanFolder folder;
        BusyWindow open;
        bool wasOpen = false;
        const InTheMiddle close([&] {
            open.window.close();
            wasOpen = open.window.isVisible();
        });
        open.window.fileCommands()->savePlan(folder.path(s("one.kw")));
        QTRY_VERIFY(!open.window.isVisible());
        QVERIFY(wasOpen);
        QCOMPARE(folder.guestsIn(s("one.kw")), 2);
        QVERIFY(open.prompts.messages.isEmpty());
    }

    void theHelpStaysUsableUnderADialog()
    {
        OpenWindow open;
        KWHelpWindow help(&open.window);
        help.show();
        QStringList enabled;
        const auto commands = [&help] {
            QStringList names;
            for (const QAction *action : help.findChildren<QAction *>())
                names.append(action->text() + s(action->isEnabled() ? " on" : " off"));
            return names;
        };
        const QStringList before = commands();
        QVERIFY(!before.isEmpty());
        ModalUser user;
        QStringList under;
        user.onDialog<KWInfoDlgImpl>([&](KWInfoDlgImpl &dialog) {
            under = commands();
            dialog.reject();
        });
        open.run("m_fileInfo");
        QCOMPARE(under, before);
    }

    void holdsNest()
    {
        OpenWindow open;
        auto *guard = open.window.findChild<KWCommandGuard *>();
        const QString enabled = enabledCommands(open);
        QSignalSpy released(guard, &KWCommandGuard::released);
        QSignalSpy changed(guard, &KWCommandGuard::changed);
        {
            const KWCommandGuard::Hold outer(guard);
            {
                const KWCommandGuard::Hold inner(guard);
                QVERIFY(guard->isHeld());
            }
            QVERIFY(guard->isHeld());
            QCOMPARE(enabledCommands(open), QString());
            QCOMPARE(released.size(), 0);
        }
        QVERIFY(!guard->isHeld());
        QCOMPARE(released.size(), 1);
        QCOMPARE(changed.size(), 2);
        QCOMPARE(enabledCommands(open), enabled);
    }

    void undoAndRedoWithoutASnapshotDoNothing()
    {
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        QSignalSpy cleared(&open.plan(), &KWDocument::eventClear);
        for (const char *name : {"m_editUndoAction", "m_editRedoAction"}) {
            open.action(name)->setEnabled(true);
            open.action(name)->trigger();
        }
        QCOMPARE(open.plan().guestCount(), 1);
        QCOMPARE(cleared.size(), 0);
    }
};

REGISTER_TEST(TestCommandGuard)
#include "tst_commandguard.moc"
