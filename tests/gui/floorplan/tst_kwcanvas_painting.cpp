#include "support/gui/canvasplan.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"

#include <QGraphicsView>

// What tables and seats look like, and what is repainted.

class TestKWCanvasPainting : public QObject
{
    Q_OBJECT

private slots:
    void theColourPairsOfGroupsRepeatBeyond256()
    {
        CanvasPlan shown;
        QList<KWGroup *> groups;
        for (int i = 0; i < 257; ++i)
            groups.append(shown.plan.addGroup({}, s("G"), {}));
        const QStringList colours{s("#ff0000"), s("#00ff00"), s("#0000ff"), s("#ffff00"),
                                  s("#ff00ff"), s("#00ffff"), s("#c0c000"), s("#c000c0"),
                                  s("#00c0c0"), s("#ffc000"), s("#c00000"), s("#00c000"),
                                  s("#0000c0"), s("#c0c0ff"), s("#00c0ff"), s("#c0c0c0")};
        for (int i = 0; i < 256; ++i) {
            QCOMPARE(shown.canvas.outerColour(groups[i]).name(), colours[i % 16]);
            QCOMPARE(shown.canvas.innerColour(groups[i]).name(), colours[i / 16]);
        }
        QCOMPARE(shown.canvas.outerColour(groups[256]), shown.canvas.outerColour(groups[0]));
        QCOMPARE(shown.canvas.innerColour(groups[256]), shown.canvas.innerColour(groups[0]));
    }

