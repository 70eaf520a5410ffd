#include "gui/floorplan/kwplacefinder.h"
#include "gui/floorplan/kwtablegeometry.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QtTest>

#include <cmath>
#include <random>

namespace {

/// The area of a circular table of 8, 569 across with what stays free around it.
constexpr QSizeF eight(169, 169);

QRectF around(const QPointF &centre, const QSizeF &size)
{
    QRectF area(QPointF(), size);
    area.moveCenter(centre);
    return area;
}

/// The same search without a grid: every place against every table.
QPoint plainSearch(const QSize &canvas, const QList<QRectF> &tables, const QPointF &wanted,
                   const QSizeF &size)
{
    double x = wanted.x() < 100 ? 100 : wanted.x();
    double y = wanted.y() < 100 ? 100 : wanted.y();
    x = x > canvas.width() - 100 ? canvas.width() - 100 : x;
    y = y > canvas.height() - 100 ? canvas.height() - 100 : y;
    const QRectF rectangle = around({x, y}, size).adjusted(-200, -200, 200, 200);
    const double side = qMin(rectangle.width(), rectangle.height());
    for (int ring = 0;; ++ring) {
        const double radius = ring * side;
        const int steps = qMax(1, int(radius * 6.284 / side));
        for (int i = 0; i < steps; ++i) {
            const double dx = std::cos(i * 6.284 / steps) * radius;
            const double dy = std::sin(i * 6.284 / steps) * radius;
            const QRectF moved = rectangle.translated(qRound(dx), qRound(dy));
            const bool collides =
                std::any_of(tables.begin(), tables.end(), [&](const QRectF &table) {
                    return table.left() < moved.right() && moved.left() < table.right() &&
                           table.top() < moved.bottom() && moved.top() < table.bottom();
                });
            if (x + dx < 0 || y + dy < 0 || x + dx > canvas.width() || y + dy > canvas.height()) {
                if (radius > 1.5 * canvas.width() || radius > 1.5 * canvas.height())
                    return {qRound(x), qRound(y)};
            } else if (!collides) {
                return {qRound(x + dx), qRound(y + dy)};
            }
        }
    }
}
} // namespace

class TestPlaceFinder : public QObject
{
    Q_OBJECT

private slots:
    void aTableInFreeSpaceStaysWhereItIs()
    {
        KWPlaceFinder finder({3000, 3000});
        finder.add(around({2000, 1500}, eight));
        QCOMPARE(finder.freePlace({1000, 1500}, eight).centre, QPoint(1000, 1500));
    }

    void thePlaceWantedIsBroughtInsideTheCanvas_data()
    {
        QTest::addColumn<QSize>("canvas");
        QTest::addColumn<QPointF>("wanted");
        QTest::addColumn<QPoint>("place");

        const QSize room(3000, 2000);
        QTest::newRow("top left") << room << QPointF(99, -5000) << QPoint(100, 100);
        QTest::newRow("bottom right") << room << QPointF(2901, 1e9) << QPoint(2900, 1900);
        QTest::newRow("on the limits") << room << QPointF(100, 1900) << QPoint(100, 1900);
        QTest::newRow("between units") << room << QPointF(500.5, 499.4) << QPoint(501, 499);
        QTest::newRow("the least canvas") << QSize(200, 200) << QPointF(7, 190) << QPoint(100, 100);
        QTest::newRow("a canvas too small for both limits")
            << QSize(150, 150) << QPointF(120, 0) << QPoint(50, 50);
        QTest::newRow("no number") << room << QPointF(qQNaN(), qQNaN()) << QPoint(100, 100);
    }

    void thePlaceWantedIsBroughtInsideTheCanvas()
    {
        QFETCH(QSize, canvas);
        QFETCH(QPointF, wanted);
        QTEST(KWPlaceFinder(canvas).freePlace(wanted, eight).centre, "place");
    }

    void theRingsAreWalkedFromTheRightClockwise()
    {
        // In the first ring of radius 569 there are six steps of 6.284 ÷ 6. In the second, with
        // twelve, the first place is taken only when the first ring is full.
        KWPlaceFinder finder({6000, 6000});
        const QList<QPoint> places{{3000, 3000}, {3569, 3000}, {3284, 3493}, {2715, 3493},
                                   {2431, 3000}, {2716, 2507}, {3285, 2507}, {4138, 3000}};
        for (const QPoint &place : places) {
            QCOMPARE(finder.freePlace({3000, 3000}, eight).centre, place);
            finder.add(around(place, eight));
        }
    }

    void theShorterSideIsTheWidthOfTheRings()
    {
        KWPlaceFinder finder({6000, 6000});
        const QSizeF head(308, 108);
        finder.add(around({3000, 3000}, head));
        // 708 by 508 with what stays free; 508 to the right its edge just touches the other.
        QCOMPARE(finder.freePlace({3000, 3000}, head).centre, QPoint(3508, 3000));
    }

    void tablesWhoseEdgesTouchDoNotCollide()
    {
        KWPlaceFinder touching({3000, 3000});
        touching.add(QRectF(0, 0, 1000, 3000));
        QCOMPARE(touching.freePlace({1300, 1500}, {200, 200}).centre, QPoint(1300, 1500));
        QCOMPARE(touching.freePlace({1299.5, 1500}, {200, 200}).centre, QPoint(1900, 1500));
    }

