#include "gui/exchange/kwdrag.h"
#include "support/gui/hintlog.h"
#include "support/gui/shownplan.h"
#include "support/registeredtest.h"

#include <QScrollBar>
#include <QWheelEvent>
#include <QWindow>

// What the floor plan shows while guests are dragged over it, and how it scrolls then.

namespace {

/// A drag of Eve, who has no seat, over a full table T of Ann, Bob (locked) and Cid.
struct DraggedPlan : ShownPlan
{
    KWTable *t = table("T", KWTable::HeadTop, 3, {600, 500});
    KWGuest *ann = seat("Ann", t, 0);
    KWGuest *bob = seat("Bob", t, 1, true);
    KWGuest *cid = seat("Cid", t, 2);
    KWGuest *eve = addGuest(plan, {"Eve"});
    HintLog log{&view};
    std::unique_ptr<KWDrag> drag;

    bool dragTo(const QPoint &place, const QList<KWGuest *> &guests)
    {
        if (!drag) {
            drag = std::make_unique<KWDrag>(&plan, guests, view.viewport());
            QDragEnterEvent enter(place, Qt::MoveAction, drag->mimeData(), Qt::LeftButton, {});
            QCoreApplication::sendEvent(view.viewport(), &enter);
        }
        QDragMoveEvent move(place, Qt::MoveAction, drag->mimeData(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(view.viewport(), &move);
        return move.isAccepted();
    }
    bool dragTo(const QPoint &place) { return dragTo(place, {eve}); }

    void leave()
    {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(view.viewport(), &leave);
        drag.reset();
    }

    bool dropAt(const QPoint &place)
    {
        QDropEvent drop(place, Qt::MoveAction, drag->mimeData(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(view.viewport(), &drop);
        drag.reset();
        return drop.isAccepted();
    }

    /// "0 2!" of the seats that are outlined, with a mark for a warning.
    QString outlined(const KWTable *table) const
    {
        QStringList all;
        for (const KWSeatCanvasViewItem *seat : canvas.itemOfTable(table)->seatItems()) {
            if (seat->dropMark() != KWSeatCanvasViewItem::NotTaken)
                all.append(QString::number(seat->seat()) +
                           (seat->dropMark() == KWSeatCanvasViewItem::Taken ? s("") : s("!")));
        }
        return all.join(u' ');
    }
    QString outlined() const { return outlined(t); }

    QColor painted(const QPoint &place) const
    {
        return view.viewport()->grab().toImage().pixelColor(place);
    }
};

QPoint scrollOf(const QGraphicsView &view)
{
    return {view.horizontalScrollBar()->value(), view.verticalScrollBar()->value()};
}
} // namespace

class TestKWCanvasViewDrag : public QObject
{
    Q_OBJECT

private slots:
    void theSeatUnderThePointerIsOutlinedAndTheStatusBarTells()
    {
        DraggedPlan shown;
        QVERIFY(shown.dragTo(shown.placeOf(shown.t, 0)));
        QCOMPARE(shown.outlined(), s("0"));
        QVERIFY(shown.dragTo(shown.placeOf(shown.t, 2)));
        QCOMPARE(shown.outlined(), s("2"));
        // The same place is told once.
        QVERIFY(shown.dragTo(shown.placeOf(shown.t, 2) + QPoint(1, 0)));
        QCOMPARE(shown.log.hints, (QStringList{s("Eve: seat 1 of T; Ann loses the seat"),
                                               s("Eve: seat 3 of T; Cid loses the seat")}));
    }

    void overATableAllSeatsThatWouldBeTakenAreOutlined()
    {
        DraggedPlan shown;
        QVERIFY(shown.dragTo(shown.placeOf(shown.t), {shown.eve, shown.cid}));
        QCOMPARE(shown.outlined(), s("0 1!"));
        QCOMPARE(shown.log.hints.last(),
                 s("2 guests: seats 1 to 2 of T; Bob is locked and would lose the seat; "
                   "Ann loses the seat"));
    }

    void whereNothingCanBeDroppedNothingIsOutlined()
    {
        DraggedPlan shown;
        QVERIFY(shown.dragTo(shown.placeOf(shown.t, 0)));
        QVERIFY(!shown.dragTo(shown.placeOf(shown.t, 1)));
        QCOMPARE(shown.outlined(), QString());
        QCOMPARE(shown.log.hints.last(), s("Bob is locked"));
        QVERIFY(!shown.dragTo(shown.placeOf(QPointF(1500, 1200))));
        QCOMPARE(shown.log.hints.last(), QString());
        QVERIFY(shown.dragTo(shown.placeOf(QPointF(2300, 1500)), {}));
        QCOMPARE(shown.log.hints.last(), s("No seat is lost"));
    }

    void aDragThatLeavesTakesOutlineAndTextAway()
    {
        DraggedPlan shown;
        QVERIFY(shown.dragTo(shown.placeOf(shown.t, 0)));
        // Also what Escape sends.
        shown.leave();
        QCOMPARE(shown.outlined(), QString());
        QCOMPARE(shown.log.hints.last(), QString());
        const auto count = shown.log.hints.size();
        shown.leave();
        QCOMPARE(shown.log.hints.size(), count);
    }

    void aDropTakesOutlineAndTextAwayAndSelectsTheSeat()
    {
        DraggedPlan shown;
        QVERIFY(shown.dragTo(shown.placeOf(shown.t, 2)));
        QVERIFY(shown.dropAt(shown.placeOf(shown.t, 2)));
        QCOMPARE(seating(*shown.t), s("Ann Bob Eve"));
        QCOMPARE(shown.outlined(), QString());
        QCOMPARE(shown.log.hints.last(), QString());
        QCOMPARE(shown.canvas.selected(), shown.canvas.itemOfSeat(shown.t, 2));
        QVERIFY(shown.view.canSetLocked());
        QCOMPARE(shown.window.viewUpdates, 1);
    }

    void aDropOutsideKeepsTheSelectionAndUpdatesTheCommands()
    {
        DraggedPlan shown;
        QGraphicsItem *seat = shown.canvas.itemOfSeat(shown.t, 0);
        shown.canvas.setSelected(seat);
        const QPoint outside = shown.placeOf(QPointF(2300, 1500));
        QVERIFY(shown.dragTo(outside, {shown.ann}));
        QCOMPARE(shown.log.hints.last(), s("Ann loses the seat"));
        QVERIFY(shown.dropAt(outside));
        QCOMPARE(shown.canvas.selected(), seat);
        QCOMPARE(shown.window.viewUpdates, 1);
    }

    void aDropOnOnesOwnSeatTakesNoUndoPoint()
    {
        DraggedPlan shown;
        shown.plan.setModified(false);
        const QPoint own = shown.placeOf(shown.t, 0);
        QVERIFY(shown.dragTo(own, {shown.ann}));
        QVERIFY(shown.dropAt(own));
        QCOMPARE(shown.window.undoLabels, QStringList());
        QVERIFY(!shown.plan.isModified());
        QCOMPARE(shown.canvas.selected(), shown.canvas.itemOfSeat(shown.t, 0));
    }

    void theOutlineHasTheColourOfTheSelectionOrWarns()
    {
        DraggedPlan shown;
        shown.plan.setFloorplanColourSelected(QColor(9, 8, 7));
        shown.view.setZoom(1 / shown.view.zoom());
        shown.view.centerOn(600, 500);
        const QPoint left = shown.placeOf(shown.t, 0) - QPoint(48, 0);
        QVERIFY(shown.painted(left) != QColor(9, 8, 7));
        shown.canvas.markDrop({{shown.t, 0, false}});
        QCOMPARE(shown.painted(left), QColor(9, 8, 7));
        shown.canvas.markDrop({{shown.t, 0, true}});
        QCOMPARE(shown.painted(shown.placeOf(shown.t, 0) + QPoint(48, 0)), QColor(210, 67, 67));
        // Also around a seat that is not painted.
        shown.canvas.displaySeats(KWCanvas::None);
        shown.canvas.markDrop({{shown.t, 0, false}});
        QCOMPARE(shown.painted(left), QColor(9, 8, 7));
        shown.canvas.displaySeats(KWCanvas::CircularName);
        const QImage marked = shown.canvas.renderToPixmap(0).toImage();
        shown.canvas.markDrop({});
        QCOMPARE(shown.canvas.renderToPixmap(0).toImage(), marked);
    }

    void aGuestDraggedToTheEdgeScrollsTheView_data()
    {
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<QPoint>("way");
        QTest::newRow("left") << QPoint(5, 300) << QPoint(-1, 0);
        QTest::newRow("right") << QPoint(-5, 300) << QPoint(1, 0);
        QTest::newRow("top") << QPoint(400, 5) << QPoint(0, -1);
        QTest::newRow("bottom") << QPoint(400, -5) << QPoint(0, 1);
        QTest::newRow("corner") << QPoint(5, 5) << QPoint(-1, -1);
    }

    void aGuestDraggedToTheEdgeScrollsTheView()
    {
        QFETCH(QPoint, place);
        QFETCH(QPoint, way);
        DraggedPlan shown;
        shown.view.setZoom(2 / shown.view.zoom());
        shown.view.centerOn(1000, 800);
        const QSize size = shown.view.viewport()->size();
        const QPoint at(place.x() < 0 ? size.width() + place.x() : place.x(),
                        place.y() < 0 ? size.height() + place.y() : place.y());
        const QPoint before = scrollOf(shown.view);
        const auto direction = [&] {
            const QPoint gone = scrollOf(shown.view) - before;
            return QPoint((gone.x() > 0) - (gone.x() < 0), (gone.y() > 0) - (gone.y() < 0));
        };
        shown.dragTo(at);
        QTRY_COMPARE(direction(), way);
        shown.leave();
        QVERIFY(!shown.view.findChild<KWEdgeScroll *>()->isActive());
    }

    void awayFromTheEdgeNothingScrolls()
    {
        DraggedPlan shown;
        shown.view.setZoom(2 / shown.view.zoom());
        shown.view.centerOn(1000, 800);
        const QPoint before = scrollOf(shown.view);
        for (const QPoint &place : {QPoint(25, 25), QPoint(400, 300)}) {
            shown.dragTo(place);
            QVERIFY(!shown.view.findChild<KWEdgeScroll *>()->isActive());
        }
        shown.dragTo({23, 300});
        QVERIFY(shown.view.findChild<KWEdgeScroll *>()->isActive());
        shown.dragTo({400, 300});
        QVERIFY(!shown.view.findChild<KWEdgeScroll *>()->isActive());
        QCOMPARE(scrollOf(shown.view), before);
    }

    void theOutlineFollowsWhatScrollsUnderThePointer()
    {
        DraggedPlan shown;
        shown.view.setZoom(2 / shown.view.zoom());
        // The first seat lies a little to the left of what is seen.
        shown.view.centerOn(shown.canvas.itemOfSeat(shown.t, 0)->pos() + QPointF(260, 0));
        const QPoint place(3, shown.placeOf(shown.t, 0).y());
        QVERIFY(!shown.dragTo(place));
        QTRY_COMPARE(shown.outlined(), s("0"));
    }

    void theWheelScrollsDuringADrag()
    {
        DraggedPlan shown;
        shown.view.setZoom(2 / shown.view.zoom());
        shown.view.centerOn(1000, 800);
        const auto turn = [&shown](Qt::KeyboardModifiers modifiers) {
            const QPointF place(400, 300);
            QWheelEvent wheel(place, shown.view.viewport()->mapToGlobal(place), {}, {0, -120},
                              Qt::LeftButton, modifiers, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(shown.view.window()->windowHandle(), &wheel);
        };
        shown.dragTo({400, 300});
        const QPoint before = scrollOf(shown.view);
        turn(Qt::NoModifier);
        QCOMPARE(scrollOf(shown.view).x(), before.x());
        QVERIFY(scrollOf(shown.view).y() > before.y());
        const double zoom = shown.view.zoom();
        turn(Qt::ControlModifier);
        QVERIFY(shown.view.zoom() < zoom);
        // Beside the view it is not ours.
        const QPoint after = scrollOf(shown.view);
        QWheelEvent beside({-9, -9}, shown.view.viewport()->mapToGlobal(QPointF(-9, -9)), {},
                           {0, -120}, Qt::LeftButton, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(shown.view.window()->windowHandle(), &beside);
        QCOMPARE(scrollOf(shown.view), after);
    }

    void aTableDraggedToTheEdgeScrollsTheViewAndStaysUnderThePointer()
    {
        DraggedPlan shown;
        shown.view.setZoom(2 / shown.view.zoom());
        shown.view.centerOn(700, 800);
        const QPoint start = shown.placeOf(shown.t);
        shown.press(Qt::LeftButton, start);
        const QPoint edge(start.x(), shown.view.viewport()->height() - 4);
        shown.moveTo(edge);
        const int before = shown.view.verticalScrollBar()->value();
        QTRY_VERIFY(shown.view.verticalScrollBar()->value() > before + 20);
        const QPoint way = shown.placeOf(shown.t) - edge;
        QVERIFY(way.manhattanLength() <= 2);
        shown.release(Qt::LeftButton, edge);
        QVERIFY(!shown.view.findChild<KWEdgeScroll *>()->isActive());
        QVERIFY(shown.t->position().y() > 800);
    }

    void aClickNearTheEdgeScrollsNothing()
    {
        DraggedPlan shown;
        shown.view.setZoom(2 / shown.view.zoom());
        shown.view.centerOn(QPointF(600, 500) +
                            QPointF(shown.view.viewport()->width() / 4 - 10, 0));
        const QPoint start(10, shown.placeOf(shown.t).y());
        shown.press(Qt::LeftButton, start);
        QCOMPARE(shown.canvas.selected(), shown.canvas.itemOfTable(shown.t));
        shown.moveTo(start + QPoint(1, 0));
        QVERIFY(!shown.view.findChild<KWEdgeScroll *>()->isActive());
        shown.release(Qt::LeftButton, start);
    }

    void theWheelKeepsAMovingTableUnderThePointer()
    {
        DraggedPlan shown;
        shown.view.setZoom(2 / shown.view.zoom());
        shown.view.centerOn(700, 600);
        const QPoint start = shown.placeOf(shown.t);
        shown.press(Qt::LeftButton, start);
        const QPoint place = start + QPoint(30, 30);
        shown.moveTo(place);
        QWheelEvent wheel(place, shown.view.viewport()->mapToGlobal(QPointF(place)), {}, {0, -120},
                          Qt::LeftButton, {}, Qt::NoScrollPhase, false);
        const int before = shown.view.verticalScrollBar()->value();
        QCoreApplication::sendEvent(shown.view.viewport(), &wheel);
        QVERIFY(shown.view.verticalScrollBar()->value() > before);
        QVERIFY((shown.placeOf(shown.t) - place).manhattanLength() <= 2);
    }
};

REGISTER_TEST(TestKWCanvasViewDrag)
#include "tst_kwcanvasview_drag.moc"
