#include "support/gui/canvasplan.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"

#include <QGraphicsView>

class TestKWCanvas : public QObject
{
    Q_OBJECT

private slots:
    void theCanvasIsTheRoomInSeats()
    {
        const CanvasPlan shown;
        QCOMPARE(shown.canvas.canvasSize(), QSize(2000, 1600));
        QCOMPARE(shown.canvas.sceneRect(), QRectF(0, 0, 2000, 1600));
        QCOMPARE(shown.canvas.itemAtPoint({5, 5})->type(), int(KWRoomCanvasViewItem::Type));
        QCOMPARE(shown.canvas.itemAtPoint({2005, 5}), nullptr);
    }

    void aTableStandsWhereThePlanSaysWithItsSeatsAroundIt()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {500, 400});
        const KWTableCanvasViewItem *item = shown.canvas.itemOfTable(table);
        QVERIFY(item);
        QCOMPARE(item->pos(), QPointF(500, 400));
        QCOMPARE(item->seatItems().size(), std::size_t(4));
        QCOMPARE(shown.canvas.itemOfSeat(table, 0)->pos(), QPointF(500, 275));
        QCOMPARE(shown.canvas.itemOfSeat(table, 4), nullptr);
        QCOMPARE(shown.canvas.itemOfSeat(table, -1), nullptr);
    }

    void editingATableRebuildsItsSeatsAboutItsCentre()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::HeadTop, 3, {500, 400});
        shown.canvas.setSelected(shown.canvas.itemOfSeat(table, 1));
        shown.plan.resizeTable(table, 5, false);
        QCOMPARE(shown.canvas.itemOfTable(table)->pos(), QPointF(500, 400));
        QCOMPARE(shown.canvas.itemOfTable(table)->seatItems().size(), std::size_t(5));
        QCOMPARE(shown.canvas.itemOfSeat(table, 0)->pos(), QPointF(300, 300));
        QCOMPARE(shown.canvas.selected(), shown.canvas.itemOfSeat(table, 1));
        shown.plan.resizeTable(table, 1, false);
        QCOMPARE(shown.canvas.selected(), nullptr);
    }

    void aDeletedTableGoesWithItsSeatsAndTheSelection()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {500, 400});
        shown.canvas.setSelected(shown.canvas.itemOfTable(table));
        shown.plan.deleteTable(table, true);
        QCOMPARE(shown.canvas.selected(), nullptr);
        QCOMPARE(shown.canvas.items().size(), 1);
    }

    void aRefreshBuildsTheSceneAnew()
    {
        CanvasPlan shown;
        shown.table("T", KWTable::Circular, 4, {500, 400});
        const KWDocument copy(shown.plan);
        shown.plan.announceClear();
        QCOMPARE(shown.canvas.items().size(), 0);
        shown.plan = copy;
        shown.plan.announceRefresh();
        QCOMPARE(shown.canvas.items().size(), 1 + 1 + 4);
        QVERIFY(shown.canvas.itemOfTable(shown.plan.tableAt(0)));
    }

    void theSceneStandsEmptyDuringALayout()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {500, 400});
        shown.canvas.setSelected(shown.canvas.itemOfTable(table));
        emit shown.plan.eventPrepareAutoLayout();
        QCOMPARE(shown.canvas.items().size(), 0);
        QCOMPARE(shown.canvas.selected(), nullptr);
        // What the plan says meanwhile finds no item.
        shown.plan.setTableName(table, s("X"));
        shown.plan.announceRefresh();
        QCOMPARE(shown.canvas.items().size(), 1 + 1 + 4);
    }

    void aRoomSmallerThanItsTablesSqueezesThemOnTheAxisThatOverflows()
    {
        CanvasPlan shown;
        KWTable *far = shown.table("Far", KWTable::Circular, 4, {1000, 3200});
        KWTable *near = shown.table("Near", KWTable::Circular, 4, {400, 800});
        shown.canvas.resizeToRoom();
        QCOMPARE(shown.canvas.itemOfTable(far)->pos(), QPointF(1000, 1600));
        QCOMPARE(shown.canvas.itemOfTable(near)->pos(), QPointF(400, 400));
        QCOMPARE(shown.canvas.itemOfSeat(near, 0)->pos(), QPointF(400, 275));
        // The plan keeps its places until the tables are moved.
        QCOMPARE(far->position(), QPoint(1000, 3200));
    }

    void aNewTableFindsAFreePlaceAndThePlanKnowsIt()
    {
        CanvasPlan shown;
        shown.table("A", KWTable::Circular, 4, {1000, 800});
        KWTable *second = shown.table("B", KWTable::Circular, 4, {1000, 800});
        KWTableCanvasViewItem *item = shown.canvas.itemOfTable(second);
        shown.canvas.moveToNextTablePos(item);
        QVERIFY(item->pos() != QPointF(1000, 800));
        QCOMPARE(QPointF(second->position()), item->pos());
        QVERIFY(!item->sceneBoundingRect().intersects(
            shown.canvas.itemOfTable(shown.plan.tableAt(0))->sceneBoundingRect()));
    }

    void aTableInFreeSpaceDoesNotMove()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("A", KWTable::Circular, 4, {700, 600});
        shown.canvas.moveToNextTablePos(shown.canvas.itemOfTable(table));
        QCOMPARE(table->position(), QPoint(700, 600));
    }

    void whatIsSelectedIsToldWhenItChanges()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {500, 500});
        QStringList told;
        connect(&shown.canvas, &KWCanvas::selectedChanged, this,
                [&told, &shown] { told.append(shown.canvas.selected() ? s("one") : s("none")); });
        const auto select = [&shown, table] {
            shown.canvas.setSelected(shown.canvas.itemOfTable(table));
        };
        select();
        select();
        shown.canvas.setSelected(nullptr);
        QCOMPARE(told, (QStringList{s("one"), s("none")}));
        select();
        shown.plan.announceRefresh();
        shown.plan.announceRefresh();
        QCOMPARE(told.mid(2), (QStringList{s("one"), s("none")}));
        select();
        shown.plan.deleteTable(table, true);
        QCOMPARE(told.mid(4), (QStringList{s("one"), s("none")}));
    }

    void linesStayUntilTheyAreHidden()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 6, {500, 400});
        KWGuest *a = shown.seat({"A"}, table, 0);
        KWGuest *b = shown.seat({"B"}, table, 1);
        KWGuest *c = shown.seat({"C"}, table, 3);
        shown.plan.setAffinity(a, b, KWScore::Loves, false);
        shown.plan.setAffinity(a, c, KWScore::Likes, false);
        shown.canvas.showLovesAffinity();
        shown.canvas.showLikesAffinity();
        QCOMPARE(shown.lines(), s("#ff0000 #ff00ff"));
        const QPointF middle =
            (shown.canvas.itemOfSeat(table, 0)->pos() + shown.canvas.itemOfSeat(table, 1)->pos()) /
            2;
        shown.canvas.setSelected(shown.canvas.itemAtPoint(middle));
        shown.canvas.hideAffinity();
        QCOMPARE(shown.lines(), s(""));
        QCOMPARE(shown.canvas.selected(), nullptr);
        QVERIFY(!QApplication::overrideCursor());
    }

    void eachWishHasItsColour()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 8, {500, 400});
        QList<KWGuest *> guests;
        for (int i = 0; i < 5; ++i)
            guests.append(shown.seat({"G"}, table, i));
        shown.plan.setAffinity(guests[0], guests[1], KWScore::Loves, false);
        shown.plan.setAffinity(guests[0], guests[2], KWScore::Likes, false);
        shown.plan.setAffinity(guests[0], guests[3], KWScore::Dislikes, false);
        shown.plan.setAffinity(guests[0], guests[4], KWScore::Hates, false);
        shown.canvas.showAllAffinity();
        QCOMPARE(shown.lines(), s("#000000 #a0a0a4 #ff0000 #ff00ff"));
    }

    void guestsWithoutASeatGetNoLine()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 4, {500, 400});
        KWGuest *a = shown.seat({"A"}, table, 0);
        KWGuest *b = addGuest(shown.plan, {"B"});
        shown.plan.setAffinity(a, b, KWScore::Loves, false);
        shown.canvas.showAllAffinity();
        shown.canvas.showConflicts();
        QCOMPARE(shown.lines(), s(""));
    }

    void conflictsAreTheWishesThatAreNotMet_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("place");
        QTest::addColumn<bool>("conflict");
        const auto row = [](int value, const char *place, bool conflict) {
            QTest::addRow("%d %s", value, place) << value << s(place) << conflict;
        };
        row(KWScore::Loves, "next", false);
        row(KWScore::Loves, "ring", false);
        row(KWScore::Loves, "table", true);
        row(KWScore::Loves, "away", true);
        row(KWScore::Likes, "next", false);
        row(KWScore::Likes, "table", false);
        row(KWScore::Likes, "away", true);
        row(KWScore::Dislikes, "next", true);
        row(KWScore::Dislikes, "ring", true);
        row(KWScore::Dislikes, "table", false);
        row(KWScore::Dislikes, "away", false);
        row(KWScore::Hates, "next", true);
        row(KWScore::Hates, "table", true);
        row(KWScore::Hates, "away", false);
    }

    void conflictsAreTheWishesThatAreNotMet()
    {
        QFETCH(int, value);
        QFETCH(QString, place);
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 6, {500, 400});
        KWTable *other = shown.table("U", KWTable::Circular, 6, {1200, 400});
        KWGuest *a = shown.seat({"A"}, table, 0);
        const int seat = place == u"next" ? 1 : place == u"ring" ? 5 : place == u"table" ? 2 : 0;
        KWGuest *b = shown.seat({"B"}, place == u"away" ? other : table, seat);
        shown.plan.setAffinity(a, b, value, false);
        shown.canvas.showConflicts();
        QTEST(!shown.lines().isEmpty(), "conflict");
    }

    void seatsAreHitByTheirWholeArea()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::HeadTop, 1, {500, 400});
        const KWSeatCanvasViewItem *seat = shown.canvas.itemOfSeat(table, 0);
        QCOMPARE(shown.canvas.itemAtPoint(seat->pos() + QPointF(-49, -49)), seat);
        QCOMPARE(shown.canvas.itemAtPoint(seat->pos() + QPointF(-51, -49))->type(),
                 int(KWRoomCanvasViewItem::Type));
        // The table's area reaches over the edge of its seats.
        QCOMPARE(shown.canvas.itemAtPoint(seat->pos() + QPointF(0, 49)),
                 shown.canvas.itemOfTable(table));
    }

    void aTableBeforeTheOriginIsBroughtToTheEdge()
    {
        CanvasPlan shown;
        KWTable *far = shown.table("F", KWTable::HeadTop, 2, {-2000000000, 400});
        KWTable *near = shown.table("N", KWTable::HeadTop, 2, {-90, -500});
        shown.plan.announceRefresh();
        QCOMPARE(shown.canvas.itemOfTable(far)->pos(), QPointF(0, 400));
        QCOMPARE(shown.canvas.itemOfTable(near)->pos(), QPointF(-90, 0));
        QCOMPARE(far->position(), QPoint(-2000000000, 400));
    }

    void thePictureHoldsAllTablesWithTheMarginOnTheColourOfTheRoom()
    {
        CanvasPlan shown;
        shown.plan.setFloorplanColourInside(QColor(1, 2, 3));
        shown.table("T", KWTable::HeadTop, 10, {600, 400});
        QCOMPARE(shown.canvas.itemBounds(0), QRectF(96, 250, 1008, 204));
        const QPixmap picture = shown.canvas.renderToPixmap(0.05);
        QCOMPARE(picture.size(), QSize(1108, 304));
        QCOMPARE(picture.toImage().pixelColor(2, 2), QColor(1, 2, 3));
        QCOMPARE(shown.canvas.boundsForAspect(0, 1).size(), QSizeF(1008, 1008));
        // Also where it reaches beyond the room.
        shown.plan.addTable(KWTable::HeadTop, s("U"), 10, 0, 0, 0, {100, 1500}, {});
        const QImage wide = shown.canvas.renderToPixmap(0.2).toImage();
        QCOMPARE(wide.pixelColor(2, wide.height() - 2), QColor(1, 2, 3));
    }

    void aPictureShowsNoSelection()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::HeadTop, 10, {600, 400});
        const QImage bare = shown.canvas.renderToPixmap(0.05).toImage();
        shown.canvas.setSelected(shown.canvas.itemOfTable(table));
        QCOMPARE(shown.canvas.renderToPixmap(0.05).toImage(), bare);
        QCOMPARE(shown.canvas.selected(), shown.canvas.itemOfTable(table));
    }

    void aPartOfThePlanIsDrawnWhereItIsWanted()
    {
        CanvasPlan shown;
        shown.plan.setFloorplanColourInside(QColor(1, 2, 3));
        shown.plan.setFloorplanColourTables(Qt::yellow);
        shown.table("T", KWTable::HeadTop, 10, {600, 400});
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        // The left end of the table fills the right half of the target.
        shown.canvas.paint(&painter, QRectF(20, 20, 40, 40), QRectF(60, 360, 80, 80));
        painter.end();
        QCOMPARE(image.pixelColor(10, 40), QColor(Qt::white));
        QCOMPARE(image.pixelColor(30, 40), QColor(1, 2, 3));
        QCOMPARE(image.pixelColor(50, 40), QColor(Qt::yellow));
        QCOMPARE(image.pixelColor(65, 40), QColor(Qt::white));
    }

    void anEmptyPlanGivesNoPicture()
    {
        CanvasPlan shown;
        QVERIFY(shown.canvas.renderToPixmap(0.05).isNull());
    }
};

REGISTER_TEST(TestKWCanvas)
#include "tst_kwcanvas.moc"
