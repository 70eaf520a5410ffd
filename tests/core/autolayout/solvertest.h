#pragma once

#include "../drawnplan.h"
#include "core/autolayout/kwgeneticsolver.h"

#include <algorithm>

// Helpers of the solver's tests.

/// The numbers of a run, unless a test wants others.
struct SolverNumbers
{
    int stopCriteria = KWGeneticSolver::StopOnUnimproved;
    int maxSeconds = 60;
    int maxGenerationsUnimproved = 20;
    int populationSize = 20;
    float mutationFactor = 0.5F;
    float crossoverFactor = 1.0F;
    float startFactor = 2.0F;
};

inline KWGeneticSolver solverFor(const KWDocument &plan, const SolverNumbers &numbers = {})
{
    return {plan,
            numbers.stopCriteria,
            numbers.maxSeconds,
            numbers.maxGenerationsUnimproved,
            numbers.populationSize,
            numbers.mutationFactor,
            numbers.crossoverFactor,
            numbers.startFactor};
}

inline void addStartSolutions(KWGeneticSolver &solver, int count)
{
    for (int i = 0; i < count; ++i)
        solver.addStartSolution();
}

inline QList<const KWDocument *> candidates(const KWGeneticSolver &solver)
{
    QList<const KWDocument *> result;
    for (int i = 0; i < solver.numberOfSolutions(); ++i)
        result.append(solver.solutions().at(i));
    return result;
}

inline QStringList histories(const QList<const KWDocument *> &plans)
{
    QStringList result;
    for (const KWDocument *plan : plans)
        result.append(plan->history());
    return result;
}

/// All that the candidates are, to be compared.
inline QStringList snapshot(const KWGeneticSolver &solver)
{
    QStringList result;
    for (const KWDocument *plan : candidates(solver))
        result.append(
            s("%1: %2: %3")
                .arg(plan->history(), QString::number(plan->totalScore()), seatingLine(*plan)));
    return result;
}
