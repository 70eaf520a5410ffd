#include "gui/floorplan/kwcanvasview.h"
#include "gui/shell/kweditcommands.h"
#include "gui/shell/kwfilecommands.h"
#include "gui/shell/kwlefttab.h"
#include "support/eventlog.h"
#include "support/gui/fakeview.h"
#include "support/gui/openwindow.h"
#include "support/gui/planfolder.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QApplication>

#include <stdexcept>

namespace {

/// The plan's file as it would be saved: equal texts are equal plans.
QByteArray text(const KWDocument &plan)
{
    return plan.toPlanText({});
}

/// Ann and Bob, who love each other, at a table for four, and Cid standing.
void fill(KWDocument &plan)
{
    KWGuest *ann = addGuest(plan, {"Ann", KWGuest::Female});
    KWGuest *bob = addGuest(plan, {"Bob", KWGuest::Male});
    addGuest(plan, {"Cid", KWGuest::Male});
    KWTable *table = addTable(plan, "T", KWTable::Circular, 4);
    plan.assignGuest(ann, table, 0, true);
    plan.assignGuest(bob, table, 1, true);
    plan.setAffinity(ann, bob, KWScore::Loves, true);
}

QString menuTexts(const OpenWindow &open)
{
    const auto one = [](const QAction *action) {
        return action->text() + (action->isEnabled() ? s(" on") : s(" off"));
    };
    return one(open.action("m_editUndoAction")) + s(", ") + one(open.action("m_editRedoAction"));
}
} // namespace

