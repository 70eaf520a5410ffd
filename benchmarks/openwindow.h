#pragma once

#include <benchmark/benchmark.h>

class KWDocument;
class KWMainWinImpl;

/// The main window, shown, for the length of all benchmarks; main() makes it.
extern KWMainWinImpl *openWindow;

/// The plan that it shows.
KWDocument &plan();
/// Waits until all is painted.
void settle();

/// The sizes of plans for a benchmark that takes the number of guests.
void planSizes(benchmark::internal::Benchmark *benchmark);
