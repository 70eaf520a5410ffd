#include "scorescene.h"
#include "support/eventlog.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <functional>

namespace {
constexpr int Ring = KWTable::Circular;
constexpr int Line = KWTable::HeadTop;

using Change = std::function<void(ScoreScene &)>;
} // namespace

class TestScoreUpkeep : public QObject
{
    Q_OBJECT

private slots:
    void aNewTableHasZeroEntriesAndNoScore()
    {
        KWDocument plan;
        const KWTable *table = addCustom(plan, "T", 2, 1, 0, 1);
        QCOMPARE(table->seatScores(), QList<KWSeatScore>(4, KWSeatScore{}));
        QCOMPARE(table->score(), 0);
    }

    void oneEntryOfASeatIsAsked()
    {
        const ScoreScene scene(Line, "- Am Bf* C", "AB0 AC1 BC3");
        const QList<int> entries{60, 0, -30, 0, 6, 0, 36};
        for (int entry = 0; entry < entries.size(); ++entry)
            QCOMPARE(scene.plan.seatScore(scene.table, 2, entry), entries.at(entry));
        QCOMPARE(scene.plan.seatScore(scene.table, 0, 6), 0);
        QCOMPARE(scene.plan.seatScore(scene.table, 4, 6), 0);
        QCOMPARE(scene.plan.seatScore(scene.table, -1, 6), 0);
        QCOMPARE(scene.plan.seatScore(scene.table, 2, 7), 0);
        QCOMPARE(scene.plan.seatScore(scene.table, 2, -1), 0);
    }

    void scoresAreAsOldAsTheLastRescore()
    {
        ScoreScene scene(Line, "A B -", "AB0");
        const QString before = scene.scores();
        scene.plan.setAffinity(scene.guest('A'), scene.guest('B'), KWScore::Hates, false);
        QCOMPARE(scene.scores(), before);
        QCOMPARE(scene.plan.totalScore(), 40);
        const KWDocument copy(scene.plan);
        scene.plan.unassignGuest(scene.guest('B'), false);
        QCOMPARE(scene.plan.totalScore(), 40);
        QCOMPARE(scene.scores(), before);
        scene.plan.scoreTable(scene.table);
        QCOMPARE(scene.scores(), s("0 0 0 0 0 -9 -9"));
        QCOMPARE(scene.plan.totalScore(), -9);
        QCOMPARE(copy.totalScore(), 40);
        QCOMPARE(copy.seatScore(copy.tableAt(0), 1, KWScore::LovesEntry), 20);
    }

    void aRotatedTableKeepsItsEntriesUntilTheNextRescore()
    {
        ScoreScene scene(Ring, "Am* Bf - C", "AB0 BC3");
        scene.plan.rotateTable(scene.table);
        QCOMPARE(seating(*scene.table), s("C A B -"));
        QCOMPARE(ScoreScene::text(scene.table->seatScores().at(0)), s("60 0 0 0 6 0 66"));
        QCOMPARE(ScoreScene::text(scene.table->seatScores().at(2)), s("0 0 0 0 0 0 0"));
        QCOMPARE(scene.plan.totalScore(), 78);
        scene.plan.recalculateScores();
        QCOMPARE(scene.scores(), s("0 0 -5 0 0 0 -5, 60 0 0 0 6 0 66, 20 0 -5 0 2 0 17"));
        QCOMPARE(scene.plan.totalScore(), 78);
    }

    void scoringReportsEachTableInListOrderAndThenThePlan()
    {
        ScoreScene scene(Line, "A B", "AB0");
        addTable(scene.plan, "empty", Ring, 4);
        addTable(scene.plan, "seatless", Ring, 0);
        scene.plan.setModified(false);
        EventLog log(scene.plan);
        scene.plan.recalculateScores();
        QCOMPARE(log.take(),
                 (QStringList{s("eventScoreChange(T)"), s("eventScoreChange(empty)"),
                              s("eventScoreChange(seatless)"), s("eventScoreChange()")}));
        scene.plan.scoreTable(scene.table);
        QCOMPARE(log.take(), QStringList{s("eventScoreChange(T)")});
        QVERIFY(!scene.plan.isModified());
        KWDocument noTables;
        EventLog empty(noTables);
        noTables.recalculateScores();
        QCOMPARE(empty.take(), QStringList{s("eventScoreChange()")});
    }

