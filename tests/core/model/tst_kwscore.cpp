#include "scorescene.h"
#include "support/registeredtest.h"

#include <QtTest>

namespace {
constexpr int Ring = KWTable::Circular;
constexpr int Line = KWTable::HeadTop;
using Sides = KWTable::Sides;

void addColumns()
{
    QTest::addColumn<int>("shape");
    QTest::addColumn<QByteArray>("seats");
    QTest::addColumn<QByteArray>("wishes");
    QTest::addColumn<QString>("scores");
    QTest::addColumn<int>("total");
}

/// The scores are the seven entries of each taken seat in seat order.
void row(const char *name, int shape, const char *seats, const char *wishes, const char *scores,
         int total)
{
    QTest::newRow(name) << shape << QByteArray(seats) << QByteArray(wishes) << s(scores) << total;
}

void checkRow()
{
    QFETCH(int, shape);
    QFETCH(QByteArray, seats);
    QFETCH(QByteArray, wishes);
    QFETCH(int, total);
    const ScoreScene scene(shape, seats.constData(), wishes.constData());
    QTEST(scene.scores(), "scores");
    QCOMPARE(scene.table->score(), total);
    QCOMPARE(scene.plan.totalScore(), total);
    QCOMPARE(scene.table->seatScores().size(), scene.table->seatCount());
    for (int seat = 0; seat < scene.table->seatCount(); ++seat) {
        if (const KWGuest *guest = scene.table->guest(seat))
            QCOMPARE(scene.plan.seatContribution(scene.table, seat, guest),
                     scene.table->seatScores().at(seat));
    }
}
} // namespace

class TestScore : public QObject
{
    Q_OBJECT

private slots:
    void aWishCountsMoreNextToEachOther_data()
    {
        addColumns();
        row("loves, on seats 3 and 4", Ring, "- - - A B - - -", "AB0",
            "20 0 0 0 0 0 20, 20 0 0 0 0 0 20", 40);
        row("likes, next to", Ring, "A B - -", "AB1", "0 5 0 0 0 0 5, 0 5 0 0 0 0 5", 10);
        row("neutral, next to", Ring, "A B - -", "AB2", "0 0 0 0 0 0 0, 0 0 0 0 0 0 0", 0);
        row("dislikes, next to", Ring, "A B - -", "AB3", "0 0 -10 0 0 0 -10, 0 0 -10 0 0 0 -10",
            -20);
        row("hates, next to", Ring, "A B - -", "AB4", "0 0 0 -40 0 0 -40, 0 0 0 -40 0 0 -40", -80);
        row("the order of the pair is of no account", Ring, "A B - -", "BA0",
            "20 0 0 0 0 0 20, 20 0 0 0 0 0 20", 40);
        row("loves, on seats 3 and 5: both are alone", Ring, "- - - A - B - -", "AB0",
            "10 0 0 0 0 -9 1, 10 0 0 0 0 -9 1", 2);
        row("loves, same table", Ring, "A C B D", "AB0",
            "10 0 0 0 0 0 10, 0 0 0 0 0 0 0, 10 0 0 0 0 0 10, 0 0 0 0 0 0 0", 20);
        row("likes, same table", Ring, "A C B D", "AB1",
            "0 2 0 0 0 0 2, 0 0 0 0 0 0 0, 0 2 0 0 0 0 2, 0 0 0 0 0 0 0", 4);
        row("neutral, same table", Ring, "A - B -", "AB2", "0 0 0 0 0 -9 -9, 0 0 0 0 0 -9 -9", -18);
        row("dislikes, same table", Ring, "A C B D", "AB3",
            "0 0 -5 0 0 0 -5, 0 0 0 0 0 0 0, 0 0 -5 0 0 0 -5, 0 0 0 0 0 0 0", -10);
        row("hates, same table, -20 each", Ring, "A C B D", "AB4",
            "0 0 0 -20 0 0 -20, 0 0 0 0 0 0 0, 0 0 0 -20 0 0 -20, 0 0 0 0 0 0 0", -40);
        row("points of one value add up", Ring, "A B C - D -", "AB0 AC0 AD0 BC3 BD3",
            "40 0 0 0 0 0 40, 20 0 -15 0 0 0 5, 10 0 -10 0 0 0 0, 10 0 -5 0 0 -9 -4", 41);
        row("every value has its entry", Ring, "A B C D E -", "AB0 AC1 AD3 AE4",
            "20 2 -5 -20 0 0 -3, 20 0 0 0 0 0 20, 0 2 0 0 0 0 2, 0 0 -5 0 0 0 -5, "
            "0 0 0 -20 0 0 -20",
            -6);
        row("a value that nobody knows gives nothing", Line, "A B C", "AB5 AC-1",
            "0 0 0 0 0 0 0, 0 0 0 0 0 0 0, 0 0 0 0 0 0 0", 0);
        row("a guest who waits does not count", Ring, "A B - - | C", "CA0 CB4",
            "0 0 0 0 0 0 0, 0 0 0 0 0 0 0", 0);
    }
    void aWishCountsMoreNextToEachOther() { checkRow(); }

