#include "gui/exchange/kwdrag.h"
#include "support/eventlog.h"
#include "support/gui/shownplan.h"
#include "support/registeredtest.h"

// What may be dropped where on the floor plan, and what a drop does.

namespace {

/// A table T with Ann, Bob (locked) and an empty seat; a table L with locked guests only; Eve and
/// Fay without seats.
struct DropPlan : ShownPlan
{
    KWTable *t = table("T", KWTable::Circular, 3, {600, 500});
    KWTable *l = table("L", KWTable::Circular, 1, {1300, 500});
    KWGuest *ann = seat("Ann", t, 0);
    KWGuest *bob = seat("Bob", t, 1, true);
    KWGuest *lea = seat("Lea", l, 0, true);
    KWGuest *eve = addGuest(plan, {"Eve"});
    KWGuest *fay = addGuest(plan, {"Fay"});

    QPoint floor() const { return placeOf(QPointF(1900, 1500)); }
    QPoint outside() const { return placeOf(QPointF(2300, 1500)); }
};
} // namespace

class TestKWCanvasViewDrop : public QObject
{
    Q_OBJECT

private slots:
    void aDragMayBeDroppedWhereItMakesSense()
    {
        DropPlan shown;
        const QList<KWGuest *> eve{shown.eve};
        QVERIFY2(shown.takes(eve, shown.outside()), "nothing");
        QVERIFY2(!shown.takes(eve, shown.placeOf(shown.t, 1)), "a locked guest's seat");
        QVERIFY2(shown.takes(eve, shown.placeOf(shown.t, 0)), "a seat with a guest");
        QVERIFY2(shown.takes(eve, shown.placeOf(shown.t, 2)), "an empty seat");
        QVERIFY2(!shown.takes(eve, shown.placeOf(shown.l)), "a table of locked guests");
        QVERIFY2(shown.takes(eve, shown.placeOf(shown.t)), "a table with room");
        QVERIFY2(!shown.takes(eve, shown.floor()), "the floor");
    }

    void whatIsNoGuestIsNotTaken()
    {
        DropPlan shown;
        QMimeData text;
        text.setText(s("Ann"));
        QDragEnterEvent enter(shown.outside(), Qt::MoveAction, &text, Qt::LeftButton, {});
        QCoreApplication::sendEvent(shown.view.viewport(), &enter);
        QVERIFY(!enter.isAccepted());
        const std::unique_ptr<KWDrag> table(
            new KWDrag(&shown.plan, shown.t, shown.view.viewport()));
        QDragEnterEvent ofTable(shown.outside(), Qt::MoveAction, table->mimeData(), Qt::LeftButton,
                                {});
        QCoreApplication::sendEvent(shown.view.viewport(), &ofTable);
        QVERIFY(!ofTable.isAccepted());
    }

    void aDropOnAnEmptySeatSeatsTheGuestBehindAnUndoPointAndScoresOnce()
    {
        DropPlan shown;
        EventLog log(shown.plan);
        QVERIFY(shown.drop({shown.eve}, shown.placeOf(shown.t, 2)));
        QCOMPARE(seating(*shown.t), s("Ann Bob Eve"));
        QCOMPARE(shown.window.undoLabels, QStringList{s("Drag guest(s)")});
        // The list, whose guest it was, may be the active view.
        QCOMPARE(shown.window.viewUpdates, 1);
        QCOMPARE(log.take().count(s("eventScoreChange()")), 1);
    }

    void aSeatedGuestDroppedOnAnOccupiedSeatExchangesTheTwo()
    {
        DropPlan shown;
        KWTable *u = shown.table("U", KWTable::Circular, 3, {600, 1200});
        shown.plan.assignGuest(shown.eve, u, 2, false);
        const int seated = shown.plan.seatedGuestCount();
        QVERIFY(shown.drop({shown.eve}, shown.placeOf(shown.t, 0)));
        QCOMPARE(seating(*shown.t), s("Eve Bob -"));
        QCOMPARE(seating(*u), s("- - Ann"));
        QCOMPARE(shown.plan.seatedGuestCount(), seated);
    }

