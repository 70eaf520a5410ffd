#include "scorescene.h"
#include "support/eventlog.h"
#include "support/registeredtest.h"

#include <QtTest>

namespace {
constexpr int Ring = KWTable::Circular;
constexpr int Line = KWTable::HeadBottom;

void addColumns()
{
    QTest::addColumn<int>("shape");
    QTest::addColumn<QByteArray>("seats");
    QTest::addColumn<QByteArray>("wishes");
    QTest::addColumn<int>("seat");
    QTest::addColumn<QString>("points");
}

/// The points are those of guest G.
void row(const char *name, int shape, const char *seats, const char *wishes, int seat,
         const char *points)
{
    QTest::newRow(name) << shape << QByteArray(seats) << QByteArray(wishes) << seat << s(points);
}

void checkRow()
{
    QFETCH(int, shape);
    QFETCH(QByteArray, seats);
    QFETCH(QByteArray, wishes);
    QFETCH(int, seat);
    const ScoreScene scene(shape, seats.constData(), wishes.constData());
    QTEST(ScoreScene::text(scene.plan.seatContribution(scene.table, seat, scene.guest('G'))),
          "points");
}
} // namespace

class TestSeatContribution : public QObject
{
    Q_OBJECT

private slots:
    void ofAWaitingGuestOnAnEmptySeat_data()
    {
        addColumns();
        row("between two neighbours", Ring, "Am - B - | Gf", "GA0 BG3", 1, "20 0 -10 0 2 0 12");
        row("neighbours and the rest of the table", Ring, "A - B C D | G", "AG0 BG1 CG3 DG4", 1,
            "20 5 -5 -20 0 0 0");
        row("alone", Ring, "A - - - | G", "AG1", 2, "0 2 0 0 0 -9 -7");
        row("round the ring", Ring, "A B - | G", "AG0", 2, "20 0 0 0 0 0 20");
        row("not round a line", Line, "A B - | G", "AG0 BG1", 2, "10 5 0 0 0 0 15");
        row("first seat of a line", Line, "- A - B | G", "AG4 BG4", 0, "0 0 0 -60 0 0 -60");
        row("an empty table", Ring, "- - - | G", "", 1, "0 0 0 0 0 -9 -9");
        row("a VIP", Ring, "Am - - B | Gf*", "AG0 BG4", 1, "60 0 0 -60 6 0 6");
        row("a VIP alone", Line, "- | G*", "", 0, "0 0 0 0 0 -27 -27");
        row("the neighbour's being a VIP is of no account", Line, "Am* - | Gf", "AG0", 1,
            "20 0 0 0 2 0 22");
        row("ring of one: nobody sits beside the seat", Ring, "- | G", "GG0", 0, "0 0 0 0 0 -9 -9");
        row("ring of two: the other on both sides", Ring, "Am - | Gf", "AG1", 1, "0 10 0 0 4 0 14");
        row("other waiting guests do not count", Ring, "A - - | G H", "GH0", 1, "0 0 0 0 0 0 0");
    }
    void ofAWaitingGuestOnAnEmptySeat() { checkRow(); }

    void onATakenSeatWhoeverSitsThereIsAtTheSameTable_data()
    {
        addColumns();
        row("waiting guest", Ring, "A B C - | G", "AG0 BG0 CG0", 1, "50 0 0 0 0 0 50");
        row("no gender points from whoever sits there", Line, "Bm - | Gf", "BG4", 0,
            "0 0 0 -20 0 -9 -29");
        row("ring of one: whoever sits there is beside the seat", Ring, "Bm | Gf", "BG0", 0,
            "40 0 0 0 4 0 44");
        row("line of one", Line, "Bm | Gf", "BG0", 0, "10 0 0 0 0 -9 1");
        row("ring of two, one seat empty", Ring, "B - | G", "BG0", 0, "10 0 0 0 0 -9 1");
        row("ring of two, full", Ring, "A B | G", "AG0 BG1", 1, "40 2 0 0 0 0 42");
    }
    void onATakenSeatWhoeverSitsThereIsAtTheSameTable() { checkRow(); }

    void ofASeatedGuestOnAnotherSeat_data()
    {
        addColumns();
        row("empty seat, away from their own", Ring, "G - A - B -", "AG0 BG1", 3,
            "20 5 0 0 0 0 25");
        row("beside their own seat they are their own company", Ring, "G - - A -", "AG1", 1,
            "0 2 0 0 0 0 2");
        row("on the other side, too", Line, "- - G A", "AG1", 1, "0 2 0 0 0 0 2");
        row("beside their own seat with a wish for themselves", Ring, "G - - A -", "GG0", 1,
            "20 0 0 0 0 0 20");
        row("away from it that wish does not count", Ring, "G - - A -", "GG0", 2, "0 0 0 0 0 0 0");
        row("taken seat", Line, "G A B C", "AG0 BG1 CG3", 2, "20 2 -10 0 0 0 12");
        row("taken seat beside their own", Line, "Gm Bf - A", "BG0 AG4", 1, "10 0 0 -20 0 0 -10");
        row("their own seat", Line, "A Gm Bf", "AG0 BG1", 1, "20 5 0 0 2 0 27");
        row("their own seat on a ring of one", Ring, "G", "GG1", 0, "0 10 0 0 0 0 10");
        row("their own seat on a line of one", Line, "G", "GG1", 0, "0 0 0 0 0 -9 -9");
    }
    void ofASeatedGuestOnAnotherSeat() { checkRow(); }

    void ofAGuestWhoSitsAtAnotherTable()
    {
        ScoreScene scene(Line, "A - B | Gf Hm", "AG0 BG3 GH0");
        KWTable *other = addTable(scene.plan, "other", Line, 2);
        scene.plan.assignGuest(scene.guest('G'), other, 0, false);
        scene.plan.assignGuest(scene.guest('H'), other, 1, true);
        const auto points = [&](const KWTable *table, int seat) {
            return ScoreScene::text(scene.plan.seatContribution(table, seat, scene.guest('G')));
        };
        QCOMPARE(points(scene.table, 1), s("20 0 -10 0 0 0 10"));
        QCOMPARE(points(other, 0), s("20 0 0 0 2 0 22"));
        QCOMPARE(points(other, 1), s("10 0 0 0 0 0 10"));
    }

    void isComputedFromTheTableAsItStands()
    {
        ScoreScene scene(Line, "A - B | G", "AG0");
        scene.plan.unassignGuest(scene.guest('A'), false);
        scene.plan.setAffinity(scene.guest('G'), scene.guest('B'), KWScore::Likes, false);
        QCOMPARE(ScoreScene::text(scene.plan.seatContribution(scene.table, 1, scene.guest('G'))),
                 s("0 5 0 0 0 0 5"));
    }

    void storesNothingAndFiresNothing()
    {
        ScoreScene scene(Ring, "A B - | G", "AB0 AG4");
        scene.plan.unassignGuest(scene.guest('B'), false);
        scene.plan.setModified(false);
        const QString scores = scene.scores();
        EventLog log(scene.plan);
        for (const KWGuest *guest : scene.plan.guests()) {
            for (int seat = 0; seat < 3; ++seat)
                scene.plan.seatContribution(scene.table, seat, guest);
        }
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(scene.scores(), scores);
        QCOMPARE(scene.plan.totalScore(), 40);
        QCOMPARE(seating(*scene.table), s("A - -"));
        QVERIFY(!scene.plan.isModified());
    }
};

REGISTER_TEST(TestSeatContribution)
#include "tst_kwseatcontribution.moc"
