#pragma once

#include "core/autolayout/kwsolutionslist.h"

#include <QElapsedTimer>

#include <array>

/// Finds a seating for all unlocked guests of a plan by evolving whole copies of it.
///
/// A layout run drives it step by step: start solutions first, then generations until
/// isFinished(). It never changes the plan; the caller adopts bestSolution(). A step throws
/// KWMemoryException when a copy cannot be made, and then leaves the candidates as they were.
class KWGeneticSolver
{
public:
    enum StopCriteria { StopOnTime = 1, StopOnUnimproved = 2, StopOnEither = 3 };
    static constexpr int mutationCount = 8;

    /// What became of the tries at one kind of mutation, or at crossover.
    struct Statistics
    {
        qint64 attempts = 0;
        qint64 successes = 0;
        qint64 fails = 0;
        qint64 improved = 0;
    };

    /// `document` must outlive the solver. The factors say how many mutants, crossover children
    /// and start solutions there are for each candidate of the population.
    KWGeneticSolver(const KWDocument &document, int stopCriteria, int maxSeconds,
                    int maxGenerationsUnimproved, int populationSize, float mutationFactor,
                    float crossoverFactor, float startFactor);
    virtual ~KWGeneticSolver() = default;
    KWGeneticSolver(const KWGeneticSolver &) = delete;
    KWGeneticSolver &operator=(const KWGeneticSolver &) = delete;

    /// How many start solutions there should be.
    int numberOfStartSolutions() const;
    /// How many candidates there are.
    int numberOfSolutions() const { return m_solutions.count(); }
    /// Adds a candidate: first the plan as it is, then random layouts of it.
    void addStartSolution();
    bool isFinished() const;
    /// Makes mutants and crossover children and adds them to the candidates.
    void nextGeneration();
    /// Keeps the best half of the population, and others by chance up to its size.
    void selectSurvivors();
    /// Puts the candidates in order, so that the best start solution can be adopted when no
    /// generation was made.
    void sortSolutions() { m_solutions.sort(); }

    /// Deletes all candidates but the first, so that there is memory for a copy of it.
    void keepFirstSolution();

    /// The score of bestSolution().
    int bestScore() const { return best().totalScore(); }
    /// A copy of the first candidate, or of the plan if that candidate neither seats more guests
    /// nor scores higher.
    KWDocument bestSolution() const { return best(); }

    qint64 generation() const { return m_generation; }
    qint64 generationsUnimproved() const { return m_generations_unimproved; }
    const KWSolutionsList &solutions() const { return m_solutions; }
    bool isMutationAvailable(int number) const;
    bool isCrossoverAvailable() const { return m_crossover_available; }

    /// Counted over all runs of the process.
    static const std::array<Statistics, mutationCount> &mutationStatistics();
    static const Statistics &crossoverStatistics();

    /// Write tables of the statistics, or a table's seats, to the trace.
    static void logStatistics();
    static void logSeats(const KWTable &table);

    /// Whether more whole seconds have passed than are allowed.
    static bool isTimeOver(qint64 milliseconds, int maxSeconds);

private:
    void findAvailable();
    const KWDocument &best() const;
    std::unique_ptr<KWDocument> makeMutant(const KWDocument &parent) const;
    std::unique_ptr<KWDocument> makeCrossover() const;

    const KWDocument &m_document;
    int m_population_size;
    int m_max_seconds;
    int m_max_generations_unimproved;
    float m_start_factor;
    float m_crossover_factor;
    float m_mutation_factor;
    KWSolutionsList m_solutions;
    qint64 m_generation = 0;
    qint64 m_generations_unimproved = 0;
    QElapsedTimer m_clock;
    std::array<bool, mutationCount> m_mutation_available{};
    bool m_crossover_available = false;
    int m_stop_criteria;
};