    void nobodysTableAndAStrangersAreNotScored()
    {
        ScoreScene scene(Line, "A B", "AB0");
        ScoreScene other(Line, "A B", "AB0");
        other.plan.unassignGuest(other.guest('B'), false);
        EventLog log(scene.plan);
        EventLog otherLog(other.plan);
        scene.plan.scoreTable(nullptr);
        scene.plan.scoreTable(other.table);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(otherLog.take(), QStringList());
        QCOMPARE(other.table->score(), 40);
    }

    void theScoreIsStoredWhenItIsReported()
    {
        ScoreScene scene(Line, "A B", "");
        QStringList seen;
        connect(&scene.plan, qOverload<KWTable *>(&KWDocument::eventScoreChange), this,
                [&](const KWTable *table) {
                    seen.append(QString::number(table->score()) + u':' + scene.scores());
                });
        scene.plan.setAffinity(scene.guest('A'), scene.guest('B'), KWScore::Loves, true);
        QCOMPARE(seen, QStringList{s("40:20 0 0 0 0 0 20, 20 0 0 0 0 0 20")});
    }

    void theNextRescoreKnowsOfEveryChangeThatMatters_data()
    {
        QTest::addColumn<Change>("change");
        const auto row = [](const char *name, const Change &change) {
            QTest::newRow(name) << change;
        };
        using X = ScoreScene &;
        row("a wish", [](X x) { x.plan.setAffinity(x.guest('B'), x.guest('C'), 1, false); });
        row("another value, told the other way round",
            [](X x) { x.plan.setAffinity(x.guest('B'), x.guest('A'), 3, false); });
        row("a wish taken back",
            [](X x) { x.plan.setAffinity(x.guest('A'), x.guest('B'), 2, false); });
        row("a VIP", [](X x) { x.guest('B')->setVip(true); });
        row("a VIP no more", [](X x) { x.guest('A')->setVip(false); });
        row("another gender", [](X x) { x.guest('C')->setGender(KWGuest::Male); });
        row("a VIP, among other values",
            [](X x) { x.guest('B')->setValues({.gender = KWGuest::Male, .vip = true}); });
        row("another gender, among other values",
            [](X x) { x.guest('C')->setValues({.gender = KWGuest::Male}); });
        row("a seat emptied", [](X x) { x.plan.unassignGuest(x.guest('B'), false); });
        row("a seat taken", [](X x) { x.plan.assignGuest(x.guest('E'), x.table, 3, false); });
        row("a seat taken over", [](X x) { x.plan.assignGuest(x.guest('E'), x.table, 4, false); });
        row("a swap", [](X x) { x.plan.assignGuest(x.guest('A'), x.table, 2, false); });
        row("a move", [](X x) { x.plan.assignGuest(x.guest('A'), x.table, 3, false); });
        row("a move to another table", [](X x) {
            x.plan.assignGuest(x.guest('A'), addTable(x.plan, "other", Line, 3), 1, false);
        });
        row("a guest deleted", [](X x) { x.plan.deleteGuest(x.guest('D'), false); });
        row("a line instead of a ring",
            [](X x) { x.plan.setTableShape(x.table, KWTable::HeadLeft); });
        row("a turn", [](X x) { x.plan.rotateTable(x.table); });
        row("more seats", [](X x) { x.plan.resizeTable(x.table, 6, false); });
        row("fewer seats", [](X x) { x.plan.resizeTable(x.table, 4, false); });
        row("guests closed up", [](X x) { x.table->compactSeats(4); });
    }
    void theNextRescoreKnowsOfEveryChangeThatMatters()
    {
        QFETCH(Change, change);
        ScoreScene scene(Ring, "A* Bm Cf - D | E", "AB0 AD1 CD4 BE0 DE3");
        const QString before = scene.scores();
        change(scene);
        scene.plan.recalculateScores();
        const QString rescored = scene.scores();
        QVERIFY(rescored != before);
        scene.plan.scoreTable(scene.table);
        QCOMPARE(rescored, scene.scores());
    }
};

REGISTER_TEST(TestScoreUpkeep)
#include "tst_kwscore_upkeep.moc"
