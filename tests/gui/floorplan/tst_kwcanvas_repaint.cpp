#include "support/gui/canvasplan.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"

#include <QGraphicsView>

// What is painted anew on the screen after each event, and what is not.

namespace {

/// Ann and Bob beside each other at a table T, in a group of their own each, on the screen.
struct SeenPlan : CanvasPlan
{
    KWGroup *first = plan.addGroup({}, s("F"), {});
    KWGroup *second = plan.addGroup({}, s("S"), {});
    KWTable *t = table("T", KWTable::HeadTop, 4, {700, 400});
    KWGuest *ann = seat({"Ann"}, t, 0, first);
    KWGuest *bob = seat({"Bob"}, t, 1, second);
    QGraphicsView view{&canvas};
    QRegion repainted;

    SeenPlan()
    {
        view.resize(900, 700);
        view.show();
        if (!QTest::qWaitForWindowExposed(&view))
            qFatal("nothing is seen");
        view.centerOn(700, 400);
        settle();
        QObject::connect(&canvas, &QGraphicsScene::changed, &view,
                         [this](const QList<QRectF> &regions) {
                             for (const QRectF &region : regions)
                                 repainted += region.toAlignedRect();
                         });
    }

    void settle()
    {
        QCoreApplication::processEvents();
        view.viewport()->repaint();
        QCoreApplication::processEvents();
        repainted = {};
    }

    bool sees(const QPointF &point) const { return repainted.contains(point.toPoint()); }
    bool seesSeat(int seat) { return sees(canvas.itemOfSeat(t, seat)->pos() - QPointF(0, 20)); }
};

using Act = std::function<void(SeenPlan &)>;
} // namespace

Q_DECLARE_METATYPE(Act)

class TestKWCanvasRepaint : public QObject
{
    Q_OBJECT

private slots:
    void whatChangesAllSeatsRepaintsThemAll_data()
    {
        QTest::addColumn<Act>("act");
        const auto row = [](const char *name, const Act &act) { QTest::newRow(name) << act; };
        row("order of names", [](SeenPlan &seen) { seen.canvas.setNameOrder(7); });
        row("look", [](SeenPlan &seen) { seen.canvas.setLook({.nameOrder = 7, .seats = {}}); });
        row("display", [](SeenPlan &seen) { seen.canvas.displaySeats(KWCanvas::None); });
        row("gender", [](SeenPlan &seen) { seen.canvas.showGender(true); });
        row("age", [](SeenPlan &seen) { seen.canvas.showAge(true); });
        row("VIP", [](SeenPlan &seen) { seen.canvas.showVIP(true); });
        row("groups", [](SeenPlan &seen) { seen.canvas.showGroups(true); });
        row("locked", [](SeenPlan &seen) { seen.canvas.showLocked(true); });
        row("a deleted group", [](SeenPlan &seen) {
            KWGroup *empty = seen.plan.addGroup({}, s("E"), {});
            seen.plan.deleteGroup(empty, false);
        });
    }

    void whatChangesAllSeatsRepaintsThemAll()
    {
        QFETCH(Act, act);
        SeenPlan seen;
        act(seen);
        QTRY_VERIFY(seen.seesSeat(0) && seen.seesSeat(1) && seen.seesSeat(3));
    }

    void whatChangesAGuestRepaintsTheirSeat_data()
    {
        QTest::addColumn<Act>("act");
        const auto row = [](const char *name, const Act &act) { QTest::newRow(name) << act; };
        row("edited",
            [](SeenPlan &seen) { seen.plan.editGuest(seen.ann, {.display_name = s("Anna")}); });
        row("locked", [](SeenPlan &seen) { seen.plan.setGuestLocked(seen.ann, true); });
        row("VIP", [](SeenPlan &seen) { seen.plan.setGuestVip(seen.ann, true); });
        row("of another group",
            [](SeenPlan &seen) { seen.plan.moveGuestToGroup(seen.second, seen.ann); });
        row("unseated", [](SeenPlan &seen) { seen.plan.unassignGuest(seen.ann, false); });
        row("deleted", [](SeenPlan &seen) { seen.plan.deleteGuest(seen.ann, false); });
        row("selected",
            [](SeenPlan &seen) { seen.canvas.setSelected(seen.canvas.itemOfSeat(seen.t, 0)); });
    }

    void whatChangesAGuestRepaintsTheirSeat()
    {
        QFETCH(Act, act);
        SeenPlan seen;
        act(seen);
        QTRY_VERIFY(seen.seesSeat(0));
        QVERIFY(!seen.seesSeat(3));
    }

    void whatWasSelectedIsRepaintedToo()
    {
        SeenPlan seen;
        seen.canvas.setSelected(seen.canvas.itemOfSeat(seen.t, 0));
        seen.settle();
        seen.canvas.setSelected(seen.canvas.itemOfTable(seen.t));
        QTRY_VERIFY(seen.seesSeat(0) && seen.sees({700, 400}));
        QVERIFY(!seen.seesSeat(3));
        seen.settle();
        seen.canvas.setSelected(nullptr);
        QTRY_VERIFY(seen.sees({700, 400}));
    }

    void aGuestWhoMovesRepaintsBothSeats()
    {
        SeenPlan seen;
        seen.plan.assignGuest(seen.ann, seen.t, 3, false);
        QTRY_VERIFY(seen.seesSeat(0) && seen.seesSeat(3));
    }

    void theOutlineOfADropComesAndGoes()
    {
        SeenPlan seen;
        seen.canvas.markDrop({{seen.t, 1, false}});
        QTRY_VERIFY(seen.seesSeat(1));
        QVERIFY(!seen.seesSeat(0));
        seen.settle();
        seen.canvas.markDrop({{seen.t, 1, false}, {seen.t, 2, true}});
        QTRY_VERIFY(seen.seesSeat(2));
        QVERIFY(!seen.seesSeat(1));
        seen.settle();
        seen.canvas.markDrop({});
        QTRY_VERIFY(seen.seesSeat(1) && seen.seesSeat(2));
    }

    void theRoomIsRepaintedWhenItsSizeChanges()
    {
        SeenPlan seen;
        seen.plan.setRoomXSize(12);
        seen.canvas.resizeToRoom();
        QTRY_VERIFY(seen.sees({100, 100}));
    }
};

REGISTER_TEST(TestKWCanvasRepaint)
#include "tst_kwcanvas_repaint.moc"
