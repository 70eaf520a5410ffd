#include "kwplacefinder.h"
#include "kwroomgeometry.h"
#include "kwtablegeometry.h"

#include <benchmark/benchmark.h>

namespace {

/// So many new tables of 8 seats, one after the other, from the middle of a room so many metres
/// wide and deep with chairs of half a metre.
void placeTables(benchmark::State &state)
{
    const auto room = static_cast<double>(state.range(1));
    const QSize canvas = KWRoomGeometry::canvasSize(room, room, 0.5);
    const QPointF middle(canvas.width() / 2.0, canvas.height() / 2.0);
    const KWTableGeometry table(KWTable::Circular, 8, 0, 0, 0);
    for (auto _ : state) {
        KWPlaceFinder finder(canvas);
        for (auto i = state.range(0); i > 0; --i)
            finder.add(table.area(finder.freePlace(middle, table.area({}).size())));
    }
}
BENCHMARK(placeTables)
    ->ArgNames({"tables", "room"})
    ->ArgsProduct({{10, 100, 999}, {20, 150}})
    ->Unit(benchmark::kMillisecond);
} // namespace