    void anUnseatedGuestDroppedOnAnOccupiedSeatTurnsTheOtherOut()
    {
        DropPlan shown;
        QVERIFY(shown.drop({shown.eve}, shown.placeOf(shown.t, 0)));
        QCOMPARE(seating(*shown.t), s("Eve Bob -"));
        QVERIFY(!shown.plan.findGuest(shown.ann));
    }

    void severalGuestsGoOnRoundTheTableWithoutRegardToLocks()
    {
        DropPlan shown;
        // The lock counts at the pointer only.
        KWTable *u = shown.table("U", KWTable::Circular, 3, {600, 1200});
        shown.plan.assignGuest(shown.fay, u, 0, false);
        QVERIFY(shown.drop({shown.eve, shown.fay}, shown.placeOf(shown.t, 0)));
        QCOMPARE(seating(*shown.t), s("Eve Fay -"));
        QCOMPARE(seating(*u), s("Bob - -"));
        QVERIFY(shown.bob->isLocked());
    }

    void theSeatsBeginAnewBehindTheLast()
    {
        DropPlan shown;
        KWTable *u = shown.table("U", KWTable::Circular, 3, {600, 1200});
        QVERIFY(shown.drop({shown.eve, shown.fay}, shown.placeOf(u, 2)));
        QCOMPARE(seating(*u), s("Fay - Eve"));
    }

    void onATableGuestsGoWhereThereIsMostRoom()
    {
        DropPlan shown;
        KWTable *u = shown.table("U", KWTable::Circular, 6, {600, 1200});
        shown.plan.assignGuest(shown.ann, u, 0, false);
        shown.plan.assignGuest(shown.lea, u, 2, false);
        QVERIFY(shown.drop({shown.eve, shown.fay}, shown.placeOf(u)));
        QCOMPARE(seating(*u), s("Ann - Lea Eve Fay -"));
    }

    void moreGuestsThanSeatsAreReportedAndNobodyMoves()
    {
        DropPlan shown;
        KWTable *u = shown.table("U", KWTable::Circular, 2, {600, 1200});
        shown.prompts.answer(s("&OK"));
        QVERIFY(!shown.drop({shown.eve, shown.fay, shown.ann}, shown.placeOf(u)));
        QTRY_COMPARE(shown.prompts.texts(), QStringList{s("Too many guests for table")});
        QCOMPARE(shown.prompts.messages[0].icon, KWMessage::Critical);
        QCOMPARE(seating(*u), s("- -"));
        QCOMPARE(seating(*shown.t), s("Ann Bob -"));
        QCOMPARE(shown.window.undoLabels, QStringList());
    }

    void aGuestDroppedOutsideTheRoomLeavesTheTable()
    {
        DropPlan shown;
        QVERIFY(shown.drop({shown.ann, shown.eve}, shown.outside()));
        QVERIFY(!shown.plan.findGuest(shown.ann));
        QCOMPARE(shown.window.undoLabels, QStringList{s("Drag guest(s)")});
    }

    void aSeatThatIsNotPaintedTakesADrop()
    {
        DropPlan shown;
        shown.canvas.displaySeats(KWCanvas::None);
        const bool taken = shown.drop({shown.eve}, shown.placeOf(shown.t, 2));
        shown.canvas.displaySeats(KWCanvas::CircularName);
        QVERIFY(taken);
        QCOMPARE(seating(*shown.t), s("Ann Bob Eve"));
    }

    void aDropOnTheFloorIsRefused()
    {
        DropPlan shown;
        QVERIFY(!shown.drop({shown.ann}, shown.floor()));
        QVERIFY(shown.plan.findGuest(shown.ann));
        QCOMPARE(shown.window.undoLabels, QStringList());
    }

    void aDropOfNobodyIsRefused()
    {
        DropPlan shown;
        QVERIFY(!shown.drop({}, shown.placeOf(shown.t, 2)));
        QVERIFY(!shown.drop({}, shown.outside()));
        QCOMPARE(shown.window.undoLabels, QStringList());
    }
};

REGISTER_TEST(TestKWCanvasViewDrop)
#include "tst_kwcanvasview_drop.moc"
