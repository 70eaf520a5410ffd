#include "gui/panes/kwguestlistviewitem.h"
#include "gui/panes/kwguestslistview.h"
#include "gui/shell/kwlefttab.h"
#include "gui/shell/kwstatusbar.h"
#include "support/gui/openwindow.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

// The five proximity commands: what they show of the selected guests, and what they tell.

namespace {

const char *const names[] = {"Loves", "Likes", "Neutral", "Dislikes", "Hates"};

/// Four guests in the list, of whom the first ones are selected.
struct ProximityWindow : OpenWindow
{
    explicit ProximityWindow(int selected = 3)
    {
        for (const char *name : {"Ann", "Bob", "Cleo", "Dan"})
            addGuest(plan(), {name});
        select(selected);
    }

    void select(int count)
    {
        list.clearSelection();
        for (int i = 0; i < count; ++i)
            list.itemOfGuest(plan().guestAt(i))->setSelected(true);
        window.setActiveView(&list);
    }

    void wish(int first, int second, int value)
    {
        plan().setAffinity(plan().guestAt(first), plan().guestAt(second), value, true);
        window.updateActionsOnViewChange();
    }

    QAction *command(int value)
    {
        return action(qPrintable(s("m_editSetAffinity%1Action").arg(s(names[value]))));
    }

    /// "Next to": of the commands with a check mark.
    QString marked()
    {
        QStringList marks;
        for (int value = 0; value < 5; ++value) {
            if (command(value)->isChecked())
                marks.append(command(value)->iconText());
        }
        return marks.join(u", ");
    }

    QString told() const { return window.statusBar()->currentMessage(); }

    KWGuestsListView &list = *window.panes()->leftTab()->guestsView();
};
} // namespace

class TestProximityCommands : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void theMarkStandsWhereAllSelectedPairsShareOneValue()
    {
        ProximityWindow open;
        QCOMPARE(open.marked(), s("Neutral"));
        open.wish(0, 1, KWScore::Loves);
        QCOMPARE(open.marked(), QString());
        open.wish(2, 0, KWScore::Loves);
        open.wish(1, 2, KWScore::Loves);
        QCOMPARE(open.marked(), s("Next to"));
        // A wish of somebody else's does not count.
        open.wish(0, 3, KWScore::Hates);
        QCOMPARE(open.marked(), s("Next to"));
        open.select(4);
        QCOMPARE(open.marked(), QString());
        open.select(1);
        QCOMPARE(open.marked(), QString());
        open.select(2);
        QCOMPARE(open.marked(), s("Next to"));
        open.window.setActiveView(nullptr);
        QCOMPARE(open.marked(), QString());
    }

    void theMarkFollowsTheCommand_data()
    {
        QTest::addColumn<int>("value");
        for (int value = 0; value < 5; ++value)
            QTest::newRow(names[value]) << value;
    }

    void theMarkFollowsTheCommand()
    {
        QFETCH(int, value);
        ProximityWindow open;
        open.wish(0, 1, value == KWScore::Loves ? KWScore::Hates : KWScore::Loves);
        // The click changes the mark, so twice.
        for (int i = 0; i < 2; ++i) {
            open.command(value)->trigger();
            QCOMPARE(open.marked(), open.command(value)->iconText());
            QCOMPARE(open.plan().affinity(open.plan().guestAt(0), open.plan().guestAt(2)), value);
        }
    }

    void theStatusBarTellsWhatWasSetAndWhatWasThere()
    {
        ProximityWindow open(4);
        open.command(KWScore::Loves)->trigger();
        QCOMPARE(open.told(), s("Next to: 6 pairs"));
        open.wish(0, 1, KWScore::Likes);
        open.command(KWScore::Loves)->trigger();
        QCOMPARE(open.told(), s("Next to: 6 pairs, 1 of them was Near to"));
        open.wish(0, 1, KWScore::Hates);
        open.wish(0, 2, KWScore::Neutral);
        open.command(KWScore::Neutral)->trigger();
        QCOMPARE(open.told(),
                 s("Neutral: 6 pairs, 4 of them were Next to, 1 of them was Not near to"));
        open.select(2);
        open.command(KWScore::Dislikes)->trigger();
        QCOMPARE(open.told(), s("Not next to: 1 pair"));
        open.command(KWScore::Likes)->trigger();
        QCOMPARE(open.told(), s("Near to: 1 pair, which was Not next to"));
    }

    void aProximityThatAllHaveAlreadyTakesNoUndoPoint()
    {
        ProximityWindow open;
        open.command(KWScore::Likes)->trigger();
        QVERIFY(open.action("m_editUndoAction")->isEnabled());
        open.run("m_editUndoAction");
        open.run("m_editRedoAction");
        open.select(3);
        open.window.saveUndoState(s("before"));
        open.run("m_editUndoAction");
        open.select(3);
        open.plan().setModified(false);
        open.command(KWScore::Likes)->trigger();
        QVERIFY(!open.action("m_editUndoAction")->isEnabled());
        QCOMPARE(open.action("m_editRedoAction")->text(), s("&Redo before"));
        QVERIFY(!open.plan().isModified());
        QCOMPARE(open.told(), s("Near to: 3 pairs"));
    }
};

REGISTER_TEST(TestProximityCommands)
#include "tst_proximitycommands.moc"