    void genderColoursTheSeats()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::HeadTop, 4, {500, 400});
        shown.seat({"", KWGuest::Male}, table, 0);
        shown.seat({"", KWGuest::Female}, table, 1);
        shown.seat({"", KWGuest::Undefined}, table, 2);
        const auto seat = [&](int i) {
            return shown.painted(shown.canvas.itemOfSeat(table, i)->pos() - QPointF(0, 30));
        };
        QCOMPARE(seat(0), QColor(Qt::white));
        shown.canvas.showGender(true);
        QCOMPARE(seat(0), QColor(96, 192, 255));
        QCOMPARE(seat(1), QColor(255, 160, 255));
        QCOMPARE(seat(2), QColor(Qt::white));
        QCOMPARE(seat(3), QColor(Qt::white));
    }

    void groupsColourTheSeatsOutsideAndInside()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::HeadTop, 2, {500, 400});
        for (int i = 0; i < 20; ++i)
            shown.plan.addGroup({}, s("G"), {});
        shown.seat({"", KWGuest::Male}, table, 0, shown.plan.groupAt(18));
        const QPointF centre = shown.canvas.itemOfSeat(table, 0)->pos();
        shown.canvas.showGroups(true);
        QCOMPARE(shown.painted(centre), QColor(0, 255, 0));
        QCOMPARE(shown.painted(centre - QPointF(0, 35)), QColor(0, 0, 255));
        // Gender takes the outer circle over.
        shown.canvas.showGender(true);
        QCOMPARE(shown.painted(centre), QColor(0, 255, 0));
        QCOMPARE(shown.painted(centre - QPointF(0, 35)), QColor(96, 192, 255));
    }

    void childrenHaveASmallCircle()
    {
        CanvasPlan shown;
        shown.plan.setFloorplanColourSeats(Qt::yellow);
        KWTable *table = shown.table("T", KWTable::HeadTop, 1, {500, 400});
        shown.seat({"", KWGuest::Undefined, false, false, KWGuest::Child}, table, 0);
        const QPointF edge = shown.canvas.itemOfSeat(table, 0)->pos() - QPointF(0, 40);
        QCOMPARE(shown.painted(edge), QColor(Qt::yellow));
        shown.canvas.showAge(true);
        QCOMPARE(shown.painted(edge), shown.plan.floorplanColourInside());
    }

    void theMarksOfAGroupFollowItsGuestsAndItsPlace()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::HeadTop, 1, {500, 400});
        KWGroup *first = shown.plan.addGroup({}, s("F"), {});
        KWGroup *second = shown.plan.addGroup({}, s("S"), {});
        KWGuest *guest = shown.seat({""}, table, 0, first);
        shown.canvas.showGroups(true);
        QGraphicsView view(&shown.canvas);
        view.resize(2100, 1700);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QPoint edge(500, 265);
        const auto seen = [&] { return view.grab().toImage().pixelColor(view.mapFromScene(edge)); };
        QCOMPARE(seen(), QColor(255, 0, 0));
        int changes = 0;
        connect(&shown.canvas, &QGraphicsScene::changed, this, [&changes] { ++changes; });
        shown.plan.moveGuestToGroup(second, guest);
        QTRY_VERIFY(changes > 0);
        QCOMPARE(seen(), QColor(0, 255, 0));
        changes = 0;
        shown.plan.deleteGroup(first, true);
        QTRY_VERIFY(changes > 0);
        QCOMPARE(seen(), QColor(255, 0, 0));
    }

    void eachPartHasItsColour_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<QColor>("colour");
        // A head table of 2 seats: its body is 200 by 100 about its centre.
        QTest::newRow("inside") << 900.0 << 900.0 << QColor(10, 0, 0);
        QTest::newRow("outside") << 2050.0 << 50.0 << QColor(20, 0, 0);
        QTest::newRow("table") << 420.0 << 370.0 << QColor(30, 0, 0);
        QTest::newRow("table's edge") << 400.0 << 400.0 << QColor(40, 0, 0);
        QTest::newRow("table's text") << 500.0 << 400.0 << QColor(50, 0, 0);
        QTest::newRow("seat") << 415.0 << 300.0 << QColor(60, 0, 0);
        QTest::newRow("seat's edge") << 400.0 << 300.0 << QColor(70, 0, 0);
        QTest::newRow("seat's text") << 450.0 << 300.0 << QColor(80, 0, 0);
        QTest::newRow("selected table's edge") << 799.5 << 400.0 << QColor(90, 0, 0);
        QTest::newRow("selected table's text") << 900.0 << 400.0 << QColor(90, 0, 0);
    }

    void eachPartHasItsColour()
    {
        QFETCH(double, x);
        QFETCH(double, y);
        CanvasPlan shown;
        shown.plan.setFloorplanColourInside(QColor(10, 0, 0));
        shown.plan.setFloorplanColourOutside(QColor(20, 0, 0));
        shown.plan.setFloorplanColourTables(QColor(30, 0, 0));
        shown.plan.setFloorplanColourTablesEdge(QColor(40, 0, 0));
        shown.plan.setFloorplanColourTableText(QColor(50, 0, 0));
        shown.plan.setFloorplanColourSeats(QColor(60, 0, 0));
        shown.plan.setFloorplanColourSeatsEdge(QColor(70, 0, 0));
        shown.plan.setFloorplanColourSeatsText(QColor(80, 0, 0));
        shown.plan.setFloorplanColourSelected(QColor(90, 0, 0));
        // A letter that fills the middle of its place.
        QFont large = shown.plan.floorPlanFont();
        large.setPixelSize(60);
        shown.plan.setFloorPlanFont(large);
        KWTable *table = shown.table("\u2588", KWTable::HeadTop, 2, {500, 400});
        KWTable *other = shown.table("\u2588", KWTable::HeadTop, 2, {900, 400});
        shown.seat({"\u2588"}, table, 0);
        shown.plan.announceRefresh();
        shown.canvas.setSelected(shown.canvas.itemOfTable(other));
        const QColor colour = shown.painted({x, y});
        QTEST(colour, "colour");
    }

    void hiddenSeatsArePaintedInTheColourOfTheRoomAndAreStillHit()
    {
        CanvasPlan shown;
        shown.plan.setFloorplanColourInside(QColor(1, 2, 3));
        shown.plan.setFloorplanColourSeats(Qt::yellow);
        KWTable *table = shown.table("T", KWTable::HeadTop, 1, {500, 400});
        const KWSeatCanvasViewItem *seat = shown.canvas.itemOfSeat(table, 0);
        shown.canvas.displaySeats(KWCanvas::None);
        QCOMPARE(shown.painted(seat->pos()), QColor(1, 2, 3));
        QCOMPARE(shown.painted(seat->pos() - QPointF(49.5, 0)), QColor(1, 2, 3));
        QCOMPARE(shown.canvas.itemAtPoint(seat->pos()), seat);
    }

    void aSelectedSeatShowsItAtItsCircleUnlessItHasNone()
    {
        CanvasPlan shown;
        shown.plan.setFloorplanColourSelected(QColor(9, 8, 7));
        KWTable *table = shown.table("T", KWTable::HeadTop, 1, {500, 400});
        KWSeatCanvasViewItem *seat = shown.canvas.itemOfSeat(table, 0);
        const QPointF edge = seat->pos() - QPointF(50, 0);
        QVERIFY(shown.painted(edge) != QColor(9, 8, 7));
        shown.canvas.setSelected(seat);
        QCOMPARE(shown.painted(edge), QColor(9, 8, 7));
        shown.canvas.displaySeats(KWCanvas::NameOnly);
        QCOMPARE(shown.painted(edge), shown.plan.floorplanColourInside());
        // Only the text does then.
        QFont large = shown.plan.floorPlanFont();
        large.setPixelSize(60);
        shown.plan.setFloorPlanFont(large);
        shown.seat({"\u2588"}, table, 0);
        QCOMPARE(shown.painted(seat->pos()), QColor(9, 8, 7));
    }

    void aLockedVipChildInAGroupShowsItAllInASmallCircle()
    {
        CanvasPlan shown;
        shown.plan.setFloorplanColourInside(Qt::white);
        KWTable *table = shown.table("T", KWTable::HeadTop, 1, {500, 400});
        for (int i = 0; i < 19; ++i)
            shown.plan.addGroup({}, s("G"), {});
        KWGuest *guest = shown.seat({"", KWGuest::Undefined, true, true, KWGuest::Child}, table, 0,
                                    shown.plan.groupAt(18));
        shown.canvas.showAge(true);
        shown.canvas.showGroups(true);
        const QRectF seat = shown.canvas.itemOfSeat(table, 0)->area();
        const auto picture = [&] {
            QImage image(100, 100, QImage::Format_RGB32);
            QPainter painter(&image);
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            shown.canvas.render(&painter, QRectF(0, 0, 100, 100), seat);
            return image;
        };
        // A circle of 67 in the outer colour, one of 33 in the inner, the rest the floor's.
        const QImage bare = picture();
        QCOMPARE(bare.pixelColor(50, 18), QColor(0, 0, 255));
        QCOMPARE(bare.pixelColor(50, 14), QColor(Qt::white));
        QCOMPARE(bare.pixelColor(50, 36), QColor(0, 255, 0));
        QCOMPARE(bare.pixelColor(50, 31), QColor(0, 0, 255));
        const auto changed = [](const QImage &before, const QImage &after) {
            QRegion region;
            for (int y = 0; y < after.height(); ++y) {
                for (int x = 0; x < after.width(); ++x) {
                    if (before.pixel(x, y) != after.pixel(x, y))
                        region += QRect(x, y, 1, 1);
                }
            }
            return region;
        };
        // 63 wide and 67 high, from 18.5 and 13.5.
        const QRect place(18, 13, 64, 68);
        shown.canvas.showLocked(true);
        const QImage locked = picture();
        QVERIFY(!changed(bare, locked).isEmpty());
        QVERIFY(place.contains(changed(bare, locked).boundingRect()));
        shown.canvas.showVIP(true);
        const QImage both = picture();
        QVERIFY(!changed(locked, both).isEmpty());
        QVERIFY(place.contains(changed(locked, both).boundingRect()));
        // Both are seen whole.
        shown.canvas.showLocked(false);
        const QImage vip = picture();
        const QRegion crown = changed(bare, vip);
        const QRegion lock = changed(bare, locked);
        QVERIFY(!crown.intersects(lock));
        QVERIFY(changed(both, vip) == lock);
        // The crown in the upper third of its place, the lock in the lower.
        QVERIFY(crown.boundingRect().bottom() < 13 + 67 / 3);
        QVERIFY(lock.boundingRect().top() > 13 + 67 * 2 / 3);
        QVERIFY(guest->isVip());
    }

    void aSelectedRoomIsNotRepainted()
    {
        CanvasPlan shown;
        bool changed = false;
        connect(&shown.canvas, &QGraphicsScene::changed, this, [&changed] { changed = true; });
        QTRY_VERIFY(changed);
        changed = false;
        shown.canvas.setSelected(shown.canvas.itemAtPoint({900, 900}));
        QCoreApplication::processEvents();
        QVERIFY(!changed);
        QCOMPARE(shown.canvas.itemAtPoint({-0.4, 100}), nullptr);
    }

    void locksAndVipsAreMarked()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::HeadTop, 1, {500, 400});
        shown.seat({"", KWGuest::Undefined, true, true}, table, 0);
        const QRectF seat = shown.canvas.itemOfSeat(table, 0)->sceneBoundingRect();
        const auto picture = [&] {
            QImage image(100, 100, QImage::Format_RGB32);
            QPainter painter(&image);
            shown.canvas.render(&painter, QRectF(0, 0, 100, 100), seat);
            painter.end();
            return image;
        };
        const QImage bare = picture();
        shown.canvas.showLocked(true);
        const QImage locked = picture();
        QVERIFY(locked != bare);
        shown.canvas.showVIP(true);
        QVERIFY(picture() != locked);
        shown.canvas.showLocked(false);
        QVERIFY(picture() != bare && picture() != locked);
    }

    void marksAreShownOnTheScreenAsInPictures()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::HeadTop, 1, {500, 400});
        shown.seat({"", KWGuest::Undefined, true, true}, table, 0);
        QGraphicsView view(&shown.canvas);
        view.setRenderHint(QPainter::Antialiasing);
        view.resize(300, 300);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.centerOn(shown.canvas.itemOfSeat(table, 0));
        const QPoint seat = view.mapFromScene(shown.canvas.itemOfSeat(table, 0)->pos());
        const auto onScreen = [&](const QPoint &place) {
            return view.viewport()->grab().toImage().pixelColor(seat + place);
        };
        const auto inPicture = [&](const QPoint &place) {
            return shown.painted(shown.canvas.itemOfSeat(table, 0)->pos() + place);
        };
        // The body of the lock, and the band of the crown.
        const QPoint lock(-6, 36);
        shown.canvas.showLocked(true);
        QCOMPARE(onScreen(lock), QColor(163, 176, 194));
        QCOMPARE(inPicture(lock), QColor(163, 176, 194));
        const QPoint crown(-7, -29);
        shown.canvas.showVIP(true);
        QCOMPARE(onScreen(crown), QColor(243, 191, 91));
        QCOMPARE(inPicture(crown), QColor(243, 191, 91));
    }

    void aChangeOfASeatRepaintsThatSeatOnly()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::HeadTop, 6, {700, 400});
        KWGuest *guest = addGuest(shown.plan, {"A"});
        QGraphicsView view(&shown.canvas);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QCoreApplication::processEvents();
        view.centerOn(700, 400);
        view.viewport()->repaint();
        QRectF repainted;
        connect(&shown.canvas, &QGraphicsScene::changed, this, [&](const QList<QRectF> &regions) {
            for (const QRectF &region : regions)
                repainted |= region;
        });
        const auto onlySeat = [&](int seat) {
            const QRectF rect = shown.canvas.itemOfSeat(table, seat)->sceneBoundingRect();
            return rect.adjusted(-3, -3, 3, 3).contains(std::exchange(repainted, QRectF()));
        };
        const KWSeatCanvasViewItem *item = shown.canvas.itemOfSeat(table, 2);
        shown.plan.assignGuest(guest, table, 2, true);
        QTRY_VERIFY(!repainted.isEmpty());
        QVERIFY(onlySeat(2));
        QCOMPARE(shown.canvas.itemOfGuest(guest), item);
        shown.plan.unassignGuest(guest, true);
        QTRY_VERIFY(!repainted.isEmpty());
        QVERIFY(onlySeat(2));
    }

    void aTurnedTableOfTheSameShapeRepaintsTheSeatsThatChange()
    {
        CanvasPlan shown;
        KWTable *table = shown.table("T", KWTable::Circular, 6, {700, 400});
        shown.plan.assignGuest(addGuest(shown.plan, {"A"}), table, 0, false);
        QGraphicsView view(&shown.canvas);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QCoreApplication::processEvents();
        view.centerOn(700, 400);
        view.viewport()->repaint();
        QRegion repainted;
        connect(&shown.canvas, &QGraphicsScene::changed, this, [&](const QList<QRectF> &regions) {
            for (const QRectF &region : regions)
                repainted += region.toAlignedRect();
        });
        shown.plan.rotateTable(table);
        const auto isRepainted = [&](int seat) {
            return repainted.contains(shown.canvas.itemOfSeat(table, seat)->pos().toPoint());
        };
        QTRY_VERIFY(isRepainted(0) && isRepainted(1));
        QVERIFY(!isRepainted(3));
        repainted = {};
        shown.plan.setTableName(table, s("U"));
        QTRY_VERIFY(repainted.contains(QPoint(700, 400)));
    }
};

REGISTER_TEST(TestKWCanvasPainting)
#include "tst_kwcanvas_painting.moc"