    void anAngleOutsideTheCanvasIsLost()
    {
        // At the right edge the first of the six places lies outside, the second one, too.
        KWPlaceFinder finder({3000, 3000});
        finder.add(around({2900, 1500}, eight));
        QCOMPARE(finder.freePlace({2900, 1500}, eight).centre, QPoint(2615, 1993));
    }

    void aCentreOnTheEdgeOfTheCanvasIsInside()
    {
        KWPlaceFinder finder({2469, 3000});
        finder.add(around({1900, 1500}, eight));
        QCOMPARE(finder.freePlace({1900, 1500}, eight).centre, QPoint(2469, 1500));
    }

    void inAFullRoomATableStaysAtItsClampedPlace()
    {
        KWPlaceFinder finder({2000, 1500});
        finder.add(QRectF(0, 0, 2000, 1500));
        QCOMPARE(finder.freePlace({-50, 700}, eight).centre, QPoint(100, 700));
        QCOMPARE(finder.freePlace({5000, 5000}, eight).centre, QPoint(1900, 1400));
    }

    void whetherAPlaceIsFreeIsTold()
    {
        KWPlaceFinder finder({2000, 1500});
        QVERIFY(finder.freePlace({1000, 700}, eight).isFree);
        finder.add(QRectF(900, 700, 200, 200));
        QVERIFY(finder.freePlace({1000, 700}, eight).isFree);
        finder.add(QRectF(0, 0, 2000, 1500));
        QVERIFY(!finder.freePlace({1000, 700}, eight).isFree);
    }

    void theSearchEndsWhereItPassesOneAndAHalfTimesTheLowerSide()
    {
        // To the right of the first 900 units all is free, but the second ring would have to
        // be walked for it, and the first one leaves the low canvas far behind.
        KWPlaceFinder low({10'000, 200});
        low.add(QRectF(0, 0, 900, 200));
        QCOMPARE(low.freePlace({100, 100}, eight).centre, QPoint(100, 100));
        KWPlaceFinder higher({10'000, 400});
        higher.add(QRectF(0, 0, 900, 400));
        QCOMPARE(higher.freePlace({100, 100}, eight).centre, QPoint(1238, 100));
    }

    void aTableBeyondTheCanvasIsKeptClearOf()
    {
        KWPlaceFinder finder({3000, 3000});
        finder.add(QRectF(3050, 0, 5000, 3000));
        QCOMPARE(finder.freePlace({2900, 1500}, eight).centre, QPoint(2615, 1993));
    }

    void aTableOfUnknownShapeTakesNoPlace()
    {
        KWPlaceFinder finder({3000, 3000});
        finder.add(KWTableGeometry(KWTable::ShapeCount, 8, 0, 0, 0).area({0, 0}));
        QCOMPARE(finder.freePlace({100, 100}, eight).centre, QPoint(100, 100));
        for (const QSizeF &none : {QSizeF(), QSizeF(0, 0), QSizeF(-400, -1000)})
            QCOMPARE(finder.freePlace({1500, 1500}, none).centre, QPoint(1500, 1500));
    }

    void aCanvasOfNoSizeEndsTheSearch()
    {
        KWPlaceFinder finder({0, 0});
        finder.add(QRectF(-500, -500, 1000, 1000));
        QCOMPARE(finder.freePlace({0, 0}, eight).centre, QPoint(-100, -100));
    }

    void placesAreThoseOfThePlainSearch_data()
    {
        QTest::addColumn<QSize>("canvas");
        QTest::addColumn<int>("spread");
        QTest::addColumn<int>("mostSeats");
        QTest::newRow("room of a new plan, soon full") << QSize(3333, 3333) << 3333 << 10;
        QTest::newRow("large") << QSize(12'000, 9000) << 12'000 << 16;
        QTest::newRow("low") << QSize(9000, 500) << 9000 << 10;
        QTest::newRow("narrow") << QSize(300, 8000) << 8000 << 10;
        QTest::newRow("the least") << QSize(200, 200) << 200 << 4;
        QTest::newRow("tables far outside") << QSize(4000, 4000) << 20'000 << 10;
        QTest::newRow("giant tables") << QSize(60'000, 50'000) << 60'000 << 300;
    }

    void placesAreThoseOfThePlainSearch()
    {
        QFETCH(QSize, canvas);
        QFETCH(int, spread);
        QFETCH(int, mostSeats);
        std::mt19937 engine(5);
        const auto draw = [&](int n) { return int(engine() % unsigned(n)); };
        const auto drawPoint = [&] {
            return QPointF(draw(2 * spread) - spread / 2, draw(2 * spread) - spread / 2);
        };
        const auto drawTable = [&] {
            const auto count = [&] { return draw(mostSeats); };
            return KWTableGeometry(draw(KWTable::ShapeCount), count(), count(), count(), count());
        };
        for (int round = 0; round < 10; ++round) {
            KWPlaceFinder finder(canvas);
            QList<QRectF> tables;
            const auto add = [&](const QRectF &area) {
                finder.add(area);
                tables.append(area);
            };
            for (int i = 0; i < 20; ++i)
                add(drawTable().area(drawPoint()));
            for (int i = 0; i < 40; ++i) {
                const KWTableGeometry table = drawTable();
                const QPointF wanted = i % 2 == 0 ? drawPoint() : QPointF(spread, spread) / 2;
                const QSizeF size = table.area(wanted).size();
                const QPoint place = finder.freePlace(wanted, size).centre;
                QCOMPARE(place, plainSearch(canvas, tables, wanted, size));
                add(table.area(place));
            }
        }
    }
};

REGISTER_TEST(TestPlaceFinder)
#include "tst_kwplacefinder.moc"
