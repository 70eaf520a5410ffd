#include "gui/shell/kwbottomtab.h"
#include "gui/shell/kwlefttab.h"
#include "gui/shell/kwtoptab.h"
#include "support/gui/fakeview.h"
#include "support/gui/openwindow.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

QString undoText(const OpenWindow &open)
{
    return open.action("m_editUndoAction")->text();
}

bool waits()
{
    const QCursor *cursor = QApplication::overrideCursor();
    return cursor && cursor->shape() == Qt::WaitCursor;
}

/// A window with one active view that can do everything.
struct ActiveView
{
    ActiveView()
    {
        view = open.addView(open.window.panes()->leftTab(), s("Guests"));
        view->answers = {.canDelete = true,
                         .canEditProperties = true,
                         .canUnassign = true,
                         .canSetLocked = true,
                         .canSetAccepted = true,
                         .canSetAffinity = true,
                         .canRotate = true};
        view->onCall = [this] { change(); };
        open.window.setActiveView(view);
    }

    void change() { open.plan().setEvent(open.plan().event() + u'x'); }

    OpenWindow open;
    FakeView *view;
};
} // namespace

class TestEditCommands : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void theCommandReachesTheActiveViewBehindItsUndoPoint_data()
    {
        QTest::addColumn<QByteArray>("action");
        QTest::addColumn<QString>("call");
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("isBusy");
        const auto row = [](const char *action, const char *call, const char *label,
                            bool isBusy = true) {
            QTest::newRow(action) << QByteArray(action) << s(call) << s(label) << isBusy;
        };
        row("m_editUnassignSeatAction", "unassign", "&Undo Unassign");
        row("m_editRotateTableAction", "rotate", "&Undo Rotate", false);
        row("m_editLockAction", "setLocked 1", "&Undo Lock");
        row("m_editAcceptedAction", "setAccepted 1", "&Undo Set accepted");
        row("m_editSetAffinityLovesAction", "setAffinity 0", "&Undo Proximity");
        row("m_editSetAffinityLikesAction", "setAffinity 1", "&Undo Proximity");
        row("m_editSetAffinityNeutralAction", "setAffinity 2", "&Undo Proximity");
        row("m_editSetAffinityDislikesAction", "setAffinity 3", "&Undo Proximity");
        row("m_editSetAffinityHatesAction", "setAffinity 4", "&Undo Proximity");
        // The dialogs behind the properties make undo points of their own.
        row("m_editPropertiesAction", "editProperties", "&Undo", false);
    }

    void theCommandReachesTheActiveViewBehindItsUndoPoint()
    {
        QFETCH(QByteArray, action);
        QFETCH(QString, call);
        QFETCH(QString, label);
        QFETCH(bool, isBusy);
        ActiveView active;
        QString labelInCall;
        bool isBusyInCall = !isBusy;
        active.view->onCall = [&] {
            active.change();
            labelInCall = undoText(active.open);
            isBusyInCall = waits();
        };
        active.open.run(action.constData());
        QCOMPARE(active.view->calls, QStringList{call});
        QCOMPARE(labelInCall, label);
        QCOMPARE(isBusyInCall, isBusy);
        QCOMPARE(undoText(active.open), label);
        QVERIFY(!QApplication::overrideCursor());
    }

    void withoutAnActiveViewACommandDoesNothing_data()
    {
        theCommandReachesTheActiveViewBehindItsUndoPoint_data();
        QTest::newRow("m_editDeleteAction")
            << QByteArray("m_editDeleteAction") << QString() << QString() << true;
    }

    void withoutAnActiveViewACommandDoesNothing()
    {
        QFETCH(QByteArray, action);
        ActiveView active;
        active.open.window.setActiveView(nullptr);
        QAction *command = active.open.action(action.constData());
        QVERIFY(!command->isEnabled());
        command->setEnabled(true);
        command->trigger();
        QCOMPARE(active.view->calls, QStringList());
        QCOMPARE(undoText(active.open), s("&Undo"));
    }

    void unlockingAndNotAcceptingHaveWordsOfTheirOwn()
    {
        ActiveView active;
        active.view->answers.isLocked = true;
        active.view->answers.hasAccepted = true;
        active.open.window.updateActionsOnViewChange();
        QVERIFY(active.open.action("m_editLockAction")->isChecked());
        QVERIFY(active.open.action("m_editAcceptedAction")->isChecked());
        QCOMPARE(active.view->calls, QStringList());
        active.open.run("m_editLockAction");
        QCOMPARE(undoText(active.open), s("&Undo Unlock"));
        active.open.run("m_editAcceptedAction");
        QCOMPARE(undoText(active.open), s("&Undo Set not accepted"));
        QCOMPARE(active.view->calls, QStringList({s("setLocked 0"), s("setAccepted 0")}));
    }

    void aProximityCommandLeavesNoCheckMarkBehind()
    {
        ActiveView active;
        active.open.run("m_editSetAffinityLovesAction");
        QVERIFY(!active.open.action("m_editSetAffinityLovesAction")->isChecked());
        active.open.run("m_editSetAffinityLovesAction");
        QCOMPARE(active.view->calls, QStringList({s("setAffinity 0"), s("setAffinity 0")}));
    }

    void deletingHoldsBackThePaintingOfTheViewsThatItChanges()
    {
        OpenWindow open;
        QStringList log;
        const auto add = [&](KWCloseableTabWidget *tab, const char *name) {
            FakeView *view = open.addView(tab, s(name));
            view->log = &log;
            return view;
        };
        KWPanes *panes = open.window.panes();
        FakeView *guests = add(panes->leftTab(), "Guests");
        add(panes->leftTab(), "Groups");
        add(panes->topTab(), "Floor plan");
        add(panes->topTab(), "Schematic");
        add(panes->topTab(), "Table chart");
        add(panes->bottomTab(), "Proximity");
        guests->answers.canDelete = true;
        open.window.setActiveView(guests);
        open.run("m_editDeleteAction");
        QCOMPARE(log.join(s(", ")),
                 s("Proximity block, Guests block, Groups block, Floor plan block, "
                   "Schematic block, Table chart block, Guests deleteSelection, "
                   "Proximity unblock, Guests unblock, Groups unblock, Floor plan unblock, "
                   "Schematic unblock, Table chart unblock"));
        for (const FakeView *view : open.window.findChildren<FakeView *>())
            QVERIFY2(view->updatesEnabled(), qPrintable(view->objectName()));
    }

    void withoutATopViewNothingIsPrintedOrCopied()
    {
        OpenWindow open;
        open.removeTopPages();
        for (const char *name : {"m_filePrintAction", "m_editCopyAction"}) {
            open.action(name)->setEnabled(true);
            open.run(name);
        }
        QVERIFY(!QApplication::overrideCursor());
    }

    void aCommandThatChangesNothingTakesNoUndoPointAndKeepsTheRedo_data()
    {
        theCommandReachesTheActiveViewBehindItsUndoPoint_data();
        // As after a question that was answered with no.
        QTest::newRow("m_editDeleteAction")
            << QByteArray("m_editDeleteAction") << QString() << QString() << true;
    }

    void aCommandThatChangesNothingTakesNoUndoPointAndKeepsTheRedo()
    {
        QFETCH(QByteArray, action);
        for (const bool isTold : {false, true}) {
            ActiveView active;
            addGuest(active.open.plan(), {"Ann"});
            active.open.window.saveUndoState(s("before"));
            active.open.run("m_editUndoAction");
            // What is told may still be as it was.
            active.view->onCall = [&] {
                if (isTold)
                    active.open.plan().announceModified();
            };
            active.open.run(action.constData());
            QVERIFY(!active.view->calls.isEmpty());
            QCOMPARE(undoText(active.open), s("&Undo"));
            QCOMPARE(active.open.action("m_editRedoAction")->text(), s("&Redo before"));
            QVERIFY(active.open.action("m_editRedoAction")->isEnabled());
        }
    }

    void theUndoPointIsThereWhenTheViewAsks()
    {
        ActiveView active;
        QString seen;
        active.view->onCall = [&] { seen = undoText(active.open); };
        active.open.run("m_editDeleteAction");
        QCOMPARE(seen, s("&Undo Delete"));
    }

    void deletingBringsTheActionsUpToDate()
    {
        ActiveView active;
        active.view->onCall = [&] { active.view->answers.canDelete = false; };
        active.open.run("m_editDeleteAction");
        QVERIFY(!active.open.action("m_editDeleteAction")->isEnabled());
        QVERIFY(!QApplication::overrideCursor());
    }

    void aCommandBringsTheActionsUpToDate_data()
    {
        QTest::addColumn<QByteArray>("action");
        for (const char *action : {"m_editUnassignSeatAction", "m_editLockAction",
                                   "m_editAcceptedAction", "m_editSetAffinityLovesAction"})
            QTest::newRow(action) << QByteArray(action);
    }

    void aCommandBringsTheActionsUpToDate()
    {
        QFETCH(QByteArray, action);
        ActiveView active;
        active.view->onCall = [&] { active.view->answers.canDelete = false; };
        active.open.run(action.constData());
        QVERIFY(!active.open.action("m_editDeleteAction")->isEnabled());
    }

    void printAndCopyGoToTheTopPaneWhateverIsActive()
    {
        OpenWindow open;
        KWPanes *panes = open.window.panes();
        FakeView *guests = open.addView(panes->leftTab(), s("Guests"));
        FakeView *plan = open.addView(panes->topTab(), s("Floor plan"));
        plan->answers.canPrint = true;
        plan->answers.canCopy = true;
        addGuest(open.plan(), {"Ann"});
        open.window.setActiveView(guests);
        QList<bool> busy;
        plan->onCall = [&busy] { busy.append(waits()); };
        open.run("m_filePrintAction");
        open.run("m_editCopyAction");
        QCOMPARE(busy, QList<bool>({false, true}));
        QCOMPARE(plan->calls, QStringList({s("print"), s("copy")}));
        QCOMPARE(guests->calls, QStringList());
        QVERIFY(!QApplication::overrideCursor());
    }
};

REGISTER_TEST(TestEditCommands)
#include "tst_editcommands.moc"
