#include "gui/dialogs/kwrecentlyopeneddlgimpl.h"
#include "gui/floorplan/kwcanvasview.h"
#include "gui/shell/kwfilecommands.h"
#include "gui/shell/kwstatusbar.h"
#include "support/gui/modaluser.h"
#include "support/gui/openwindow.h"
#include "support/gui/planfolder.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QProgressBar>

// Open, open recent and the list of recent plans.

namespace {

void openPlan(OpenWindow &open, const QString &path)
{
    open.prompts.answerFile(path);
    open.run("m_fileOpenAction");
}

QString onlyMessage(const OpenWindow &open)
{
    if (open.prompts.messages.size() != 1)
        return s("%1 messages").arg(open.prompts.messages.size());
    const KWMessage &message = open.prompts.messages.first();
    return s(message.icon == KWMessage::Critical ? "error: " : "warning: ") + message.text +
           s(" [") + message.buttons.join(u'|') + u']';
}

QString otherVersionQuestion()
{
    return s("warning: This plan was created with a different version of the software.\n"
             "Some information may not be readable.\n"
             "Information may be lost if you overwrite the existing plan.\n"
             "It is recommended that you save it to a new plan file before continuing. "
             "[&Save as|&Continue]");
}
} // namespace

class TestFileCommandsOpen : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void openAsksForPlansAndBackupsInThePlanDirectory()
    {
        const PlanFolder folder;
        OpenWindow open;
        openPlan(open, folder.writePlan(s("one.kw")));
        openPlan(open, QString());
        QCOMPARE(open.prompts.files.size(), 2);
        const KWFileQuestion &question = open.prompts.files.last();
        QCOMPARE(question.mode, KWFileQuestion::Open);
        QCOMPARE(question.filters, s("Ambrelune (*.kw);;Ambrelune backup (*.kwb)"));
        QCOMPARE(question.startPath, open.window.fileCommands()->planDirPath());
    }

    void anOpenedPlanIsThereAndNamed()
    {
        PlanFolder folder;
        OpenWindow open;
        open.window.saveUndoState(s("Lock"));
        QSignalSpy refreshed(&open.plan(), &KWDocument::eventRefresh);
        openPlan(open, folder.writePlan(s("one.kw"), 4));
        QCOMPARE(open.plan().guestCount(), 4);
        QVERIFY(!open.plan().isModified());
        QCOMPARE(open.window.windowTitle(), s("Ambrelune - one.kw"));
        QCOMPARE(open.counts(), s("Guests: 4 Seats: 0 Score: 0"));
        QCOMPARE(refreshed.size(), 1);
        QVERIFY(!open.action("m_editUndoAction")->isEnabled());
        QVERIFY(!open.window.fileCommands()->backups()->changedSinceBackup());
        QCOMPARE(open.window.statusBar()->currentMessage(),
                 s("Loading ") + folder.path(s("one.kw")));
        QVERIFY(!open.window.findChild<QProgressBar *>()->isVisible());
        QVERIFY(!QApplication::overrideCursor());
        QVERIFY(open.prompts.messages.isEmpty());
        // The next file dialog starts there.
        QCOMPARE(open.window.fileCommands()->planDirPath(), folder.path(QString()) + u'/');
    }

    void openFollowsTheAnswerAboutChanges_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("saved");
        QTest::addColumn<int>("opened");
        QTest::newRow("save") << s("&Save") << 1 << 4;
        QTest::newRow("don't save") << s("&Don't save") << 2 << 4;
        QTest::newRow("cancel") << s("&Cancel") << 2 << 1;
    }

    void openFollowsTheAnswerAboutChanges()
    {
        QFETCH(QString, answer);
        QFETCH(int, saved);
        QFETCH(int, opened);
        PlanFolder folder;
        const QString other = folder.writePlan(s("other.kw"), 4);
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        open.plan().setFileName(folder.writePlan(s("mine.kw"), 2));
        open.prompts.answer(answer);
        if (opened == 4)
            open.prompts.answerFile(other);
        open.run("m_fileOpenAction");
        QCOMPARE(onlyMessage(open),
                 s("warning: Save changes to this plan? [&Save|&Don't save|&Cancel]"));
        QCOMPARE(folder.guestsIn(s("mine.kw")), saved);
        QCOMPARE(open.plan().guestCount(), opened);
        QCOMPARE(open.prompts.waiting(), 0);
    }

    void openGoesOnWhateverComesOfTheSave()
    {
        PlanFolder folder;
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        open.prompts.answer(s("&Save"));
        open.prompts.answerFile(QString());
        open.prompts.answerFile(folder.writePlan(s("other.kw"), 4));
        open.run("m_fileOpenAction");
        QCOMPARE(open.plan().guestCount(), 4);
    }

    void aFileThatIsNoPlanLeavesAnEmptyUnnamedPlan()
    {
        PlanFolder folder;
        OpenWindow open({folder.writePlan(s("one.kw"))});
        const QString path = folder.writeFile(s("bad.kw"), "<html/>");
        open.prompts.answer(s("&OK"));
        open.window.fileCommands()->openPlan(path);
        QCOMPARE(onlyMessage(open), s("error: File '%1' incorrectly formatted and cannot be read. "
                                      "[&OK]")
                                        .arg(path));
        QVERIFY(open.plan().isEmpty());
        QVERIFY(open.plan().fileName().isEmpty());
        QCOMPARE(open.window.windowTitle(), s("Ambrelune - <unsaved>"));
        QCOMPARE(open.window.fileCommands()->recentPlans().paths(),
                 QStringList{folder.path(s("one.kw"))});
        QVERIFY(!QApplication::overrideCursor());
    }

    void aFileThatIsNotThereIsReported()
    {
        OpenWindow open;
        open.prompts.answer(s("&OK"));
        open.window.fileCommands()->openPlan(s("/no/such/plan.kw"));
        QCOMPARE(onlyMessage(open), s("error: Unable to open file '/no/such/plan.kw' [&OK]"));
        QVERIFY(!QApplication::overrideCursor());
    }

    void whatIsNoFileIsNotReadAsItMightNeverEnd()
    {
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        open.prompts.answer(s("&OK"));
        open.window.fileCommands()->openPlan(s("/dev/zero"));
        QCOMPARE(onlyMessage(open), s("error: Unable to open file '/dev/zero' [&OK]"));
        QVERIFY(open.plan().isEmpty());
    }

    void aNameMayLookLikeTheMarkOfAModifiedWindow()
    {
        PlanFolder folder;
        const OpenWindow open({folder.writePlan(s("a[*]b.kw"))});
        QCOMPARE(open.window.windowTitle(), s("Ambrelune - a[*][*]b.kw"));
    }

    void theFloorPlanPaintsNothingWhileAPlanIsLoaded()
    {
        PlanFolder folder;
        OpenWindow open;
        const KWCanvasView *view = open.window.panes()->floorPlan();
        bool painted = true;
        connect(&open.plan(), &KWDocument::eventClear, &open.window,
                [&] { painted = view->updatesEnabled(); });
        openPlan(open, folder.writePlan(s("one.kw")));
        QVERIFY(!painted);
        QVERIFY(view->updatesEnabled());
        open.prompts.answer(s("&OK"));
        open.window.fileCommands()->openPlan(s("/no/such/plan.kw"));
        QVERIFY(view->updatesEnabled());
    }

    void aPlanOfAnotherVersionCanBeSavedElsewhere_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::newRow("save as") << s("&Save as");
        QTest::newRow("continue") << s("&Continue");
    }

    void aPlanOfAnotherVersionCanBeSavedElsewhere()
    {
        QFETCH(QString, answer);
        PlanFolder folder;
        const QString path = otherVersion(folder, s("old.kw"));
        OpenWindow open;
        open.prompts.answerFile(path);
        open.prompts.answer(answer);
        const bool saves = answer == u"&Save as";
        if (saves)
            open.prompts.answerFile(folder.path(s("new.kw")));
        open.run("m_fileOpenAction");
        QCOMPARE(onlyMessage(open), otherVersionQuestion());
        QCOMPARE(open.plan().guestCount(), 3);
        QCOMPARE(open.plan().fileName(), folder.path(saves ? s("new.kw") : s("old.kw")));
        QCOMPARE(open.prompts.waiting(), 0);
    }

    void howThePanesShowThePlanTravelsThroughOpenAndSave()
    {
        PlanFolder folder;
        KWDocument plan;
        addGuest(plan, {"Ann"});
        KWViewSettings settings;
        settings.table_chart_cols = 3;
        settings.guests_show_notes = false;
        QCOMPARE(plan.save(folder.path(s("one.kw")), settings), int(KWDocument::FileOk));
        OpenWindow open({folder.path(s("one.kw"))});
        open.prompts.answerFile(folder.path(s("two.kw")));
        open.run("m_fileSaveAsAction");
        KWViewSettings loaded;
        bool otherVersion = false;
        QCOMPARE(plan.load(folder.path(s("two.kw")), loaded, otherVersion),
                 int(KWDocument::FileOk));
        QCOMPARE(loaded.table_chart_cols, 3);
        QVERIFY(!loaded.guests_show_notes);
    }

    void thePanesAreAsThePlanHasThemWhenItIsShown()
    {
        const PlanFolder folder;
        KWDocument plan;
        addGuest(plan, {"Ann"});
        QCOMPARE(plan.save(folder.path(s("one.kw")), {.guests_show_notes = false}),
                 int(KWDocument::FileOk));
        OpenWindow open;
        bool shown = true;
        connect(&open.plan(), &KWDocument::eventRefresh, &open.window,
                [&] { shown = open.window.panes()->viewSettings().guests_show_notes; });
        QVERIFY(open.window.fileCommands()->openPlan(folder.path(s("one.kw"))));
        QVERIFY(!shown);
    }

    void anOpenedPlanIsShownWholeAndItsRoomAlsoBehindAFailure()
    {
        const PlanFolder folder;
        KWDocument plan;
        plan.setRoomXSize(9);
        plan.setRoomYSize(7);
        addTable(plan, "T", KWTable::Circular, 8);
        QCOMPARE(plan.save(folder.path(s("one.kw")), {}), int(KWDocument::FileOk));
        OpenWindow open;
        KWCanvasView *view = open.window.panes()->floorPlan();
        const QSize empty = view->canvas()->canvasSize();
        QVERIFY(open.window.fileCommands()->openPlan(folder.path(s("one.kw"))));
        const double zoom = view->zoom();
        QVERIFY(view->canvas()->canvasSize() != empty);
        view->setZoom(0.5);
        view->zoomCentre();
        QCOMPARE(zoom, view->zoom());
        view->setZoom(0.5);
        open.prompts.answer(s("&OK"));
        QVERIFY(!open.window.fileCommands()->openPlan(folder.path(s("two.kw"))));
        QCOMPARE(view->canvas()->canvasSize(), empty);
        const double behind = view->zoom();
        view->setZoom(0.5);
        view->zoomCentre();
        QCOMPARE(behind, view->zoom());
    }

    void fileDialogsStartWhereTheLastPlanWas_data()
    {
        QTest::addColumn<QString>("how");
        for (const char *how :
             {"command line", "open", "open that fails", "recent", "save", "save that fails"})
            QTest::newRow(how) << s(how);
    }

    void fileDialogsStartWhereTheLastPlanWas()
    {
        QFETCH(QString, how);
        const PlanFolder folder;
        const QString path = folder.writePlan(s("one.kw"));
        QStringList arguments;
        if (how == u"command line")
            arguments.append(path);
        if (how == u"recent")
            KWUserSettings().setMostRecentFiles({path});
        OpenWindow open(arguments);
        if (how == u"open")
            openPlan(open, path);
        if (how == u"open that fails") {
            open.prompts.answerFile(folder.path(s("none.kw")));
            open.prompts.answer(s("&OK"));
            open.run("m_fileOpenAction");
        }
        if (how == u"recent") {
            ModalUser user;
            user.onDialog<KWRecentlyOpenedDlgImpl>([](QDialog &dialog) { dialog.accept(); });
            open.run("m_openRecentAction");
        }
        if (how == u"save") {
            open.plan().setFileName(path);
            open.run("m_fileSaveAction");
        }
        if (how == u"save that fails") {
            QVERIFY(QDir(folder.path(QString())).mkdir(s("two.kw")));
            open.prompts.answerFile(folder.path(s("two.kw")));
            // To write over it, and that it cannot be.
            open.prompts.answer(s("&OK"));
            open.prompts.answer(s("&OK"));
            open.run("m_fileSaveAsAction");
        }
        QCOMPARE(open.window.fileCommands()->planDirPath(), folder.path(QString()) + u'/');
        QCOMPARE(open.prompts.waiting(), 0);
    }

    void openingARecentPlanAsksNothingAboutChanges()
    {
        PlanFolder folder;
        KWUserSettings().setMostRecentFiles({folder.writePlan(s("one.kw"), 2)});
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        ModalUser user;
        user.onDialog<KWRecentlyOpenedDlgImpl>([](QDialog &dialog) { dialog.accept(); });
        open.run("m_openRecentAction");
        QCOMPARE(user.waiting(), 0);
        QCOMPARE(open.plan().guestCount(), 2);
        QVERIFY(open.prompts.messages.isEmpty());
    }

    void leavingTheRecentPlansKeepsThePlan()
    {
        PlanFolder folder;
        KWUserSettings().setMostRecentFiles({folder.writePlan(s("one.kw"), 2)});
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        ModalUser user;
        user.onDialog<KWRecentlyOpenedDlgImpl>([](QDialog &dialog) { dialog.reject(); });
        open.run("m_openRecentAction");
        QCOMPARE(user.waiting(), 0);
        QCOMPARE(open.plan().guestCount(), 1);
    }

    void theListHoldsTheLastFiveOfSixPlansNewestFirst()
    {
        PlanFolder folder;
        OpenWindow open;
        QStringList expected;
        for (int i = 1; i <= 6; ++i) {
            const QString path = folder.writePlan(s("plan%1.kw").arg(i));
            openPlan(open, path);
            expected.prepend(path);
        }
        expected.removeLast();
        QCOMPARE(open.window.fileCommands()->recentPlans().paths(), expected);
        QCOMPARE(KWUserSettings().mostRecentFiles(), expected);
        openPlan(open, expected.at(3));
        expected.move(3, 0);
        QCOMPARE(open.window.fileCommands()->recentPlans().paths(), expected);
        QVERIFY(open.prompts.messages.isEmpty());
    }

    void aPathIsListedAsAbsoluteWhateverItWasOpenedAs()
    {
        PlanFolder folder;
        folder.writePlan(s("one.kw"));
        OpenWindow open;
        QVERIFY(QDir::setCurrent(folder.path(QString())));
        open.window.fileCommands()->openPlan(s("one.kw"));
        open.window.fileCommands()->openPlan(folder.path(s("one.kw")));
        QCOMPARE(open.window.fileCommands()->recentPlans().paths(),
                 QStringList{folder.path(s("one.kw"))});
        QVERIFY(QDir::setCurrent(testHome().path(QString())));
    }

    void aBackupOpensButStaysOutOfTheList()
    {
        PlanFolder folder;
        OpenWindow open;
        openPlan(open, folder.writePlan(s("one_2026-06-13T14-30-05.KWB"), 2));
        QCOMPARE(open.plan().guestCount(), 2);
        QCOMPARE(open.window.fileCommands()->recentPlans().paths(), QStringList());
    }

    void openRecentIsOffWhenTheOnlyEntryIsTheOpenPlan()
    {
        PlanFolder folder;
        OpenWindow open;
        openPlan(open, folder.writePlan(s("one.kw")));
        QVERIFY(!open.action("m_openRecentAction")->isEnabled());
        openPlan(open, folder.writePlan(s("two.kw")));
        QVERIFY(open.action("m_openRecentAction")->isEnabled());
    }

    void openRecentIsOnWhileABackupOfTheOnlyEntryIsOpen()
    {
        PlanFolder folder;
        OpenWindow open;
        openPlan(open, folder.writePlan(s("one.kw")));
        openPlan(open, folder.writePlan(s("one.kwb")));
        QVERIFY(open.action("m_openRecentAction")->isEnabled());
    }

    void openRecentIsOnFromTheStartWhenThereIsAPlan()
    {
        KWUserSettings().setMostRecentFiles({s("/some/plan.kw")});
        OpenWindow open;
        QVERIFY(open.action("m_openRecentAction")->isEnabled());
    }

private:
    /// A plan as another version of the program writes it.
    static QString otherVersion(const PlanFolder &folder, const QString &name)
    {
        folder.writePlan(name, 3);
        QFile file(folder.path(name));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QByteArray text = file.readAll();
        file.close();
        text.replace("<version value=\"2\"/>", "<version value=\"3\"/>");
        return folder.writeFile(name, text);
    }
};

REGISTER_TEST(TestFileCommandsOpen)
#include "tst_filecommands_open.moc"
