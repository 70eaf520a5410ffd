#include "gui/floorplan/kwcanvasview.h"
#include "gui/shell/kwfilecommands.h"
#include "gui/shell/kwlefttab.h"
#include "support/gui/fakeview.h"
#include "support/gui/openwindow.h"
#include "support/gui/planfolder.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QCloseEvent>

// New, the question about changes, and closing the window.

namespace {

/// A window with a modified plan of one guest, and something to undo.
struct Modified
{
    Modified()
    {
        open.window.saveUndoState(s("Lock"));
        addGuest(open.plan(), {"Ann"});
    }

    bool canUndo() const { return open.action("m_editUndoAction")->isEnabled(); }

    PlanFolder folder;
    OpenWindow open;
};

void expectSaveQuestion(const OpenWindow &open)
{
    QCOMPARE(open.prompts.messages.size(), 1);
    const KWMessage &message = open.prompts.messages.first();
    QCOMPARE(message.icon, KWMessage::Warning);
    QCOMPARE(message.caption, s("Ambrelune"));
    QCOMPARE(message.text, s("Save changes to this plan?"));
    QCOMPARE(message.buttons, QStringList({s("&Save"), s("&Don't save"), s("&Cancel")}));
    QCOMPARE(message.defaultButton, 0);
}
} // namespace

class TestFileCommandsNew : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void anUnmodifiedPlanIsClearedWithoutAQuestion()
    {
        Modified modified;
        modified.open.plan().setModified(false);
        FakeView *view =
            modified.open.addView(modified.open.window.panes()->leftTab(), s("Guests"));
        modified.open.window.setActiveView(view);
        modified.open.run("m_fileNewAction");
        QVERIFY(modified.open.plan().isEmpty());
        QVERIFY(modified.open.prompts.messages.isEmpty());
        QVERIFY(!modified.open.window.activeView());
        QVERIFY(!modified.canUndo());
        QVERIFY(!QApplication::overrideCursor());
    }

    void theFloorPlanShowsTheNewRoom()
    {
        OpenWindow open;
        KWCanvasView *view = open.window.panes()->floorPlan();
        open.run("m_fileNewAction");
        const QSize room = view->canvas()->canvasSize();
        const double zoom = view->zoom();
        open.plan().setRoomXSize(9);
        open.plan().setRoomYSize(7);
        view->canvas()->resizeToRoom();
        QVERIFY(view->canvas()->canvasSize() != room);
        view->setZoom(0.5);
        open.plan().setModified(false);
        open.run("m_fileNewAction");
        QCOMPARE(view->canvas()->canvasSize(), room);
        QCOMPARE(view->zoom(), zoom);
    }

    void notSavingClearsThePlan()
    {
        Modified modified;
        modified.open.prompts.answer(s("&Don't save"));
        modified.open.run("m_fileNewAction");
        expectSaveQuestion(modified.open);
        QVERIFY(modified.open.plan().isEmpty());
        QVERIFY(!modified.open.plan().isModified());
    }

    void cancellingKeepsThePlanButNotItsUndoLevel()
    {
        Modified modified;
        modified.open.prompts.answer(s("&Cancel"));
        modified.open.run("m_fileNewAction");
        expectSaveQuestion(modified.open);
        QCOMPARE(modified.open.plan().guestCount(), 1);
        QVERIFY(modified.open.plan().isModified());
        QVERIFY(!modified.canUndo());
        QVERIFY(!modified.open.window.fileCommands()->backups()->changedSinceBackup());
    }

    void savingSavesAndThenClears()
    {
        Modified modified;
        modified.open.prompts.answer(s("&Save"));
        modified.open.prompts.answerFile(modified.folder.path(s("new.kw")));
        modified.open.run("m_fileNewAction");
        QCOMPARE(modified.folder.guestsIn(s("new.kw")), 1);
        QVERIFY(modified.open.plan().isEmpty());
        QVERIFY(modified.open.plan().fileName().isEmpty());
        QCOMPARE(modified.open.window.windowTitle(), s("Ambrelune - <unsaved>"));
    }

    void savingAnUnnamedPlanAndCancellingTheDialogClearsItAllTheSame()
    {
        Modified modified;
        modified.open.prompts.answer(s("&Save"));
        modified.open.prompts.answerFile(QString());
        modified.open.run("m_fileNewAction");
        QCOMPARE(modified.open.prompts.files.size(), 1);
        QVERIFY(modified.open.plan().isEmpty());
    }

    void aSaveThatFailsDoesNotKeepThePlanEither()
    {
        Modified modified;
        modified.open.plan().setFileName(modified.folder.path(s("no/such/folder.kw")));
        modified.open.prompts.answer(s("&Save"));
        modified.open.prompts.answer(s("&OK"));
        modified.open.run("m_fileNewAction");
        QCOMPARE(modified.open.prompts.messages.size(), 2);
        QVERIFY(modified.open.plan().isEmpty());
    }

    void aNewPlanLeavesTheRecentPlansReachable()
    {
        PlanFolder folder;
        OpenWindow open({folder.writePlan(s("one.kw"))});
        QVERIFY(!open.action("m_openRecentAction")->isEnabled());
        open.run("m_fileNewAction");
        QVERIFY(open.action("m_openRecentAction")->isEnabled());
    }

    void closingAnUnmodifiedPlanAsksNothing()
    {
        OpenWindow open;
        QVERIFY(open.window.close());
        QVERIFY(open.prompts.messages.isEmpty());
    }

    void closingFollowsTheAnswer_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<bool>("saves");
        QTest::newRow("save") << s("&Save") << true << true;
        QTest::newRow("don't save") << s("&Don't save") << true << false;
        QTest::newRow("cancel") << s("&Cancel") << false << false;
    }

    void closingFollowsTheAnswer()
    {
        QFETCH(QString, answer);
        QFETCH(bool, closes);
        QFETCH(bool, saves);
        Modified modified;
        const QString path = modified.folder.writePlan(s("plan.kw"), 3);
        modified.open.plan().setFileName(path);
        KWUserSettings().setAppearanceMaximised(true);
        modified.open.prompts.answer(answer);
        QCOMPARE(modified.open.window.close(), closes);
        expectSaveQuestion(modified.open);
        QCOMPARE(modified.folder.guestsIn(s("plan.kw")), saves ? 1 : 3);
        // Noted at every attempt to close, also at one that is refused.
        QVERIFY(!KWUserSettings().appearanceMaximised());
    }

    void closingGoesOnWhateverComesOfTheSave()
    {
        Modified modified;
        modified.open.prompts.answer(s("&Save"));
        modified.open.prompts.answerFile(QString());
        QVERIFY(modified.open.window.close());
        QVERIFY(modified.open.plan().isModified());
    }

    void closingNotesThatTheWindowIsMaximised()
    {
        OpenWindow open;
        open.window.showMaximized();
        QVERIFY(open.window.close());
        QVERIFY(KWUserSettings().appearanceMaximised());
    }

    void exitClosesTheWindow()
    {
        OpenWindow open;
        open.run("m_fileExitAction");
        QVERIFY(!open.window.isVisible());
    }
};

REGISTER_TEST(TestFileCommandsNew)
#include "tst_filecommands_new.moc"
