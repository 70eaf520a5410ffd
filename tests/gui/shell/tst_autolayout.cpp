#include "gui/dialogs/kwautolayoutprogressdlgimpl.h"
#include "gui/floorplan/kwcanvasview.h"
#include "gui/floorplan/kwfloorplanitem.h"
#include "gui/panes/kwguestslistview.h"
#include "gui/shell/kwfilecommands.h"
#include "gui/shell/kwlefttab.h"
#include "support/eventlog.h"
#include "support/gui/modaluser.h"
#include "support/gui/openwindow.h"
#include "support/gui/planfolder.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QPushButton>
#include <QStatusBar>

#include <stdexcept>

// The layout in the main window.

namespace {

QString timeText()
{
    return s("The automatic layout did not have enough time to compute a good solution.\nTry "
             "increasing the time allowed in the Preferences window.");
}

/// A window with guests who stand and seats for them.
struct LayoutWindow : OpenWindow
{
    explicit LayoutWindow(const QStringList &arguments = {}, int guests = 16)
        : OpenWindow(arguments)
    {
        if (guests > 0)
            fillRandomly(plan(), {.guests = guests, .seats = 18, .wishes = 40, .locked = 0});
        plan().announceRefresh();
        plan().announceModified();
    }

    void layOut() { run("m_fileAutoLayoutAction"); }
};

/// Acts once, as soon as a layout runs that has processed so many events.
class Interruption : public QObject
{
public:
    Interruption(int rounds, std::function<void(QDialog &)> act)
        : m_rounds(rounds)
        , m_act(std::move(act))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] { look(); });
        m_timer.start(0);
    }

    bool happened() const { return m_happened; }

private:
    void look()
    {
        auto *dialog =
            qobject_cast<KWAutoLayoutProgressDlgImpl *>(QApplication::activeModalWidget());
        if (!dialog || m_happened || m_rounds-- > 0)
            return;
        m_happened = true;
        m_act(*dialog);
    }

    QTimer m_timer;
    int m_rounds;
    std::function<void(QDialog &)> m_act;
    bool m_happened = false;
};

/// A run that only a stop ends.
void neverEnd(OpenWindow &open)
{
    open.window.userSettings()->setSolverStopCriteria(2);
    open.window.userSettings()->setSolverMaxGenerationsUnimproved(99999);
}
} // namespace

