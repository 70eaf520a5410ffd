#pragma once

#include <benchmark/benchmark.h>

class KWMainWinImpl;

/// The main window, shown, for the length of all benchmarks; main() makes it.
extern KWMainWinImpl *openWindow;

/// The sizes of plans for a benchmark that takes the number of guests.
void planSizes(benchmark::internal::Benchmark *benchmark);
