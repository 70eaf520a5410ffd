#pragma once

#include "core/autolayout/kwlayoutrun.h"
#include "solvertest.h"

#include <functional>

/// A layout run from a fixed seed that writes down all it reports, and that a test can disturb.
struct LayoutTrial
{
    unsigned seed = 1;
    KWLayoutOptions options;
    /// Called whenever the run lets events be processed, with the number of the call from 1 on.
    std::function<void(int call)> onEvents = [](int) {};
    std::function<void(const KWLayoutProgress &)> onProgress = [](const auto &) {};

    int eventCalls = 0;
    QList<KWLayoutProgress> progress{};
    QStringList lines{};

    KWLayoutResult run(KWDocument &plan)
    {
        const FixedSeed fixed(seed);
        TraceLog trace;
        KWLayoutHooks hooks;
        hooks.processEvents = [this] { onEvents(++eventCalls); };
        hooks.progress = [this](const KWLayoutProgress &now) {
            progress.append(now);
            onProgress(now);
        };
        const KWLayoutResult result = runLayout(plan, options, hooks);
        lines = trace.take();
        return result;
    }

    /// The lines of the run itself, without those of the solver.
    QStringList stages() const
    {
        QStringList result;
        for (const QString &line : lines) {
            if (line.contains(s("**")) && !line.startsWith(s("**new best score=")))
                result.append(line);
        }
        return result;
    }
};

/// How a run's trace begins when it starts now.
inline QStringList firstLines()
{
    return {s("\n**start GA"), s("**Start number of docs=%1").arg(KWDocument::liveCount())};
}

/// Where a run ends that has made so many start solutions and generations; `children` tells whether
/// those of one more generation are there, from which none was selected yet.
inline KWDocument bestOf(const KWDocument &plan, int startSolutions, int generations = 0,
                         bool children = false)
{
    const FixedSeed fixed(LayoutTrial().seed);
    KWGeneticSolver solver = solverFor(plan);
    addStartSolutions(solver, startSolutions);
    for (int i = 0; i < generations; ++i) {
        solver.nextGeneration();
        solver.selectSurvivors();
    }
    if (children)
        solver.nextGeneration();
    if (generations == 0)
        solver.sortSolutions();
    return solver.bestSolution();
}

/// The plan as far as a run may change it.
inline QStringList stateOf(const KWDocument &plan)
{
    return {seatingLine(plan), plan.history(), QString::number(plan.totalScore())};
}
