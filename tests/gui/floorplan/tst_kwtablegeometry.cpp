#include "gui/floorplan/kwtablegeometry.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QtTest>

namespace {

const QPointF centre(1000, 2000);

/// "x,y x,y", to a tenth of a unit.
QString toText(const std::vector<QPointF> &points)
{
    const auto number = [](double value) { return QString::number(qRound(value * 10) / 10.0); };
    QStringList texts;
    for (const QPointF &point : points)
        texts.append(number(point.x()) + u',' + number(point.y()));
    return texts.join(u' ');
}

QString seatsOf(const KWTableGeometry &geometry)
{
    return toText(geometry.seatCentres(centre));
}

void addRow(const char *name, int shape, const KWTable::Sides &counts, const QSize &size,
            const char *seats)
{
    QTest::newRow(name) << shape << QList<int>(counts.begin(), counts.end()) << size << s(seats);
}
} // namespace

class TestTableGeometry : public QObject
{
    Q_OBJECT

private slots:
    void sizeAndSeatsAreAsWorkedOutByHand_data()
    {
        QTest::addColumn<int>("shape");
        QTest::addColumn<QList<int>>("counts");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("seats");

        addRow("circular, none", 0, {0}, {150, 150}, "");
        addRow("circular, 1", 0, {1}, {150, 150}, "1000,1875");
        addRow("circular, 2", 0, {2}, {150, 150}, "1000,1875 999.9,2125");
        addRow("circular, 4", 0, {4}, {150, 150}, "1000,1875 1125,2000 999.9,2125 875,1999.9");
        addRow("circular, 8", 0, {8}, {161, 161},
               "1000,1869.5 1092.3,1907.7 1130.5,2000 1092.2,2092.3 "
               "999.9,2130.5 907.7,2092.2 869.5,1999.9 907.8,1907.7");
        addRow("rectangular, none", 1, {0, 0}, {100, 100}, "");
        addRow("rectangular, 1 by 0", 1, {1, 0}, {100, 100}, "1000,1900 1000,2100");
        addRow("rectangular, 0 by 2", 1, {0, 2}, {100, 200},
               "1100,1950 1100,2050 900,2050 900,1950");
        addRow("rectangular, 1 by 1", 1, {1, 1}, {100, 100},
               "1000,1900 1100,2000 1000,2100 900,2000");
        addRow("rectangular, 3 by 2", 1, {3, 2}, {300, 200},
               "900,1850 1000,1850 1100,1850 1200,1950 1200,2050 "
               "1100,2150 1000,2150 900,2150 800,2050 800,1950");
        addRow("head at top, none", 2, {0}, {100, 100}, "");
        addRow("head at top, 1", 2, {1}, {100, 100}, "1000,1900");
        addRow("head at top, 2", 2, {2}, {200, 100}, "950,1900 1050,1900");
        addRow("head at top, 3", 2, {3}, {300, 100}, "900,1900 1000,1900 1100,1900");
        addRow("head at right, none", 3, {0}, {100, 100}, "");
        addRow("head at right, 1", 3, {1}, {100, 100}, "1100,2000");
        addRow("head at right, 3", 3, {3}, {100, 300}, "1100,1900 1100,2000 1100,2100");
        addRow("head at bottom, none", 4, {0}, {100, 100}, "");
        addRow("head at bottom, 2", 4, {2}, {200, 100}, "1050,2100 950,2100");
        addRow("head at bottom, 3", 4, {3}, {300, 100}, "1100,2100 1000,2100 900,2100");
        addRow("head at left, none", 5, {0}, {100, 100}, "");
        addRow("head at left, 2", 5, {2}, {100, 200}, "900,2050 900,1950");
        addRow("head at left, 3", 5, {3}, {100, 300}, "900,2100 900,2000 900,1900");
        addRow("custom, none", 6, {0, 0, 0, 0}, {100, 100}, "");
        addRow("custom, one side", 6, {0, 0, 2, 0}, {200, 100}, "1050,2100 950,2100");
        addRow("custom, 1 2 3 4", 6, {1, 2, 3, 4}, {300, 400},
               "1000,1750 1200,1950 1200,2050 1100,2250 1000,2250 900,2250 "
               "800,2150 800,2050 800,1950 800,1850");
        addRow("custom, 4 3 1 0", 6, {4, 3, 1, 0}, {400, 300},
               "850,1800 950,1800 1050,1800 1150,1800 1250,1900 1250,2000 1250,2100 1000,2200");
        addRow("unknown shape", 7, {3, 3, 3, 3}, {0, 0}, "");
        addRow("negative shape", -1, {3, 3, 3, 3}, {0, 0}, "");
        addRow("negative counts", 6, {-1, -1, -1, -1}, {100, 100}, "");
    }