class TestAutoLayout : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void theCommandIsOnForAPlanWithGuests()
    {
        OpenWindow open;
        QVERIFY(!open.action("m_fileAutoLayoutAction")->isEnabled());
        addTable(open.plan(), "T", KWTable::Circular, 4);
        QVERIFY(!open.action("m_fileAutoLayoutAction")->isEnabled());
        addGuest(open.plan(), {"Ann"});
        QVERIFY(open.action("m_fileAutoLayoutAction")->isEnabled());
    }

    void withoutSeatsItSaysSo()
    {
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        open.prompts.answer(s("&OK"));
        open.run("m_fileAutoLayoutAction");
        QCOMPARE(open.prompts.texts(),
                 QStringList{s("You need to add some tables with seats before you can perform an "
                               "automatic layout.")});
        QVERIFY(!open.action("m_editUndoAction")->isEnabled());
    }

    void tablesWithoutSeatsAreNoSeats()
    {
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        addTable(open.plan(), "T", KWTable::Circular, 0);
        open.prompts.answer(s("&OK"));
        open.run("m_fileAutoLayoutAction");
        QCOMPARE(open.prompts.texts().size(), 1);
        QVERIFY(!open.action("m_editUndoAction")->isEnabled());
    }

    void theCursorIsBusyWhileItRuns()
    {
        LayoutWindow open;
        neverEnd(open);
        Qt::CursorShape shape = Qt::ArrowCursor;
        const Interruption look(60, [&](QDialog &dialog) {
            if (const QCursor *cursor = QApplication::overrideCursor())
                shape = cursor->shape();
            dialog.close();
        });
        open.layOut();
        QVERIFY(look.happened());
        QCOMPARE(shape, Qt::WaitCursor);
        QVERIFY(!QApplication::overrideCursor());
    }

    void theCommandsFollowTheSelectionThatALayoutClears()
    {
        LayoutWindow open;
        KWGuestsListView *list = open.window.panes()->leftTab()->guestsView();
        list->setCurrentItem(list->topLevelItem(0));
        list->setThisViewActive();
        QVERIFY(open.action("m_editDeleteAction")->isEnabled());
        open.layOut();
        QVERIFY(list->selectedItems().isEmpty());
        QVERIFY(!open.action("m_editDeleteAction")->isEnabled());
        QVERIFY(!open.action("m_editPropertiesAction")->isEnabled());
    }

    void withAllGuestsLockedItSaysSo()
    {
        OpenWindow open;
        addGuest(open.plan(), {.name = "Ann", .locked = true});
        addTable(open.plan(), "T", KWTable::Circular, 4);
        open.prompts.answer(s("&OK"));
        open.run("m_fileAutoLayoutAction");
        QCOMPARE(open.prompts.texts(),
                 QStringList{s("You need to unlock some guests before you can perform an automatic "
                               "layout.")});
        QVERIFY(!open.action("m_editUndoAction")->isEnabled());
    }

    void seatedGuestsAreAskedFor_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<bool>("runs");
        QTest::newRow("yes") << 0 << true;
        QTest::newRow("no") << 1 << false;
    }

    void seatedGuestsAreAskedFor()
    {
        QFETCH(int, button);
        LayoutWindow open;
        open.plan().assignGuest(open.plan().guestAt(0), open.plan().tableAt(0), 0, true);
        ModalUser user;
        QString question;
        user.onDialog<QDialog>([&](QDialog &dialog) {
            for (const auto *label : dialog.findChildren<QLabel *>())
                question += label->text();
            dialog.findChildren<QPushButton *>().at(button)->click();
        });
        open.layOut();
        QVERIFY2(question.contains(s("The automatic layout may re-assign unlocked guests.\nDo you "
                                     "wish to continue with the automatic layout?")),
                 qPrintable(question));
        QTEST(open.action("m_editUndoAction")->isEnabled(), "runs");
        QTEST(open.plan().seatedGuestCount() == 16, "runs");
    }

    void theWarningMayBeSwitchedOff()
    {
        LayoutWindow open;
        open.plan().assignGuest(open.plan().guestAt(0), open.plan().tableAt(0), 0, true);
        open.window.userSettings()->setValue(u"warning/autolayout_unassign", false);
        open.layOut();
        QCOMPARE(open.plan().seatedGuestCount(), 16);
    }

    void aRunSeatsEverybodyAndIsUndoneInOneStep()
    {
        LayoutWindow open;
        const QByteArray before = open.plan().toPlanText({});
        const int scoreBefore = open.plan().totalScore();
        open.layOut();
        QCOMPARE(open.plan().seatedGuestCount(), 16);
        QCOMPARE(open.prompts.texts(), QStringList());
        QVERIFY(open.plan().isModified());
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(open.window.statusBar()->currentMessage(),
                 s("Seated guests: 16 of 16. Score: %1 before, %2 after.")
                     .arg(scoreBefore)
                     .arg(open.plan().totalScore()));
        const QByteArray after = open.plan().toPlanText({});
        QVERIFY(after != before);
        // The floor plan shows the new guests.
        const KWCanvas &canvas = *open.window.panes()->floorPlan()->canvas();
        for (KWGuest *guest : open.plan().guests())
            QVERIFY(canvas.itemOfGuest(guest));
        QCOMPARE(open.action("m_editUndoAction")->text(), s("&Undo Auto layout"));
        open.run("m_editUndoAction");
        QCOMPARE(open.plan().toPlanText({}), before);
        open.run("m_editRedoAction");
        QCOMPARE(open.plan().toPlanText({}), after);
    }

    void aStopKeepsTheBestSoFar_data()
    {
        QTest::addColumn<int>("rounds");
        QTest::addColumn<bool>("tooShort");
        QTest::newRow("start stage") << 5 << true;
        QTest::newRow("generations") << 200 << false;
    }

    void aStopKeepsTheBestSoFar()
    {
        QFETCH(int, rounds);
        QFETCH(bool, tooShort);
        LayoutWindow open;
        neverEnd(open);
        const Interruption escape(
            rounds, [](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        if (tooShort)
            open.prompts.answer(s("&OK"));
        open.layOut();
        QVERIFY(escape.happened());
        QCOMPARE(open.plan().seatedGuestCount(), 16);
        // The message comes when the plan can be seen.
        QTRY_COMPARE(open.prompts.texts(), tooShort ? QStringList{timeText()} : QStringList());
        QCOMPARE(open.prompts.waiting(), 0);
    }

    void theViewsHearNothingWhileItRuns()
    {
        LayoutWindow open;
        EventLog log(open.plan());
        open.layOut();
        QCOMPARE(log.take(), QStringList({s("eventPrepareAutoLayout()"), s("eventRefresh()"),
                                          s("eventModified()")}));
    }

    void theFloorPlanStandsEmptyWhileItRuns()
    {
        LayoutWindow open;
        neverEnd(open);
        qsizetype items = -1;
        const Interruption look(60, [&](QDialog &dialog) {
            items = open.window.panes()->floorPlan()->canvas()->items().size();
            dialog.close();
        });
        open.layOut();
        QVERIFY(look.happened());
        QCOMPARE(items, 0);
        QVERIFY(!open.window.panes()->floorPlan()->canvas()->items().isEmpty());
    }

    void theWindowClosesOnlyWhenTheLayoutHasEnded_data()
    {
        QTest::addColumn<bool>("all");
        QTest::newRow("the window") << false;
        // As the end of the session and the end of the program do.
        QTest::newRow("all windows") << true;
    }

    void theWindowClosesOnlyWhenTheLayoutHasEnded()
    {
        QFETCH(bool, all);
        LayoutWindow open;
        neverEnd(open);
        bool wasOpen = false;
        const Interruption close(60, [&](QDialog &) {
            all ? QApplication::closeAllWindows() : void(open.window.close());
            wasOpen = open.window.isVisible();
        });
        open.prompts.answer(s("&Cancel"));
        open.layOut();
        QVERIFY(close.happened());
        QVERIFY(wasOpen);
        QCOMPARE(open.plan().seatedGuestCount(), 16);
        QTRY_COMPARE(open.prompts.texts(), QStringList{s("Save changes to this plan?")});
        QVERIFY(open.window.isVisible());
        // Asked once: the next layout does not close it.
        open.window.userSettings()->setSolverMaxGenerationsUnimproved(1);
        open.window.userSettings()->setValue(u"warning/autolayout_unassign", false);
        open.layOut();
        QCoreApplication::processEvents();
        QCOMPARE(open.prompts.waiting(), 0);
    }

    void noCommandReachesThePlanWhileItRuns()
    {
        LayoutWindow open;
        open.window.saveUndoState(s("before"));
        neverEnd(open);
        const QByteArray before = open.plan().toPlanText({});
        const Interruption commands(60, [&](QDialog &dialog) {
            for (const char *name :
                 {"m_editUndoAction", "m_fileAutoLayoutAction", "m_fileNewAction",
                  "m_fileExitAction", "m_insertNewGuestAction"})
                open.action(name)->trigger();
            dialog.close();
        });
        open.layOut();
        QVERIFY(commands.happened());
        QCOMPARE(open.plan().seatedGuestCount(), 16);
        // They are back, and undo leads to before the layout.
        QVERIFY(open.action("m_fileNewAction")->isEnabled());
        QVERIFY(open.action("m_fileAutoLayoutAction")->isEnabled());
        QVERIFY(!open.action("m_editRedoAction")->isEnabled());
        open.run("m_editUndoAction");
        QCOMPARE(open.plan().toPlanText({}), before);
    }

    void aStopThatCameTooLateDoesNotStopTheNextLayout()
    {
        LayoutWindow open;
        open.plan().abortProcessing();
        open.layOut();
        QCOMPARE(open.prompts.texts(), QStringList());
        QCOMPARE(open.plan().seatedGuestCount(), 16);
    }

    void aTimedBackupCopiesTheFileAndNothingElse()
    {
        const PlanFolder folder;
        const QString file = folder.writePlan(s("june.kw"), 3);
        LayoutWindow open({file}, 0);
        addTable(open.plan(), "T", KWTable::Circular, 4);
        neverEnd(open);
        open.plan().announceModified();
        const Interruption save(60, [&](QDialog &dialog) {
            open.window.fileCommands()->autoSave();
            dialog.close();
        });
        open.layOut();
        QVERIFY(save.happened());
        QCOMPARE(folder.files().filter(s(".kwb")).size(), 1);
        QCOMPARE(folder.guestsIn(s("june.kw")), 3);
        QCOMPARE(open.plan().seatedGuestCount(), 3);
    }

    void anExceptionIsToldAndThePlanStandsAsItWas()
    {
        LayoutWindow open;
        const QByteArray before = open.plan().toPlanText({});
        connect(&open.plan(), &KWDocument::eventPrepareAutoLayout, &open.window,
                [] { throw std::runtime_error("broken"); });
        open.prompts.answer(s("OK"));
        open.layOut();
        QCOMPARE(open.prompts.texts(),
                 QStringList{s("Undefined exception.\nPlease contact support.")});
        QCOMPARE(open.plan().toPlanText({}), before);
        QVERIFY(!QApplication::overrideCursor());
        QVERIFY(!open.window.panes()->floorPlan()->canvas()->items().isEmpty());
    }
};

REGISTER_TEST(TestAutoLayout)
#include "tst_autolayout.moc"
