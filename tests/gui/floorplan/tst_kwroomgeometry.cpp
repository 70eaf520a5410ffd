#include "gui/floorplan/kwroomgeometry.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QtTest>

#include <limits>

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

QList<QPointF> squeezedInto(int width, int height, const QList<QPointF> &centres)
{
    return KWRoomGeometry::squeezed(centres, {width, height});
}
} // namespace

class TestRoomGeometry : public QObject
{
    Q_OBJECT

private slots:
    void aSeatIsAHundredUnitsWideInAnyRoom_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<double>("chair");
        QTest::addColumn<QSize>("canvas");

        QTest::newRow("10 m by 8 m, chairs of 0.5 m") << 10.0 << 8.0 << 0.5 << QSize(2000, 1600);
        QTest::newRow("a new plan") << 20.0 << 20.0 << 0.6 << QSize(3333, 3333);
        QTest::newRow("rounded up and down") << 10.004 << 10.006 << 1.0 << QSize(1000, 1001);
        QTest::newRow("a room of 0") << 0.0 << 8.0 << 0.5 << QSize(4000, 1600);
        QTest::newRow("a negative room") << 10.0 << -8.0 << 0.5 << QSize(2000, 4000);
        QTest::newRow("a room that is no number") << notANumber << 8.0 << 0.5 << QSize(4000, 1600);
        QTest::newRow("an infinite room") << infinite << -infinite << 0.5 << QSize(4000, 4000);
        QTest::newRow("a giant room") << 1e9 << 1e300 << 0.5 << QSize(200'000, 200'000);
        QTest::newRow("a tiny room") << 0.01 << 1e-300 << 0.5 << QSize(200, 200);
        QTest::newRow("the largest and the least") << 1000.0 << 1.0 << 0.5 << QSize(200'000, 200);
        QTest::newRow("a chair of 0") << 6.0 << 12.0 << 0.0 << QSize(1000, 2000);
        QTest::newRow("a negative chair") << 6.0 << 12.0 << -1.0 << QSize(1000, 2000);
        QTest::newRow("a chair that is no number")
            << 6.0 << 12.0 << notANumber << QSize(1000, 2000);
        QTest::newRow("an infinite chair") << 6.0 << 12.0 << infinite << QSize(1000, 2000);
        QTest::newRow("a giant chair") << 10.0 << 10.0 << 1e9 << QSize(200, 200);
        QTest::newRow("a tiny chair") << 10.0 << 10.0 << 1e-9 << QSize(200'000, 200'000);
        QTest::newRow("a chair next to nothing")
            << 10.0 << 10.0 << 5e-324 << QSize(200'000, 200'000);
    }

    void aSeatIsAHundredUnitsWideInAnyRoom()
    {
        QFETCH(double, x);
        QFETCH(double, y);
        QFETCH(double, chair);
        QTEST(KWRoomGeometry::canvasSize(x, y, chair), "canvas");
    }

    void tablesInsideTheRoomStayWhereTheyAre()
    {
        const QList<QPointF> centres{{100, 200}, {2000, 1600}};
        QCOMPARE(squeezedInto(2000, 1600, centres), centres);
    }

    void aSmallerRoomSqueezesTheCentresTowardsTheOriginOnEachAxis()
    {
        QCOMPARE(squeezedInto(1000, 1200, {{100, 400}, {2000, 800}, {500, 1600}}),
                 QList<QPointF>({{50, 300}, {1000, 600}, {250, 1200}}));
    }

    void xIsNotTouchedIfOnlyYOverflows()
    {
        QCOMPARE(squeezedInto(1000, 500, {{900, 1000}, {1000, 300}}),
                 QList<QPointF>({{900, 500}, {1000, 150}}));
    }

    void yIsNotTouchedIfOnlyXOverflows()
    {
        QCOMPARE(squeezedInto(500, 1000, {{1000, 900}, {300, 1000}}),
                 QList<QPointF>({{500, 900}, {150, 1000}}));
    }

    void tablesBeyondTheOriginAreSqueezedTowardsIt()
    {
        QCOMPARE(squeezedInto(1000, 1000, {{-400, 10}, {2000, 10}}),
                 QList<QPointF>({{-200, 10}, {1000, 10}}));
        QCOMPARE(squeezedInto(1000, 1000, {{-4000, -4000}}), QList<QPointF>({{-4000, -4000}}));
    }