    void sizeAndSeatsAreAsWorkedOutByHand()
    {
        QFETCH(int, shape);
        QFETCH(QList<int>, counts);
        const KWTableGeometry geometry(shape, counts[0], counts[1], counts[2], counts[3]);
        QTEST(geometry.size(), "size");
        QTEST(seatsOf(geometry), "seats");

        const KWTable table(shape, s("T"), counts[0], counts[1], counts[2], counts[3], {}, {});
        QTEST(KWTableGeometry(table).size(), "size");
        QTEST(seatsOf(KWTableGeometry(table)), "seats");
    }

    void aCircularTableWithOneSeatHasADiameterOf150()
    {
        QCOMPARE(KWTableGeometry(KWTable::Circular, 1, 0, 0, 0).size(), QSize(150, 150));
    }

    void aCircularTableGrowsWithItsSeats_data()
    {
        QTest::addColumn<int>("seats");
        QTest::addColumn<int>("diameter");
        QTest::newRow("the last of the smallest") << 7 << 150;
        QTest::newRow("the first that is larger") << 8 << 161;
        QTest::newRow("10") << 10 << 224;
        QTest::newRow("12") << 12 << 286;
        QTest::newRow("100, two units more with the true pi") << 100 << 3083;
        QTest::newRow("1000, the most, four units more with it") << 1000 << 31727;
        QTest::newRow("beyond the most") << 1'000'000'000 << 31727;
    }

    void aCircularTableGrowsWithItsSeats()
    {
        QFETCH(int, seats);
        QFETCH(int, diameter);
        QCOMPARE(KWTableGeometry(KWTable::Circular, seats, 0, 0, 0).size(),
                 QSize(diameter, diameter));
    }

    void absurdCountsAreThoseThatATableTakes()
    {
        constexpr int absurd = std::numeric_limits<int>::max();
        const KWTableGeometry geometry(KWTable::Custom, absurd, absurd, absurd, absurd);
        QCOMPARE(geometry.size(), QSize(100'000, 100'000));
        QCOMPARE(geometry.seatCentres(centre).size(), std::size_t(4000));
    }

    void neighboursAtACircularTableOfEightAreASeatApart()
    {
        const auto seats = KWTableGeometry(KWTable::Circular, 8, 0, 0, 0).seatCentres(centre);
        for (std::size_t i = 0; i < seats.size(); ++i) {
            const QLineF gap(seats[i], seats[(i + 1) % seats.size()]);
            QVERIFY2(qAbs(gap.length() - 100) < 0.5, qPrintable(QString::number(gap.length())));
        }
    }

    void aTableWithMoreSeatsThanItsSidesHoldShowsThoseOfTheSides()
    {
        KWTable table(KWTable::Custom, s("T"), 1, 0, 1, 0, {}, {});
        table.setSeatCount(5);
        QCOMPARE(seatsOf(KWTableGeometry(table)), s("1000,1900 1000,2100"));
    }

    void aTableWithFewerSeatsThanItsSidesHoldShowsOnlyThem()
    {
        KWTable table(KWTable::Rectangular, s("T"), 2, 1, 0, 0, {}, {});
        table.setSeatCount(3);
        QCOMPARE(seatsOf(KWTableGeometry(table)), s("950,1900 1050,1900 1150,2000"));
    }

    void aTableGivenABareShapeKeepsWithinIt()
    {
        KWTable table(KWTable::Circular, s("T"), 8, 0, 0, 0, {}, {});
        table.setShape(KWTable::Rectangular);
        QCOMPARE(KWTableGeometry(table).size(), QSize(100, 100));
        QCOMPARE(seatsOf(KWTableGeometry(table)), QString());
        table.setShape(99);
        QCOMPARE(KWTableGeometry(table).size(), QSize(0, 0));
        QCOMPARE(seatsOf(KWTableGeometry(table)), QString());
    }

    void theAreaReachesFourUnitsBeyondTheBodyOnEachSide()
    {
        QCOMPARE(KWTableGeometry(KWTable::Circular, 8, 0, 0, 0).area(centre),
                 QRectF(915.5, 1915.5, 169, 169));
        QCOMPARE(KWTableGeometry(KWTable::HeadTop, 3, 0, 0, 0).area(centre),
                 QRectF(846, 1946, 308, 108));
    }

