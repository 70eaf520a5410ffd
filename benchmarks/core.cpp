#include "benchplan.h"
#include "core/autolayout/kwgeneticsolver.h"
#include "core/autolayout/kwlayoutrun.h"
#include "core/model/kwdocument.h"
#include "core/model/kwrandom.h"

#include <benchmark/benchmark.h>

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

// Each benchmark takes the number of guests; the unit is one operation on the whole plan.

namespace {
void planSizes(benchmark::internal::Benchmark *benchmark)
{
    for (const int guests : {20, 100, 300, 600, 2000})
        benchmark->Arg(guests);
    benchmark->Unit(benchmark::kMicrosecond);
}

/// A plan on which a layout has been found, as candidates are.
void fillSeated(KWDocument &plan, const benchmark::State &state)
{
    fillBenchPlan(plan, static_cast<int>(state.range(0)));
    setFixedRandomSeed(1);
    seedRandomNumbers();
    plan.randomLayout();
}

KWGeneticSolver makeSolver(const KWDocument &plan)
{
    constexpr int unlimited = 1'000'000;
    return {plan, KWGeneticSolver::StopOnTime, unlimited, unlimited, 20, 0.5F, 1.0F, 2.0F};
}

void deepCopy(benchmark::State &state)
{
    KWDocument plan;
    fillSeated(plan, state);
    for (auto _ : state) {
        const KWDocument copy(plan);
        benchmark::DoNotOptimize(copy.guestCount());
    }
}
BENCHMARK(deepCopy)->Apply(planSizes);

void fullRescore(benchmark::State &state)
{
    KWDocument plan;
    fillSeated(plan, state);
    for (auto _ : state) {
        for (KWTable *table : plan.tables())
            plan.scoreTable(table);
    }
}
BENCHMARK(fullRescore)->Apply(planSizes);

void startSolution(benchmark::State &state)
{
    KWDocument plan;
    fillBenchPlan(plan, static_cast<int>(state.range(0)));
    setFixedRandomSeed(1);
    seedRandomNumbers();
    for (auto _ : state) {
        KWDocument candidate(plan);
        candidate.randomLayout();
        benchmark::DoNotOptimize(candidate.totalScore());
    }
}
BENCHMARK(startSolution)->Apply(planSizes);

void generation(benchmark::State &state)
{
    KWDocument plan;
    fillBenchPlan(plan, static_cast<int>(state.range(0)));
    setFixedRandomSeed(1);
    KWGeneticSolver solver = makeSolver(plan);
    while (solver.numberOfSolutions() < solver.numberOfStartSolutions())
        solver.addStartSolution();
    for (auto _ : state) {
        solver.nextGeneration();
        solver.selectSurvivors();
    }
}
BENCHMARK(generation)->Apply(planSizes);

/// The names of as many tables as are inserted at once at most.
void nameNewTables(benchmark::State &state)
{
    KWDocument plan;
    fillBenchPlan(plan, static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(plan.nextTableNames(999).size());
}
BENCHMARK(nameNewTables)->Apply(planSizes);

void savePlan(benchmark::State &state)
{
    KWDocument plan;
    fillSeated(plan, state);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("plan.kw"));
    for (auto _ : state) {
        if (plan.save(path, {}) != KWDocument::FileOk)
            state.SkipWithError("cannot save");
    }
}
BENCHMARK(savePlan)->Apply(planSizes);

void loadPlan(benchmark::State &state)
{
    KWDocument plan;
    fillSeated(plan, state);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("plan.kw"));
    plan.save(path, {});
    KWDocument loaded;
    KWViewSettings views;
    bool differs = false;
    for (auto _ : state) {
        if (loaded.load(path, views, differs) != KWDocument::FileOk)
            state.SkipWithError("cannot load");
    }
}
BENCHMARK(loadPlan)->Apply(planSizes);

/// A run as the user starts it, with the default settings.
void defaultRun(benchmark::State &state)
{
    KWDocument plan;
    fillBenchPlan(plan, static_cast<int>(state.range(0)));
    setFixedRandomSeed(1);
    int generations = 0;
    for (auto _ : state) {
        KWDocument copy(plan);
        generations = runLayout(copy, {}).generations;
    }
    state.counters["generations"] = generations;
}
BENCHMARK(defaultRun)->Apply(planSizes)->Unit(benchmark::kMillisecond);
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
