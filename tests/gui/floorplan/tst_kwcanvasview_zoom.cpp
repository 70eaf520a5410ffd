#include "support/gui/modaluser.h"
#include "support/gui/shownplan.h"
#include "support/registeredtest.h"

#include <QScrollBar>
#include <QStyle>
#include <QToolTip>
#include <QWheelEvent>

// What part of the floor plan is seen, and how large.

namespace {

QPointF pointAt(const KWCanvasView &view, const QPointF &place)
{
    return view.viewportTransform().inverted().map(place);
}

bool isNear(const QPointF &a, const QPointF &b, double distance)
{
    return (a - b).manhattanLength() <= distance;
}

void turnWheel(KWCanvasView &view, const QPointF &place, int turn)
{
    QWheelEvent wheel(place, view.viewport()->mapToGlobal(place), {}, {0, turn}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view.viewport(), &wheel);
}
} // namespace

class TestKWCanvasViewZoom : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestHome::clearSettings(); }

    void theCommandsKeepTheMiddle()
    {
        ShownPlan shown;
        shown.view.setZoom(1 / shown.view.zoom());
        shown.view.centerOn(1000, 800);
        const QPointF middle = shown.view.centre();
        QVERIFY(isNear(middle, {1000, 800}, 2));
        shown.view.zoomIn();
        QVERIFY(isNear(shown.view.centre(), middle, 2));
        shown.view.zoomIn();
        QVERIFY(isNear(shown.view.centre(), middle, 3));
        shown.view.zoomOut();
        QVERIFY(isNear(shown.view.centre(), middle, 3));
        QVERIFY(shown.view.updatesEnabled());
        QVERIFY(!QApplication::overrideCursor());
    }

    void theUserWaitsWhileItZooms()
    {
        ShownPlan shown;
        int waits = 0;
        bool updates = true;
        connect(&shown.view, &KWCanvasView::zoomChanged, this, [&] {
            waits += QApplication::overrideCursor() ? 1 : 0;
            updates = shown.view.updatesEnabled();
        });
        shown.view.zoomIn();
        QVERIFY(waits == 1 && !updates);
        shown.view.zoomOut();
        QVERIFY(waits == 2 && !updates);
        shown.view.zoomCentre();
        QVERIFY(waits == 3);
    }

    void theWheelZoomsAboutThePointer()
    {
        ShownPlan shown;
        shown.view.setZoom(1 / shown.view.zoom());
        shown.view.centerOn(1000, 800);
        const QPointF place(200, 450);
        const QPointF before = pointAt(shown.view, place);
        turnWheel(shown.view, place, 120);
        QCOMPARE(shown.view.zoom(), 1.3);
        QVERIFY(isNear(pointAt(shown.view, place), before, 2));
        // Each step rounds to a pixel.
        turnWheel(shown.view, place, -240);
        QVERIFY(isNear(pointAt(shown.view, place), before, 8));
    }

    void whatStandsOverTheEdgeOfTheRoomCanBeSeen_data()
    {
        QTest::addColumn<QPoint>("place");
        QTest::newRow("left") << QPoint(20, 800);
        QTest::newRow("top") << QPoint(1000, 20);
        QTest::newRow("right") << QPoint(1990, 800);
        QTest::newRow("bottom") << QPoint(1000, 1590);
    }

    void whatStandsOverTheEdgeOfTheRoomCanBeSeen()
    {
        QFETCH(QPoint, place);
        ShownPlan shown;
        shown.table("A", KWTable::Circular, 8, {1000, 800});
        shown.table("B", KWTable::Circular, 8, place);
        const QRectF bounds = shown.canvas.itemBounds(0);
        QVERIFY(shown.view.sceneRect().contains(bounds));
        QVERIFY(shown.view.sceneRect().contains(shown.canvas.sceneRect()));
        // The canvas is the room all the same.
        QCOMPARE(shown.canvas.sceneRect(), QRectF(0, 0, 2000, 1600));
        shown.view.zoomCentre();
        const QRect seen = shown.view.mapFromScene(bounds).boundingRect();
        QVERIFY(shown.view.viewport()->rect().adjusted(-2, -2, 2, 2).contains(seen));
        QVERIFY(isNear(shown.view.centre(), bounds.center(), 3 / shown.view.zoom()));
    }

    void whatIsSeenFollowsTheTables()
    {
        ShownPlan shown;
        const QRectF room(0, 0, 2000, 1600);
        QCOMPARE(shown.view.sceneRect(), room);
        KWTable *table = shown.table("A", KWTable::HeadTop, 2, {1000, 1570});
        QCOMPARE(shown.view.sceneRect(), QRectF(0, 0, 2000, 1724));
        shown.plan.resizeTable(table, 24, false);
        QVERIFY(shown.view.sceneRect().left() < 0 && shown.view.sceneRect().right() > 2000);
        shown.plan.resizeTable(table, 2, false);
        QCOMPARE(shown.view.sceneRect(), QRectF(0, 0, 2000, 1724));
        shown.plan.deleteTable(table, false);
        QCOMPARE(shown.view.sceneRect(), room);
        table = shown.table("B", KWTable::HeadTop, 2, {1000, 1570});
        shown.view.placeNewTable(table);
        QCOMPARE(shown.view.sceneRect(), room);
    }

    void aTableThatIsMovedOverTheEdgeIsWithinReachWhereItLands()
    {
        ShownPlan shown;
        KWTable *table = shown.table("A", KWTable::HeadTop, 2, {1000, 1000});
        const QPoint start = shown.placeOf(table);
        shown.press(Qt::LeftButton, start);
        shown.moveTo(start + QPoint(0, 171));
        QCOMPARE(shown.view.sceneRect(), QRectF(0, 0, 2000, 1600));
        shown.release(Qt::LeftButton, start + QPoint(0, 171));
        QCOMPARE(shown.view.sceneRect(), QRectF(0, 0, 2000, 1724));
    }

    void zoomingOutEndsWhereTablesAndRoomAreSeen()
    {
        ShownPlan shown;
        shown.plan.setRoomXSize(3);
        shown.plan.setRoomYSize(3);
        shown.canvas.resizeToRoom();
        shown.table("A", KWTable::HeadTop, 20, {300, 300});
        shown.view.setZoom(1 / shown.view.zoom());
        // The room is seen long before the table is.
        QVERIFY(600 * shown.view.zoom() <= 600);
        QVERIFY(shown.view.canZoomOut());
        int steps = 0;
        while (shown.view.canZoomOut() && ++steps < 50)
            shown.view.zoomOut();
        QVERIFY(steps > 0 && steps < 50);
        const QRect seen = shown.view.mapFromScene(shown.canvas.itemBounds(0)).boundingRect();
        QVERIFY(shown.view.viewport()->rect().adjusted(-2, -2, 2, 2).contains(seen));
    }

    void aPlanWithoutTablesIsSeenInTheMiddleOfTheRoom()
    {
        ShownPlan shown;
        shown.plan.setRoomXSize(40);
        shown.plan.setRoomYSize(40);
        shown.canvas.resizeToRoom();
        shown.view.zoomCentre();
        QCOMPARE(shown.view.zoom(), 0.3);
        QVERIFY(isNear(shown.view.centre(), {4000, 4000}, 5));
    }

    void aFittedPlanLeavesRoomForTheScrollBars()
    {
        ShownPlan shown;
        shown.table("T", KWTable::HeadTop, 10, {1000, 800});
        shown.view.zoomCentre();
        const int bar =
            shown.view.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &shown.view);
        const double width = shown.canvas.itemBounds(0).width() * shown.view.zoom();
        QCOMPARE(qRound(width), shown.view.maximumViewportSize().width() - bar);
    }

    void theMiddleButtonPansAndSelectsNothing()
    {
        ShownPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {1000, 800});
        shown.view.setZoom(2 / shown.view.zoom());
        shown.view.centerOn(1000, 800);
        const QPoint start = shown.placeOf(table);
        const QPointF point = pointAt(shown.view, start);
        shown.press(Qt::MiddleButton, start);
        QCOMPARE(shown.view.viewport()->cursor().shape(), Qt::ClosedHandCursor);
        shown.moveTo(start + QPoint(50, -40), Qt::MiddleButton);
        shown.moveTo(start + QPoint(70, -60), Qt::MiddleButton);
        QVERIFY(isNear(pointAt(shown.view, start + QPoint(70, -60)), point, 1));
        QCOMPARE(shown.canvas.selected(), nullptr);
        QCOMPARE(shown.window.currentView, &shown.view);
        shown.release(Qt::MiddleButton, start + QPoint(70, -60));
        QCOMPARE(shown.view.viewport()->cursor().shape(), Qt::ArrowCursor);
        shown.moveTo(start, Qt::NoButton);
        QVERIFY(isNear(pointAt(shown.view, start + QPoint(70, -60)), point, 1));
        QCOMPARE(table->position(), QPoint(1000, 800));
    }

    void aPanWhoseReleaseWentElsewhereEnds()
    {
        ShownPlan shown;
        shown.view.setZoom(2 / shown.view.zoom());
        shown.view.centerOn(1000, 800);
        shown.press(Qt::MiddleButton, {300, 300});
        shown.moveTo({310, 300}, Qt::NoButton);
        const QPointF centre = shown.view.centre();
        shown.moveTo({400, 300}, Qt::MiddleButton);
        QCOMPARE(shown.view.centre(), centre);
        QCOMPARE(shown.view.viewport()->cursor().shape(), Qt::ArrowCursor);
    }

    void aPannedPlanStaysWhereItIs()
    {
        ShownPlan shown;
        shown.table("T", KWTable::HeadTop, 10, {1000, 800});
        shown.view.zoomCentre();
        const double zoom = shown.view.zoom();
        shown.press(Qt::MiddleButton, {300, 300});
        shown.moveTo({310, 300}, Qt::MiddleButton);
        shown.release(Qt::MiddleButton, {310, 300});
        shown.view.resize(500, 600);
        QCOMPARE(shown.view.zoom(), zoom);
    }

    void aNewTableIsScrolledToAndTakesTheFocus()
    {
        ShownPlan shown;
        shown.view.setZoom(2 / shown.view.zoom());
        shown.view.centerOn(300, 300);
        KWTable *table = shown.table("T", KWTable::HeadTop, 2, {1700, 1400});
        shown.view.clearFocus();
        shown.window.currentView = nullptr;
        shown.view.showTable(table);
        QVERIFY(shown.view.hasFocus());
        QCOMPARE(shown.window.currentView, &shown.view);
        QVERIFY(shown.view.viewport()->rect().contains(shown.placeOf(table)));
        QCOMPARE(shown.canvas.selected(), shown.canvas.itemOfTable(table));
        QCOMPARE(shown.window.statusMessages.filter(s("full")), QStringList());
    }

    void newTablesThatFindNoPlaceAreTold()
    {
        ShownPlan shown;
        shown.plan.setRoomXSize(2);
        shown.plan.setRoomYSize(2);
        shown.canvas.resizeToRoom();
        const auto insert = [&shown](int tables) {
            KWTable *table = nullptr;
            shown.window.statusMessages.clear();
            for (int i = 0; i < tables; ++i) {
                table = shown.table("T", KWTable::Circular, 4, {200, 200});
                shown.view.placeNewTable(table);
            }
            shown.view.showTable(table);
            return shown.window.statusMessages.filter(s("full"));
        };
        QCOMPARE(insert(1), QStringList());
        QCOMPARE(insert(1), QStringList{s("The room is full: 1 new table stands on others")});
        QCOMPARE(insert(3), QStringList{s("The room is full: 3 new tables stand on others")});
        shown.plan.setRoomXSize(50);
        shown.plan.setRoomYSize(50);
        shown.canvas.resizeToRoom();
        QCOMPARE(insert(1), QStringList());
    }

    void aTipHasHalfASeatAndTheNamesOfThePlan()
    {
        ShownPlan shown;
        KWTable *table = shown.table("Top", KWTable::Circular, 4, {600, 500});
        KWGuest *ann = shown.plan.addGuest({.display_name = s("Annie"),
                                            .first_name = s("Ann"),
                                            .last_name = s("Ash"),
                                            .notes = s("x").repeated(400)},
                                           nullptr);
        shown.plan.assignGuest(ann, table, 0, false);
        shown.view.setNameOrder(KWGuest::LastFirst);
        const QPoint place = shown.placeOf(table, 0);
        QToolTip::hideText();
        QHelpEvent help(QEvent::ToolTip, place, shown.view.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(shown.view.viewport(), &help);
        QVERIFY(QToolTip::text().startsWith(s("<b>Name:</b> Ash, Ann")));
        QVERIFY(QToolTip::text().endsWith(s("...")));
        const auto staysAt = [&](const QPoint &at) {
            QMouseEvent move(QEvent::MouseMove, at, shown.view.viewport()->mapToGlobal(at),
                             Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(shown.view.viewport(), &move);
            return QToolTip::isVisible();
        };
        // 15 pixels wide at this scale.
        QVERIFY(staysAt(place + QPoint(6, 6)));
        staysAt(place + QPoint(9, 0));
        QTRY_VERIFY(!QToolTip::isVisible());
    }
};

REGISTER_TEST(TestKWCanvasViewZoom)
#include "tst_kwcanvasview_zoom.moc"
