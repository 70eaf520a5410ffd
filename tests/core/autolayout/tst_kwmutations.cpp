#include "moveoutcomes.h"
#include "support/registeredtest.h"

#include <QtTest>

namespace {
void compareOutcomes(const Move &move, const char *mark)
{
    QFETCH(const QString, drawing);
    QTEST(outcomes(drawnPlan(drawing), move, s(mark)), "expected");
}

/// How many guests are at another table in the child than in the plan.
int tableChanges(const KWDocument &plan, const KWDocument &child)
{
    int changes = 0;
    for (int i = 0; i < plan.guestCount(); ++i) {
        KWTable *before = nullptr;
        KWTable *after = nullptr;
        plan.findGuest(plan.guestAt(i), &before);
        child.findGuest(child.guestAt(i), &after);
        changes += plan.indexOfTable(before) != child.indexOfTable(after) ? 1 : 0;
    }
    return changes;
}
} // namespace

/// The moves that are drawn from guests, groups and tables: every outcome that they can have.
class TestMutations : public QObject
{
    Q_OBJECT

private slots:
    void twoGuestsChangePlaces_data()
    {
        const auto row = outcomeRows();
        row("two at a table", "ring A B", {"B A"});
        row("two at two tables", "ring A - | head B", {"B - | A"});
        row("each of three with each", "ring A B C", {"B A C", "C B A", "A C B"});
        row("an unseated guest replaces a seated one", "ring A | wait B", {"failed", "B"});
        row("a locked guest neither moves nor is displaced", "ring A B! | wait C!", {"failed"});
        row("the unseated draw fails", "ring - | wait A B", {"failed"});
        row("the others go on around a locked guest", "ring A B C! | wait D",
            {"failed", "B A C", "D B C", "A D C"});
        row("empty seats stay empty", "ring A - B - ", {"B - A -"});
    }
    void twoGuestsChangePlaces() { compareOutcomes(KWMutations::mutateGuest, "->GuestM"); }

    void aRunOfNeighboursMovesToAnotherTable_data()
    {
        const auto row = outcomeRows();
        row("two with two", "ring A B | ring C D", {"C D | A B", "D C | B A"});
        row("empty seats of the run are skipped", "ring A - B | ring C D",
            {"C - B | A D", "D - B | C A", "D - C | B A", "C - D | A B", "C D B | A -",
             "A C D | - B", "D C B | - A", "A D C | B -"});
        row("locked guests on the way are passed over", "ring A B | ring C! D E",
            {"failed", "A D | C B E", "D E | C A B", "E B | C D A", "D B | C A E", "E D | C B A",
             "A E | C D B"});
        row("fewer than two at the other table", "ring A B C | ring D - -", {"failed"});
        row("nobody at the other table", "ring A B | ring - -", {"failed"});
        row("the other table has no seats", "ring A B C | ring", {"failed"});
        row("all locked at the other table", "ring A B | ring C! D!", {"failed"});
        row("only a locked or an unseated guest to draw", "ring A! B! | ring C! D! | wait E",
            {"failed"});
    }
    void aRunOfNeighboursMovesToAnotherTable()
    {
        compareOutcomes(KWMutations::mutateMultiGuest, "->MultiGuestM");
    }

    void aRunIsFromTwoToAsManyAsSitAtTheEmptierTable_data()
    {
        QTest::addColumn<QString>("drawing");
        QTest::addColumn<QSet<int>>("changes");
        QTest::newRow("three and three") << s("ring A B C | ring D E F") << QSet<int>{4, 6};
        QTest::newRow("four and two") << s("ring A B C D | ring E F") << QSet<int>{4};
        QTest::newRow("four and four") << s("ring A B C D | head E F G H") << QSet<int>{4, 6, 8};
    }
    void aRunIsFromTwoToAsManyAsSitAtTheEmptierTable()
    {
        QFETCH(const QString, drawing);
        const KWDocument plan = drawnPlan(drawing);
        QSet<int> found;
        for (unsigned i = 1; i <= 200; ++i) {
            const FixedSeed seed(i);
            KWDocument child(plan);
            QVERIFY(KWMutations::mutateMultiGuest(child));
            found.insert(tableChanges(plan, child));
        }
        QTEST(found, "changes");
    }

