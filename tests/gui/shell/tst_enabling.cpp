#include "gui/shell/kwfilecommands.h"
#include "gui/shell/kwlefttab.h"
#include "gui/shell/kwstatusbar.h"
#include "gui/shell/kwtoptab.h"
#include "support/gui/fakeview.h"
#include "support/gui/openwindow.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QActionGroup>
#include <QMenu>

Q_DECLARE_METATYPE(FakeView::Answers)

class TestEnabling : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void anActionIsOnWhereTheActiveViewCan_data()
    {
        QTest::addColumn<FakeView::Answers>("answers");
        QTest::addColumn<QByteArray>("on");
        using A = FakeView::Answers;
        QTest::newRow("nothing") << A{} << QByteArray();
        QTest::newRow("rotate") << A{.canRotate = true} << QByteArray("m_editRotateTableAction");
        QTest::newRow("delete") << A{.canDelete = true} << QByteArray("m_editDeleteAction");
        QTest::newRow("properties")
            << A{.canEditProperties = true} << QByteArray("m_editPropertiesAction");
        QTest::newRow("unassign") << A{.canUnassign = true}
                                  << QByteArray("m_editUnassignSeatAction");
        QTest::newRow("lock") << A{.canSetLocked = true} << QByteArray("m_editLockAction");
        QTest::newRow("accepted") << A{.canSetAccepted = true}
                                  << QByteArray("m_editAcceptedAction");
        // Of the top pane's view, not of the active one.
        QTest::newRow("print") << A{.canPrint = true} << QByteArray();
        QTest::newRow("copy") << A{.canCopy = true} << QByteArray();
    }

    void anActionIsOnWhereTheActiveViewCan()
    {
        QFETCH(FakeView::Answers, answers);
        QFETCH(QByteArray, on);
        OpenWindow open;
        open.removeTopPages();
        addGuest(open.plan(), {"Ann"});
        FakeView *view = open.addView(open.window.panes()->leftTab(), s("Guests"));
        view->answers = answers;
        open.window.setActiveView(view);
        QCOMPARE(enabledEditActions(open), on);
        open.window.setActiveView(nullptr);
        QCOMPARE(enabledEditActions(open), QByteArray());
    }

    void theProximityCommandsFollowTheViewTogether()
    {
        OpenWindow open;
        open.removeTopPages();
        FakeView *view = open.addView(open.window.panes()->leftTab(), s("Guests"));
        view->answers.canSetAffinity = true;
        open.window.setActiveView(view);
        auto *group = open.window.findChild<QActionGroup *>(s("m_editSetAffinityActionGroup"));
        auto *menu = open.window.findChild<QMenu *>(s("m_proximityMenu"));
        QVERIFY(group->isEnabled() && menu->isEnabled());
        for (const QAction *action : group->actions())
            QVERIFY(action->isEnabled());
        open.window.setActiveView(nullptr);
        QVERIFY(!group->isEnabled() && !menu->isEnabled());
    }

    void theCheckMarksFollowTheViewWithoutRunningTheirCommands()
    {
        OpenWindow open;
        open.removeTopPages();
        FakeView *view = open.addView(open.window.panes()->leftTab(), s("Guests"));
        view->answers = {
            .canSetLocked = true, .isLocked = true, .canSetAccepted = true, .hasAccepted = true};
        open.window.setActiveView(view);
        QVERIFY(open.action("m_editLockAction")->isChecked());
        QVERIFY(open.action("m_editAcceptedAction")->isChecked());
        open.window.setActiveView(nullptr);
        QVERIFY(!open.action("m_editLockAction")->isChecked());
        QVERIFY(!open.action("m_editAcceptedAction")->isChecked());
        QCOMPARE(view->calls, QStringList());
        QVERIFY(!open.action("m_editUndoAction")->isEnabled());
    }

    void printAndCopyBearTheNameOfTheTopView()
    {
        OpenWindow open;
        open.removeTopPages();
        addGuest(open.plan(), {"Ann"});
        FakeView *view = open.addView(open.window.panes()->topTab(), s("Table chart"));
        view->answers = {.canPrint = true, .canCopy = true};
        open.window.updatePrintAction();
        open.window.updateCopyAction();
        QCOMPARE(printAndCopy(open), s("Print Table chart... on, Copy Table chart on"));
    }

    void theSchematicCanBeNeitherPrintedNorCopied()
    {
        OpenWindow open;
        open.removeTopPages();
        addGuest(open.plan(), {"Ann"});
        FakeView *chart = open.addView(open.window.panes()->topTab(), s("Table chart"));
        chart->answers = {.canPrint = true, .canCopy = true};
        FakeView *schematic = open.addView(open.window.panes()->topTab(), s("Schematic"));
        open.window.panes()->topTab()->setCurrentWidget(schematic);
        QCOMPARE(printAndCopy(open), s("Print... off, Copy off"));
        open.window.panes()->topTab()->setCurrentWidget(chart);
        QCOMPARE(printAndCopy(open), s("Print Table chart... on, Copy Table chart on"));
    }

    void theStatisticsCanBePrintedButNotCopied()
    {
        OpenWindow open;
        open.removeTopPages();
        addGuest(open.plan(), {"Ann"});
        FakeView *view = open.addView(open.window.panes()->topTab(), s("Statistics"));
        view->answers = {.canPrint = true};
        open.window.updatePrintAction();
        open.window.updateCopyAction();
        QCOMPARE(printAndCopy(open), s("Print Statistics... on, Copy off"));
    }

    void anEmptyPlanIsNeitherPrintedNorCopied()
    {
        OpenWindow open;
        open.removeTopPages();
        FakeView *view = open.addView(open.window.panes()->topTab(), s("Floor plan"));
        view->answers = {.canPrint = true, .canCopy = true};
        open.plan().announceModified();
        QCOMPARE(printAndCopy(open), s("Print Floor plan... off, Copy Floor plan off"));
        // A table is enough; no guest is needed.
        addTable(open.plan(), "T", KWTable::Circular, 4);
        QCOMPARE(printAndCopy(open), s("Print Floor plan... on, Copy Floor plan on"));
    }

    void withoutATopViewPrintAndCopyAreOff()
    {
        OpenWindow open;
        open.removeTopPages();
        addGuest(open.plan(), {"Ann"});
        QCOMPARE(printAndCopy(open), s("Print... off, Copy off"));
    }

    void theStatusBarCountsGuestsSeatsAndScore()
    {
        OpenWindow open;
        open.removeTopPages();
        QCOMPARE(open.counts(), s("Guests: 0 Seats: 0 Score: 0"));
        KWGuest *ann = addGuest(open.plan(), {"Ann"});
        KWTable *table = addTable(open.plan(), "T", KWTable::Circular, 4);
        QCOMPARE(open.counts(), s("Guests: 1 Seats: 4 Score: 0"));
        open.plan().assignGuest(ann, table, 0, true);
        QCOMPARE(open.counts(), s("Guests: 1 Seats: 4 Score: -9"));
    }

    void everyChangeOfThePlanCallsForABackup()
    {
        OpenWindow open;
        open.removeTopPages();
        QVERIFY(!open.window.fileCommands()->backups()->changedSinceBackup());
        addGuest(open.plan(), {"Ann"});
        QVERIFY(open.window.fileCommands()->backups()->changedSinceBackup());
    }

private:
    /// The actions of the Edit menu's commands on a view that are enabled.
    static QByteArray enabledEditActions(const OpenWindow &open)
    {
        QByteArrayList enabled;
        for (const char *name :
             {"m_editRotateTableAction", "m_editDeleteAction", "m_editPropertiesAction",
              "m_editUnassignSeatAction", "m_editLockAction", "m_editAcceptedAction",
              "m_editSetAffinityLovesAction", "m_filePrintAction", "m_editCopyAction"}) {
            if (open.action(name)->isEnabled())
                enabled.append(name);
        }
        return enabled.join(' ');
    }

    static QString printAndCopy(const OpenWindow &open)
    {
        const auto one = [](const QAction *action) {
            return action->text() + (action->isEnabled() ? s(" on") : s(" off"));
        };
        return one(open.action("m_filePrintAction")) + s(", ") +
               one(open.action("m_editCopyAction"));
    }
};

REGISTER_TEST(TestEnabling)
#include "tst_enabling.moc"