    void seatsFormARingOrALine_data()
    {
        addColumns();
        const char *both = "20 0 0 0 0 0 20, 20 0 0 0 0 0 20";
        const char *apart = "10 0 0 0 0 -9 1, 10 0 0 0 0 -9 1";
        row("ring, seats 0 and 7", Ring, "A - - - - - - B", "AB0", both, 40);
        for (int shape = KWTable::HeadTop; shape <= KWTable::HeadLeft; ++shape)
            row(qPrintable(s("line, seats 0 and 7, shape %1").arg(shape)), shape, "A - - - - - - B",
                "AB0", apart, 2);
        row("line, seats 6 and 7", Line, "- - - - - - A B", "AB0", both, 40);
        row("an empty seat parts", Ring, "A - B - -", "AB0", apart, 2);
        row("ring of one: the guest is the neighbour", Ring, "A", "", "0 0 0 0 0 0 0", 0);
        row("ring of one, gender is the same", Ring, "Am", "", "0 0 0 0 0 0 0", 0);
        row("ring of one, in love with themselves", Ring, "A", "AA0", "40 0 0 0 0 0 40", 40);
        row("ring of one, a VIP who likes nobody", Ring, "A*", "AA4", "0 0 0 -240 0 0 -240", -240);
        row("oneself at the same table is not counted", Ring, "A - -", "AA0", "0 0 0 0 0 -9 -9",
            -9);
        row("ring of two: neighbours on both sides", Ring, "A B", "AB0",
            "40 0 0 0 0 0 40, 40 0 0 0 0 0 40", 80);
        row("ring of two, gender on both sides", Ring, "Am Bf", "", "0 0 0 0 4 0 4, 0 0 0 0 4 0 4",
            8);
        row("ring of two, VIP", Ring, "A* B", "AB3", "0 0 -60 0 0 0 -60, 0 0 -20 0 0 0 -20", -80);
        row("line of two", Line, "A B", "AB0", both, 40);
        row("line of two, gender", Line, "Am Bf", "", "0 0 0 0 2 0 2, 0 0 0 0 2 0 2", 4);
        row("ring of three: everybody is next to everybody", Ring, "A B C", "AB0 AC4 BC3",
            "20 0 0 -40 0 0 -20, 20 0 -10 0 0 0 10, 0 0 -10 -40 0 0 -50", -60);
    }
    void seatsFormARingOrALine() { checkRow(); }

    void aGuestWithoutNeighboursIsAlone_data()
    {
        addColumns();
        row("ring of two", Ring, "A -", "", "0 0 0 0 0 -9 -9", -9);
        row("ring of eight", Ring, "- - A - - - - -", "", "0 0 0 0 0 -9 -9", -9);
        row("line of one", Line, "A", "", "0 0 0 0 0 -9 -9", -9);
        row("line of one, whatever they think of themselves", Line, "A", "AA0", "0 0 0 0 0 -9 -9",
            -9);
        row("line of two", Line, "- A", "", "0 0 0 0 0 -9 -9", -9);
        row("line of eight, first seat", Line, "A - - - - - - -", "", "0 0 0 0 0 -9 -9", -9);
        row("line of eight, middle", Line, "- - - A - - - -", "", "0 0 0 0 0 -9 -9", -9);
        row("one neighbour is enough", Line, "A B - C", "",
            "0 0 0 0 0 0 0, 0 0 0 0 0 0 0, 0 0 0 0 0 -9 -9", -9);
        row("a hated neighbour is company", Line, "A B", "AB4",
            "0 0 0 -40 0 0 -40, 0 0 0 -40 0 0 -40", -80);
        row("a VIP", Ring, "A* - -", "", "0 0 0 0 0 -27 -27", -27);
        row("nobody on a ring", Ring, "- - -", "", "", 0);
        row("nobody on a line", Line, "- - -", "", "", 0);
        row("no seats", Ring, "", "", "", 0);
        row("no seats in a line", Line, "", "", "", 0);
    }
    void aGuestWithoutNeighboursIsAlone() { checkRow(); }

