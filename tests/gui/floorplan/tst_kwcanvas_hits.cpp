#include "support/gui/canvasplan.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"

// What is hit at a point of the floor plan.

class TestKWCanvasHits : public QObject
{
    Q_OBJECT

private slots:
    void theMiddleOfEachSeatOfARoundTableHitsTheSeat_data()
    {
        QTest::addColumn<int>("seats");
        for (const int seats : {1, 4, 8, 13, 16, 24, 100})
            QTest::addRow("%d", seats) << seats;
    }

    void theMiddleOfEachSeatOfARoundTableHitsTheSeat()
    {
        QFETCH(int, seats);
        CanvasPlan shown;
        shown.plan.setRoomXSize(50);
        shown.plan.setRoomYSize(50);
        shown.canvas.resizeToRoom();
        const KWTable *table = shown.table("T", KWTable::Circular, seats, {5000, 5000});
        for (int seat = 0; seat < seats; ++seat) {
            const KWSeatCanvasViewItem *item = shown.canvas.itemOfSeat(table, seat);
            QCOMPARE(shown.canvas.itemAtPoint(item->pos()), item);
        }
        QCOMPARE(shown.canvas.itemAtPoint({5000, 5000}), shown.canvas.itemOfTable(table));
    }

    void theCircleOfARoundTableLiesOverItsSeats()
    {
        CanvasPlan shown;
        const KWTable *table = shown.table("T", KWTable::Circular, 16, {1000, 800});
        const KWSeatCanvasViewItem *seat = shown.canvas.itemOfSeat(table, 0);
        // Where the square of the seat reaches into the circle.
        const QPointF inside = seat->pos() + QPointF(0, 49.5);
        QVERIFY(seat->area().contains(inside));
        QCOMPARE(shown.canvas.itemAtPoint(inside), shown.canvas.itemOfTable(table));
    }

    void aCornerWithoutASeatBelongsToTheTable()
    {
        CanvasPlan shown;
        const KWTable *none = shown.table("N", KWTable::Circular, 0, {1000, 800});
        QCOMPARE(shown.canvas.itemAtPoint({1070, 870}), shown.canvas.itemOfTable(none));
    }

    void aSeatUnderAnotherTableIsNotHitThroughIt()
    {
        CanvasPlan shown;
        const KWTable *round = shown.table("R", KWTable::Circular, 16, {1000, 800});
        const QPointF middle = shown.canvas.itemOfSeat(round, 2)->pos();
        QCOMPARE(shown.canvas.itemAtPoint(middle), shown.canvas.itemOfSeat(round, 2));
        const KWTable *over = shown.table("O", KWTable::HeadTop, 2, middle.toPoint());
        const QGraphicsItem *hit = shown.canvas.itemAtPoint(middle);
        QVERIFY(hit == shown.canvas.itemOfTable(over) || hit == shown.canvas.itemOfTable(round));
    }

    void aSeatIsHitBetweenTheCornersOfTwoRoundTables()
    {
        CanvasPlan shown;
        const KWTable *a = shown.table("A", KWTable::Circular, 16, {700, 800});
        const QPointF seat = shown.canvas.itemOfSeat(a, 2)->pos();
        // Its corner covers the same seat.
        const KWTable *b =
            shown.table("B", KWTable::Circular, 0, (seat + QPointF(70, 70)).toPoint());
        QVERIFY(shown.canvas.itemOfTable(b)->area().contains(seat));
        const QGraphicsItem *hit = shown.canvas.itemAtPoint(seat);
        QVERIFY(hit->type() == int(KWSeatCanvasViewItem::Type));
    }

    void theRectangleOfOtherTablesCoversTheirSeats()
    {
        CanvasPlan shown;
        const KWTable *table = shown.table("T", KWTable::HeadTop, 2, {1000, 800});
        const KWSeatCanvasViewItem *seat = shown.canvas.itemOfSeat(table, 0);
        QCOMPARE(shown.canvas.itemAtPoint(seat->pos() + QPointF(0, 47)),
                 shown.canvas.itemOfTable(table));
    }
};

REGISTER_TEST(TestKWCanvasHits)
#include "tst_kwcanvas_hits.moc"