    void aTableOfUnknownShapeHasAnEmptyArea()
    {
        QVERIFY(KWTableGeometry(KWTable::ShapeCount, 8, 0, 0, 0).area(centre).isEmpty());
    }

    void aHeadTableRotatedFourTimesIsTheFirstLayoutAgain()
    {
        KWDocument plan;
        KWTable *table = addTable(plan, "T", KWTable::HeadTop, 3);
        const QList<KWGuest *> guests = addGuests(plan, 3);
        for (int seat = 0; seat < 3; ++seat)
            plan.assignGuest(guests[seat], table, seat, false);
        QStringList layouts;
        for (int turn = 0; turn < 5; ++turn) {
            QCOMPARE(seating(*table), s("G0 G1 G2"));
            layouts.append(seatsOf(KWTableGeometry(*table)));
            plan.rotateTable(table);
        }
        QCOMPARE(layouts,
                 QStringList({s("900,1900 1000,1900 1100,1900"), s("1100,1900 1100,2000 1100,2100"),
                              s("1100,2100 1000,2100 900,2100"), s("900,2100 900,2000 900,1900"),
                              layouts.first()}));
    }

    void aCustomTableOf1234RotatesTo4123()
    {
        KWTable table(KWTable::Custom, s("T"), 1, 2, 3, 4, {}, {});
        table.rotate();
        QCOMPARE(table.sides(), (KWTable::Sides{4, 1, 2, 3}));
        QCOMPARE(KWTableGeometry(table).size(), QSize(400, 300));
    }

    void rotatingTurnsEverySeatWithItsGuestByAQuarter_data()
    {
        QTest::addColumn<int>("shape");
        QTest::addColumn<int>("seatsMoved");
        QTest::newRow("rectangular") << int(KWTable::Rectangular) << 2;
        QTest::newRow("custom") << int(KWTable::Custom) << 4;
        QTest::newRow("head") << int(KWTable::HeadRight) << 0;
    }

    void rotatingTurnsEverySeatWithItsGuestByAQuarter()
    {
        QFETCH(int, shape);
        QFETCH(int, seatsMoved);
        KWTable table(shape, s("T"), 3, 2, 1, 4, {}, {});
        const auto before = KWTableGeometry(table).seatCentres({});
        table.rotate();
        const auto after = KWTableGeometry(table).seatCentres({});
        QCOMPARE(after.size(), before.size());
        for (std::size_t i = 0; i < before.size(); ++i) {
            const QPointF turned(-before[i].y(), before[i].x());
            QCOMPARE(after[(i + std::size_t(seatsMoved)) % after.size()], turned);
        }
    }

    void theBoundsHoldTableAndSeats()
    {
        const KWTableGeometry head(KWTable::HeadTop, 3, 0, 0, 0);
        QCOMPARE(head.bounds({1000, 2000}), QRectF(QPointF(846, 1850), QPointF(1154, 2054)));
        const KWTableGeometry four(KWTable::Circular, 4, 0, 0, 0);
        const QRectF bounds = four.bounds({});
        QCOMPARE(bounds.top(), -175.);
        QCOMPARE(qRound(bounds.bottom()), 175);
        QCOMPARE(KWTableGeometry(KWTable::HeadTop, 0, 0, 0, 0).bounds({}),
                 QRectF(-54, -54, 108, 108));
        QVERIFY(KWTableGeometry(KWTable::ShapeCount, 8, 0, 0, 0).bounds({}).isEmpty());
    }

    void aRoundTableIsPaintedInItsCircleOnly()
    {
        // 161 across.
        const KWTableGeometry round(KWTable::Circular, 8, 0, 0, 0);
        QVERIFY(round.isPaintedAt({0, 0}));
        QVERIFY(round.isPaintedAt({0, -81}));
        QVERIFY(!round.isPaintedAt({0, -82}));
        QVERIFY(round.isPaintedAt({-57, 57}));
        QVERIFY(!round.isPaintedAt({58, 58}));
        const KWTableGeometry square(KWTable::Rectangular, 2, 2, 0, 0);
        QVERIFY(square.isPaintedAt({103, -103}));
        QVERIFY(!square.isPaintedAt({105, 0}));
    }
};

REGISTER_TEST(TestTableGeometry)
#include "tst_kwtablegeometry.moc"
