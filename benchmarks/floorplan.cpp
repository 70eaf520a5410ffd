#include "benchplan.h"
#include "gui/dialogs/kwtabledlgimpl.h"
#include "gui/floorplan/kwcanvasview.h"
#include "gui/floorplan/kwfloorplanitem.h"
#include "gui/floorplan/kwplacefinder.h"
#include "gui/floorplan/kwroomgeometry.h"
#include "gui/floorplan/kwtablegeometry.h"
#include "gui/shell/kwmainwinimpl.h"
#include "gui/shell/kwpanes.h"
#include "openwindow.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSpinBox>

// The floor plan of the main window. Where nothing else is said, each takes the number of guests,
// who all sit at round tables of ten, and ends when all is painted.

namespace {

KWCanvasView &view()
{
    return *openWindow->panes()->floorPlan();
}

void fill(const benchmark::State &state)
{
    plan().clear();
    plan().blockEvents();
    fillBenchPlan(plan(), static_cast<int>(state.range(0)));
    plan().setRoomXSize(22);
    plan().setRoomYSize(2.0 * plan().tableCount() / 10 + 4);
    for (int i = 0; i < plan().guestCount(); ++i)
        plan().assignGuest(plan().guestAt(i), plan().tableAt(i / 10), i % 10, false);
    plan().recalculateScores();
    plan().unblockEvents();
    plan().announceRefresh();
    openWindow->panes()->refreshFloorPlan();
    settle();
}

void paintFloorPlan(benchmark::State &state)
{
    fill(state);
    for (auto _ : state)
        view().viewport()->repaint();
}
BENCHMARK(paintFloorPlan)->Apply(planSizes);

void sendMouse(QEvent::Type type, const QPoint &place, Qt::MouseButton button)
{
    QMouseEvent event(type, place, view().viewport()->mapToGlobal(place), button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(view().viewport(), &event);
}

/// A step of the pointer with a table of ten.
void dragTable(benchmark::State &state)
{
    fill(state);
    const KWTable *table = plan().tableAt(plan().tableCount() / 2);
    const QPoint place = view().mapFromScene(view().canvas()->itemOfTable(table)->pos());
    sendMouse(QEvent::MouseButtonPress, place, Qt::LeftButton);
    int step = 0;
    for (auto _ : state) {
        sendMouse(QEvent::MouseMove, place + QPoint(++step % 2 * 3, 0), Qt::NoButton);
        settle();
    }
    sendMouse(QEvent::MouseButtonRelease, place, Qt::LeftButton);
}
BENCHMARK(dragTable)->Apply(planSizes);

/// Two guests of different tables exchange their seats.
void swapSeats(benchmark::State &state)
{
    fill(state);
    int seat = 0;
    for (auto _ : state) {
        plan().assignGuest(plan().guestAt(0), plan().tableAt(seat++ % 2), 0, true);
        settle();
    }
}
BENCHMARK(swapSeats)->Apply(planSizes);

/// What the end of a layout asks for: the lists, the floor plan and all the rest.
void rebuildFloorPlan(benchmark::State &state)
{
    fill(state);
    for (auto _ : state) {
        plan().announceRefresh();
        settle();
    }
}
BENCHMARK(rebuildFloorPlan)->Apply(planSizes);

/// So many new tables of 8 seats by one OK of the table dialog, in a room so many metres wide and
/// deep.
void insertTables(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        plan().clear();
        plan().setRoomXSize(static_cast<double>(state.range(1)));
        plan().setRoomYSize(static_cast<double>(state.range(1)));
        openWindow->panes()->resizeFloorPlan();
        settle();
        KWTableDlgImpl dialog(openWindow, &plan(), KWTable::Circular);
        dialog.findChild<QSpinBox *>(QStringLiteral("m_numTablesSpinBox"))
            ->setValue(static_cast<int>(state.range(0)));
        state.ResumeTiming();
        dialog.apply();
        settle();
    }
}
BENCHMARK(insertTables)
    ->ArgNames({"tables", "room"})
    ->ArgsProduct({{10, 100, 999}, {20, 150}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

/// The search alone: so many tables of 8 seats, one after the other, from the middle of a room so
/// many metres wide and deep with chairs of half a metre.
void placeTables(benchmark::State &state)
{
    const auto room = static_cast<double>(state.range(1));
    const QSize canvas = KWRoomGeometry::canvasSize(room, room, 0.5);
    const QPointF middle(canvas.width() / 2.0, canvas.height() / 2.0);
    const KWTableGeometry table(KWTable::Circular, 8, 0, 0, 0);
    for (auto _ : state) {
        KWPlaceFinder finder(canvas);
        for (auto i = state.range(0); i > 0; --i)
            finder.add(table.area(finder.freePlace(middle, table.area({}).size()).centre));
    }
}
BENCHMARK(placeTables)
    ->ArgNames({"tables", "room"})
    ->ArgsProduct({{10, 100, 999}, {20, 150}})
    ->Unit(benchmark::kMillisecond);
} // namespace