    void neighboursOfDifferentGenderGivePoints_data()
    {
        addColumns();
        row("man, woman and undefined in a line", Line, "Am Bf C", "",
            "0 0 0 0 2 0 2, 0 0 0 0 2 0 2, 0 0 0 0 0 0 0", 4);
        row("two undefined", Line, "A B", "", "0 0 0 0 0 0 0, 0 0 0 0 0 0 0", 0);
        row("two men", Line, "Am Bm", "", "0 0 0 0 0 0 0, 0 0 0 0 0 0 0", 0);
        row("two women", Line, "Af Bf", "", "0 0 0 0 0 0 0, 0 0 0 0 0 0 0", 0);
        row("both sides", Line, "Af Bm Cf", "", "0 0 0 0 2 0 2, 0 0 0 0 4 0 4, 0 0 0 0 2 0 2", 8);
        row("round the table", Ring, "Am Bf Cm Df", "",
            "0 0 0 0 4 0 4, 0 0 0 0 4 0 4, 0 0 0 0 4 0 4, 0 0 0 0 4 0 4", 16);
        row("not across the table", Ring, "Am B Cf D", "",
            "0 0 0 0 0 0 0, 0 0 0 0 0 0 0, 0 0 0 0 0 0 0, 0 0 0 0 0 0 0", 0);
        row("on top of the wish", Line, "Am Bf", "AB0", "20 0 0 0 2 0 22, 20 0 0 0 2 0 22", 44);
        row("whatever the wish", Line, "Am Bf", "AB4", "0 0 0 -40 2 0 -38, 0 0 0 -40 2 0 -38", -76);
    }
    void neighboursOfDifferentGenderGivePoints() { checkRow(); }

    void theEntriesOfAVipCountThreefold_data()
    {
        addColumns();
        row("one of two", Line, "A* B", "AB0", "60 0 0 0 0 0 60, 20 0 0 0 0 0 20", 80);
        row("both", Line, "A* B*", "AB0", "60 0 0 0 0 0 60, 60 0 0 0 0 0 60", 120);
        row("likes, next to", Line, "A B*", "AB1", "0 5 0 0 0 0 5, 0 15 0 0 0 0 15", 20);
        row("dislikes, next to", Line, "A* B", "AB3", "0 0 -30 0 0 0 -30, 0 0 -10 0 0 0 -10", -40);
        row("hates, next to", Line, "A* B", "AB4", "0 0 0 -120 0 0 -120, 0 0 0 -40 0 0 -40", -160);
        row("gender", Line, "Am* Bf", "", "0 0 0 0 6 0 6, 0 0 0 0 2 0 2", 8);
        row("loves, same table", Line, "A* C B", "AB0",
            "30 0 0 0 0 0 30, 0 0 0 0 0 0 0, 10 0 0 0 0 0 10", 40);
        row("likes, same table", Line, "A* C B", "AB1",
            "0 6 0 0 0 0 6, 0 0 0 0 0 0 0, 0 2 0 0 0 0 2", 8);
        row("dislikes, same table", Line, "A* C B", "AB3",
            "0 0 -15 0 0 0 -15, 0 0 0 0 0 0 0, 0 0 -5 0 0 0 -5", -20);
        row("hates, same table", Line, "A* C B", "AB4",
            "0 0 0 -60 0 0 -60, 0 0 0 0 0 0 0, 0 0 0 -20 0 0 -20", -80);
        row("alone with a wish", Line, "A* - B", "AB0", "30 0 0 0 0 -27 3, 10 0 0 0 0 -9 1", 4);
    }
    void theEntriesOfAVipCountThreefold() { checkRow(); }

    void seatsRoundACornerAreNeighboursAndSeatsAcrossAreNot_data()
    {
        QTest::addColumn<int>("shape");
        QTest::addColumn<Sides>("sides");
        QTest::addColumn<QString>("neighbours");
        const auto pairs = [](const char *name, int shape, Sides sides, const char *neighbours) {
            QTest::newRow(name) << shape << sides << s(neighbours);
        };
        pairs("rectangular, 3 and 1", 1, {3, 1}, "01 12 23 34 45 56 67 07");
        pairs("rectangular, 2 and 2", 1, {2, 2}, "01 12 23 34 45 56 67 07");
        pairs("rectangular, none down", 1, {3, 0}, "01 12 23 34 45 05");
        pairs("custom, four sides", 6, {3, 1, 2, 2}, "01 12 23 34 45 56 67 07");
        pairs("custom, two sides", 6, {3, 0, 2, 0}, "01 12 23 34 04");
        pairs("custom, one side only is a ring, too", 6, {4, 0, 0, 0}, "01 12 23 03");
        pairs("circular", 0, {5}, "01 12 23 34 04");
        pairs("head, top", 2, {5}, "01 12 23 34");
        pairs("head, right", 3, {5}, "01 12 23 34");
        pairs("head, bottom", 4, {5}, "01 12 23 34");
        pairs("head, left", 5, {5}, "01 12 23 34");
    }
    void seatsRoundACornerAreNeighboursAndSeatsAcrossAreNot()
    {
        QFETCH(int, shape);
        QFETCH(Sides, sides);
        QFETCH(QString, neighbours);
        ScoreScene scene(sides, shape, "| A B", "AB0");
        QStringList found;
        for (int b = 1; b < scene.table->seatCount(); ++b) {
            for (int a = 0; a < b; ++a) {
                scene.plan.unassignGuest(scene.guest('B'), false);
                scene.plan.assignGuest(scene.guest('A'), scene.table, a, false);
                scene.plan.assignGuest(scene.guest('B'), scene.table, b, true);
                const int score = scene.table->score();
                QVERIFY(score == 40 || score == 2);
                if (score == 40)
                    found.append(QString::number(a) + QString::number(b));
            }
        }
        found.sort();
        QStringList expected = neighbours.split(u' ');
        expected.sort();
        QCOMPARE(found, expected);
    }