class TestUndo : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void atFirstThereIsNothingToUndoOrRedo()
    {
        OpenWindow open;
        QCOMPARE(menuTexts(open), s("&Undo off, &Redo off"));
    }

    void undoAndRedoShowTheSameWordsAndOnlyInTheMenu()
    {
        OpenWindow open;
        open.window.saveUndoState(s("Unassign"));
        QCOMPARE(menuTexts(open), s("&Undo Unassign on, &Redo off"));
        open.run("m_editUndoAction");
        QCOMPARE(menuTexts(open), s("&Undo off, &Redo Unassign on"));
        open.run("m_editRedoAction");
        QCOMPARE(menuTexts(open), s("&Undo Unassign on, &Redo off"));
        QCOMPARE(open.action("m_editUndoAction")->iconText(), s("Undo"));
        QCOMPARE(open.action("m_editUndoAction")->toolTip(), s("Undo last action"));
        QCOMPARE(open.action("m_editRedoAction")->iconText(), s("Redo"));
        QCOMPARE(open.action("m_editRedoAction")->toolTip(), s("Redo last action"));
    }

    void undoRedoUndoGivesThePlanOfTheOneUndo()
    {
        OpenWindow open;
        fill(open.plan());
        const QByteArray before = text(open.plan());
        open.window.saveUndoState(s("Delete"));
        open.plan().deleteGuest(open.plan().guestAt(1), true);
        const QByteArray after = text(open.plan());
        QVERIFY(before != after);
        open.run("m_editUndoAction");
        QCOMPARE(text(open.plan()), before);
        QVERIFY(!open.action("m_editUndoAction")->isEnabled());
        open.run("m_editRedoAction");
        QCOMPARE(text(open.plan()), after);
        QVERIFY(!open.action("m_editRedoAction")->isEnabled());
        open.run("m_editUndoAction");
        QCOMPARE(text(open.plan()), before);
    }

    void aNewChangeAfterAnUndoEndsTheRedo()
    {
        OpenWindow open;
        open.window.saveUndoState(s("Lock"));
        open.run("m_editUndoAction");
        open.window.saveUndoState(s("Rotate"));
        QCOMPARE(menuTexts(open), s("&Undo Rotate on, &Redo off"));
    }

    void anUndoAfterALayoutRestoresAllSeats()
    {
        OpenWindow open;
        fillRandomly(open.plan(), {});
        open.plan().recalculateScores();
        const QString before = seating(open.plan());
        const int score = open.plan().totalScore();
        open.window.saveUndoState(s("Auto layout"));
        srand(7);
        open.plan().randomLayout();
        QVERIFY(seating(open.plan()) != before);
        open.run("m_editUndoAction");
        QCOMPARE(seating(open.plan()), before);
        QCOMPARE(open.plan().totalScore(), score);
    }

    void theScoresAfterAnUndoAreThoseOfTheRestoredPlan()
    {
        OpenWindow open;
        fill(open.plan());
        const int score = open.plan().totalScore();
        QCOMPARE(open.counts(), s("Guests: 3 Seats: 4 Score: %1").arg(score));
        open.window.saveUndoState(s("Unassign"));
        open.plan().unassignGuest(open.plan().guestAt(0), true);
        QVERIFY(open.plan().totalScore() != score);
        open.run("m_editUndoAction");
        QCOMPARE(open.plan().totalScore(), score);
        QCOMPARE(open.counts(), s("Guests: 3 Seats: 4 Score: %1").arg(score));
    }

    void theViewsHearOfItInOrder()
    {
        OpenWindow open;
        fill(open.plan());
        open.window.saveUndoState(s("Lock"));
        EventLog log(open.plan());
        open.run("m_editUndoAction");
        const QStringList events = log.take();
        QCOMPARE(events.join(u' '), s("eventClear() eventModified() eventRefresh() "
                                      "eventScoreChange(T) eventScoreChange()"));
    }

    void noObjectOfThePlanSurvivesSoASelectionCannot()
    {
        OpenWindow open;
        fill(open.plan());
        const KWGuest *selected = open.plan().guestAt(0);
        open.window.saveUndoState(s("Lock"));
        open.run("m_editUndoAction");
        QCOMPARE(open.plan().guestCount(), 3);
        QVERIFY(!open.plan().guests().contains(selected));
    }

    void savingKeepsTheUndoLevel()
    {
        OpenWindow open;
        fill(open.plan());
        open.window.saveUndoState(s("Lock"));
        open.prompts.answerFile(testHome().path(s("undo.kw")));
        open.run("m_fileSaveAction");
        QVERIFY(QFile::exists(testHome().path(s("undo.kw"))));
        QCOMPARE(menuTexts(open), s("&Undo Lock on, &Redo off"));
        QFile::remove(testHome().path(s("undo.kw")));
    }

    void aPlanSavedAsAnotherKeepsItsNewFileThroughUndoAndRedo()
    {
        PlanFolder folder;
        OpenWindow open({folder.writePlan(s("one.kw"))});
        open.window.saveUndoState(s("Lock"));
        open.prompts.answerFile(folder.path(s("two.kw")));
        open.run("m_fileSaveAsAction");
        QCOMPARE(open.window.windowTitle(), s("Ambrelune - two.kw"));
        for (const char *action : {"m_editUndoAction", "m_editRedoAction"}) {
            open.run(action);
            QCOMPARE(open.plan().fileName(), folder.path(s("two.kw")));
            QCOMPARE(open.window.windowTitle(), s("Ambrelune - two.kw"));
        }
        // No undo makes a save write over the first file.
        open.run("m_editUndoAction");
        addGuest(open.plan(), {"Ann"});
        open.run("m_fileSaveAction");
        QCOMPARE(folder.guestsIn(s("one.kw")), 1);
        QCOMPARE(folder.guestsIn(s("two.kw")), 2);
    }

    void aRedoGoesToTheNewFileToo()
    {
        const PlanFolder folder;
        OpenWindow open({folder.writePlan(s("one.kw"))});
        open.window.saveUndoState(s("Lock"));
        addGuest(open.plan(), {"Ann"});
        open.run("m_editUndoAction");
        open.prompts.answerFile(folder.path(s("two.kw")));
        open.run("m_fileSaveAsAction");
        open.run("m_editRedoAction");
        QCOMPARE(open.plan().guestCount(), 2);
        QCOMPARE(open.plan().fileName(), folder.path(s("two.kw")));
        QVERIFY(open.plan().isModified());
    }

    void aNewPlanAndAnOpenedOneEndTheRedoToo_data()
    {
        QTest::addColumn<bool>("opens");
        QTest::newRow("new") << false;
        QTest::newRow("open") << true;
    }

    void aNewPlanAndAnOpenedOneEndTheRedoToo()
    {
        QFETCH(bool, opens);
        const PlanFolder folder;
        OpenWindow open;
        open.window.saveUndoState(s("Lock"));
        open.run("m_editUndoAction");
        QCOMPARE(menuTexts(open), s("&Undo off, &Redo Lock on"));
        if (opens)
            QVERIFY(open.window.fileCommands()->openPlan(folder.writePlan(s("one.kw"))));
        else
            open.run("m_fileNewAction");
        QCOMPARE(menuTexts(open), s("&Undo off, &Redo off"));
    }

    void theFloorPlanShowsAllTablesOfThePlanThatCameBack()
    {
        OpenWindow open;
        fill(open.plan());
        KWCanvasView *view = open.window.panes()->floorPlan();
        view->zoomCentre();
        const double fitted = view->zoom();
        open.window.saveUndoState(s("Lock"));
        for (const char *action : {"m_editUndoAction", "m_editRedoAction"}) {
            view->setZoom(0.5);
            QVERIFY(view->zoom() != fitted);
            open.run(action);
            QCOMPARE(view->zoom(), fitted);
        }
    }

    void theCursorTellsOfTheWait()
    {
        OpenWindow open;
        fill(open.plan());
        open.window.saveUndoState(s("Lock"));
        bool waits = false;
        connect(&open.plan(), &KWDocument::eventClear, &open.window, [&waits] {
            const QCursor *cursor = QApplication::overrideCursor();
            waits = cursor && cursor->shape() == Qt::WaitCursor;
        });
        open.run("m_editUndoAction");
        QVERIFY(waits);
        QVERIFY(!QApplication::overrideCursor());
    }

    void aChangeThatThrowsBringsTheUndoPointBack()
    {
        OpenWindow open;
        auto *edit = open.window.findChild<KWEditCommands *>();
        open.window.saveUndoState(s("Lock"));
        try {
            edit->change(s("Rotate"), [] { throw std::runtime_error("broken"); });
            QFAIL("nothing was thrown");
        } catch (const std::runtime_error &) {
        }
        QCOMPARE(menuTexts(open), s("&Undo Lock on, &Redo off"));
        edit->change(s("Rotate"), [&open] { addGuest(open.plan(), {"Ann"}); });
        QCOMPARE(menuTexts(open), s("&Undo Rotate on, &Redo off"));
    }

    void anUndoBehindAFailedOpenBringsThePlansNameBack()
    {
        PlanFolder folder;
        OpenWindow open({folder.writePlan(s("one.kw"))});
        open.window.saveUndoState(s("Lock"));
        open.prompts.answer(s("&OK"));
        open.window.fileCommands()->openPlan(s("/no/such/plan.kw"));
        QVERIFY(open.action("m_openRecentAction")->isEnabled());
        open.run("m_editUndoAction");
        QCOMPARE(open.window.windowTitle(), s("Ambrelune - one.kw"));
        QVERIFY(!open.action("m_openRecentAction")->isEnabled());
    }

    void whatIsUndoneAfterASaveIsAskedAboutBeforeItIsLost()
    {
        PlanFolder folder;
        OpenWindow open({folder.writePlan(s("one.kw"))});
        QVERIFY(!open.plan().isModified());
        open.window.saveUndoState(s("Accept"));
        open.plan().setGuestAccepted(open.plan().guestAt(0), true);
        open.run("m_fileSaveAction");
        QVERIFY(!open.plan().isModified());
        open.run("m_editUndoAction");
        QVERIFY(open.plan().isModified());
        open.run("m_fileSaveAction");
        open.run("m_editRedoAction");
        QVERIFY(open.plan().isModified());
    }

    void aPlanWithoutWishesIsUnmodifiedAgainAfterAnUndo()
    {
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        open.plan().setModified(false);
        open.window.saveUndoState(s("Accept"));
        open.plan().setGuestAccepted(open.plan().guestAt(0), true);
        QVERIFY(open.plan().isModified());
        open.run("m_editUndoAction");
        QVERIFY(!open.plan().isModified());
    }

    void undoBringsTheActionsOfTheActiveViewUpToDate()
    {
        OpenWindow open;
        FakeView *view = open.addView(open.window.panes()->leftTab(), s("Guests"));
        open.window.setActiveView(view);
        open.window.saveUndoState(s("Lock"));
        view->answers.canDelete = true;
        open.run("m_editUndoAction");
        QVERIFY(open.action("m_editDeleteAction")->isEnabled());
        QVERIFY(!QApplication::overrideCursor());
    }
};

REGISTER_TEST(TestUndo)
#include "tst_undo.moc"