    void noTablesAreSqueezedIntoNone() { QCOMPARE(squeezedInto(1000, 1000, {}), QList<QPointF>()); }

    void theMarginIsAPartOfTheLongerSideOnEachSide_data()
    {
        QTest::addColumn<QRectF>("bounds");
        QTest::addColumn<double>("margin");
        QTest::addColumn<QRectF>("grown");

        const QRectF wide(100, 200, 1000, 400);
        QTest::newRow("wide") << wide << 0.05 << QRectF(50, 150, 1100, 500);
        QTest::newRow("high") << QRectF(0, 0, 400, 1000) << 0.05 << QRectF(-50, -50, 500, 1100);
        QTest::newRow("rounded") << QRectF(0, 0, 410, 10) << 0.05 << QRectF(-21, -21, 452, 52);
        QTest::newRow("none") << wide << 0.0 << wide;
        QTest::newRow("negative") << wide << -0.5 << wide;
        QTest::newRow("no number") << wide << notANumber << wide;
        QTest::newRow("infinite") << wide << infinite << wide;
        QTest::newRow("of nothing") << QRectF() << 0.05 << QRectF();
        QTest::newRow("of a line") << QRectF(0, 5, 100, 0) << 0.05 << QRectF(-5, 0, 110, 10);
    }

    void theMarginIsAPartOfTheLongerSideOnEachSide()
    {
        QFETCH(QRectF, bounds);
        QFETCH(double, margin);
        QTEST(KWRoomGeometry::withMargin(bounds, margin), "grown");
    }

    void theShorterSideGrowsAboutTheCentre_data()
    {
        QTest::addColumn<QRectF>("bounds");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<QRectF>("grown");

        const QRectF wide(100, 200, 400, 200);
        QTest::newRow("too wide") << wide << 1.0 << QRectF(100, 100, 400, 400);
        QTest::newRow("too high") << wide << 4.0 << QRectF(-100, 200, 800, 200);
        QTest::newRow("right already") << wide << 2.0 << wide;
        QTest::newRow("of a line across")
            << QRectF(0, 50, 100, 0) << 0.5 << QRectF(0, -50, 100, 200);
        QTest::newRow("of a line down") << QRectF(50, 0, 0, 100) << 0.5 << QRectF(25, 0, 50, 100);
        QTest::newRow("of nothing") << QRectF() << 2.0 << QRectF();
        QTest::newRow("a ratio of 0") << wide << 0.0 << wide;
        QTest::newRow("a negative ratio") << wide << -1.0 << wide;
        QTest::newRow("a ratio that is no number") << wide << notANumber << wide;
        QTest::newRow("an infinite ratio") << wide << infinite << wide;
    }

    void theShorterSideGrowsAboutTheCentre()
    {
        QFETCH(QRectF, bounds);
        QFETCH(double, ratio);
        QTEST(KWRoomGeometry::withAspect(bounds, ratio), "grown");
    }

    void whatStandsOverTheEdgeIsWithinReachWithASeatOfAir_data()
    {
        QTest::addColumn<QRectF>("items");
        QTest::addColumn<QRectF>("reach");
        const QRectF room(0, 0, 2000, 1600);
        QTest::newRow("nothing") << QRectF() << room;
        QTest::newRow("inside") << QRectF(0, 0, 2000, 1600) << room;
        QTest::newRow("left") << QRectF(-10, 200, 100, 100) << QRectF(-110, 0, 2110, 1600);
        QTest::newRow("top") << QRectF(10, -1, 100, 100) << QRectF(0, -101, 2000, 1701);
        QTest::newRow("right") << QRectF(1950, 200, 100, 100) << QRectF(0, 0, 2150, 1600);
        QTest::newRow("bottom") << QRectF(10, 1550, 100, 100) << QRectF(0, 0, 2000, 1750);
    }

    void whatStandsOverTheEdgeIsWithinReachWithASeatOfAir()
    {
        QFETCH(QRectF, items);
        QTEST(KWRoomGeometry::reach({2000, 1600}, items), "reach");
    }
};

REGISTER_TEST(TestRoomGeometry)
#include "tst_kwroomgeometry.moc"