    void smallTablesWithSidesAreRings()
    {
        for (const Sides &sides : {Sides{1, 0, 0, 0}, Sides{0, 0, 0, 1}})
            QCOMPARE(ScoreScene(sides, KWTable::Custom, "A", "").scores(), s("0 0 0 0 0 0 0"));
        for (const Sides &sides : {Sides{1, 0, 0, 0}, Sides{0, 1, 0, 0}})
            QCOMPARE(ScoreScene(sides, KWTable::Rectangular, "A B", "AB0").scores(),
                     s("40 0 0 0 0 0 40, 40 0 0 0 0 0 40"));
    }

    void noOtherFactOfAGuestEntersTheScore()
    {
        ScoreScene scene(Line, "Am Bf* C - D", "AB0 AC3 CD1");
        const QString scores = scene.scores();
        KWGroup *group = scene.plan.addGroup({}, s("Family"), {});
        for (KWGuest *guest : scene.plan.guests()) {
            scene.plan.editGuest(guest, {.display_name = s("Same"),
                                         .title = s("Dr"),
                                         .first_name = s("First"),
                                         .last_name = s("Last"),
                                         .meal = s("fish"),
                                         .gender = guest->gender(),
                                         .age = KWGuest::Child,
                                         .locked = true,
                                         .notes = s("notes"),
                                         .vip = guest->isVip(),
                                         .accepted = true});
            scene.plan.moveGuestToGroup(group, guest);
        }
        scene.plan.recalculateScores();
        QCOMPARE(scene.scores(), scores);
        QCOMPARE(scene.plan.totalScore(), 73);
    }

    void guestsAtDifferentTablesGiveNothing()
    {
        ScoreScene scene(Line, "A B | C D", "AC0 AD4 BC1 BD3");
        KWTable *other = addTable(scene.plan, "other", Line, 2);
        scene.plan.assignGuest(scene.guest('C'), other, 0, false);
        scene.plan.assignGuest(scene.guest('D'), other, 1, true);
        QCOMPARE(scene.scores(), s("0 0 0 0 0 0 0, 0 0 0 0 0 0 0"));
        QCOMPARE(other->seatScores(), QList<KWSeatScore>(2, KWSeatScore{}));
        QCOMPARE(scene.plan.totalScore(), 0);
    }

    void theTotalIsTheSumOverTheTables()
    {
        ScoreScene scene(Line, "A B | C* D", "AB0 CD4");
        KWTable *other = addTable(scene.plan, "other", Line, 3);
        scene.plan.assignGuest(scene.guest('C'), other, 0, false);
        scene.plan.assignGuest(scene.guest('D'), other, 2, false);
        addTable(scene.plan, "empty", Ring, 8);
        scene.plan.recalculateScores();
        QCOMPARE(scene.table->score(), 40);
        QCOMPARE(other->score(), -60 - 27 - 20 - 9);
        QCOMPARE(scene.plan.totalScore(), 40 - 116);
    }

    void productsAreRoundedToTheNearestHalvesAwayFromZero()
    {
        QCOMPARE(KWScore::rounded(0.0), 0);
        QCOMPARE(KWScore::rounded(0.49), 0);
        QCOMPARE(KWScore::rounded(0.5), 1);
        QCOMPARE(KWScore::rounded(2.4), 2);
        QCOMPARE(KWScore::rounded(2.5), 3);
        QCOMPARE(KWScore::rounded(60.0), 60);
        QCOMPARE(KWScore::rounded(-0.49), 0);
        QCOMPARE(KWScore::rounded(-0.5), -1);
        QCOMPARE(KWScore::rounded(-2.4), -2);
        QCOMPARE(KWScore::rounded(-2.5), -3);
        QCOMPARE(KWScore::rounded(-27.0), -27);
    }
};

REGISTER_TEST(TestScore)
#include "tst_kwscore.moc"