    void aRunReachesEveryOtherTable()
    {
        const KWDocument plan = drawnPlan("ring A B | ring C D | ring E F");
        QSet<QString> touched;
        for (const QString &found :
             outcomes(plan, KWMutations::mutateMultiGuest, s("->MultiGuestM"))) {
            const QStringList tables = found.split(s(" | "));
            QString same;
            for (int i = 0; i < 3; ++i)
                same += tables.at(i) == seating(*plan.tableAt(i)) ? u'=' : u'x';
            touched.insert(same);
        }
        QCOMPARE(touched, (QSet<QString>{s("xx="), s("x=x"), s("=xx")}));
    }

    void twoMembersOfAGroupChangePlaces_data()
    {
        const auto row = outcomeRows();
        row("guests of other groups stay", "ring A B C | group A C", {"C B A"});
        row("at two tables", "ring A B | ring C | group A C", {"C B | A"});
        row("a group of one", "ring A B | group A", {"failed"});
        row("a group of nobody", "ring A B | group", {"failed"});
        row("groups are drawn alike", "ring A B C D E | group A | group B C | group D E",
            {"failed", "A C B D E", "A B C E D"});
        row("an unseated member replaces a seated one", "ring A C | wait B | group A B",
            {"failed", "B C"});
        row("unseated members only", "ring C | wait A B | group A B", {"failed"});
        row("a locked member neither moves nor is displaced", "ring A B! | group A B", {"failed"});
        row("the others of the group go on", "ring A B! C | group A B C", {"failed", "C B A"});
    }
    void twoMembersOfAGroupChangePlaces()
    {
        compareOutcomes(KWMutations::mutateMember, "->MemberM");
    }

    void aGuestMovesToAnEmptySeat_data()
    {
        const auto row = outcomeRows();
        row("at the same table", "ring A -", {"- A"});
        row("from the waiting", "ring A - | wait B", {"- A", "A B"});
        row("to any empty seat", "ring A - -", {"- A -", "- - A"});
        row("to another table", "ring A B | head -", {"- B | A", "A - | B"});
        row("full tables are drawn again", "ring A | ring B | ring -", {"- | B | A", "A | - | B"});
        row("tables without seats are drawn again", "ring | ring A -", {" | - A"});
        row("a locked guest stays", "ring A! - | wait B", {"failed", "A B"});
        row("an unseated locked guest stays", "ring A - | wait B!", {"failed", "- A"});
        row("locked guests only", "ring A! -", {"failed"});
    }
    void aGuestMovesToAnEmptySeat() { compareOutcomes(KWMutations::mutateEmpty, "->EmptyM"); }

    void anEmptySeatThatChanceNeverComesToEndsTheSearch()
    {
        constexpr int tables = 33'000;
        // The random numbers are fewer than these tables.
        QSet<int> drawn;
        const FixedSeed seed(1);
        for (int i = 0; i < 1'000'000; ++i)
            drawn.insert(randomNumber(tables));
        int never = 0;
        while (drawn.contains(never))
            ++never;
        QVERIFY(never < tables);
        KWDocument plan;
        addGuest(plan, {.name = "A"});
        for (int i = 0; i < tables; ++i)
            addTable(plan, "T", KWTable::Circular, i == never ? 1 : 0);
        QVERIFY(!KWMutations::mutateEmpty(plan));
        QCOMPARE(plan.seatedGuestCount(), 0);
        QCOMPARE(plan.history(), s("0"));
    }

    void aMarkIsAddedBehindThoseBefore()
    {
        const FixedSeed seed(1);
        KWDocument plan = drawnPlan("ring A B");
        plan.appendHistory(s("start solution 3"));
        QVERIFY(KWMutations::mutateGuest(plan));
        QVERIFY(KWMutations::mutateGuest(plan));
        QCOMPARE(plan.history(), s("0->start solution 3->GuestM->GuestM"));
    }

    void withMoreGuestsThanSeatsAnUnseatedGuestComesInAndASeatedOneGoesOut()
    {
        const KWDocument plan = drawnPlan("ring A B | wait C D");
        QCOMPARE(outcomes(plan, KWMutations::mutateGuest, s("->GuestM")),
                 (QStringList{s("A C"), s("A D"), s("B A"), s("C B"), s("D B"), s("failed")}));
    }
};

REGISTER_TEST(TestMutations)
#include "tst_kwmutations.moc"
