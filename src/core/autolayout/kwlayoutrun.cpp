#include "core/autolayout/kwlayoutrun.h"

#include "core/model/kwmodelhooks.h"

#include <QElapsedTimer>

#include <new>

namespace {
constexpr int populationSize = 20;
constexpr float mutationFactor = 0.5F;
constexpr float crossoverFactor = 1.0F;
constexpr float startFactor = 2.0F;

/// One run: its solver and what it has done so far.
class LayoutRun
{
public:
    LayoutRun(KWDocument &document, const KWLayoutOptions &options, const KWLayoutHooks &hooks)
        : m_document(document)
        , m_options(options)
        , m_hooks(hooks)
        , m_solver(document, options.stopCriteria, options.maxSeconds,
                   options.maxGenerationsUnimproved, populationSize, mutationFactor,
                   crossoverFactor, startFactor)
    {
    }

    KWLayoutResult run()
    {
        bool memoryFailed = false;
        try {
            makeStartSolutions();
            makeGenerations();
            traceLine(QStringLiteral("**GA finished"));
        } catch (const std::bad_alloc &) {
            memoryFailed = true;
        }
        m_result.stoppedBy = stoppedBy(memoryFailed);
        // Candidates are in order only after a generation; without one the best may be anywhere.
        if (m_result.generations == 0)
            m_solver.sortSolutions();
        if (memoryFailed)
            m_solver.keepFirstSolution();
        const KWDocument best = m_solver.bestSolution();
        traceLine(QStringLiteral("**best solution="), best.history());
        m_document = best;
        return m_result;
    }

private:
    void makeStartSolutions()
    {
        const Stopwatch stopwatch(m_result.startStageMs);
        while (m_solver.numberOfSolutions() < m_startTotal) {
            m_solver.addStartSolution();
            ++m_result.startSolutions;
            m_hooks.processEvents();
            if (m_document.abortRequested()) {
                m_aborted = true;
                traceLine(QStringLiteral("**aborted GA"));
                break;
            }
            report(true, m_solver.numberOfSolutions());
        }
    }

    void makeGenerations()
    {
        const Stopwatch stopwatch(m_result.generationsMs);
        while (!m_solver.isFinished()) {
            traceLine(QStringLiteral("**GA generation="), m_result.generations);
            m_hooks.processEvents();
            if (m_document.abortRequested()) {
                m_aborted = true;
                traceLine(QStringLiteral("**aborted GA"));
                m_document.setAbortRequested(false);
                break;
            }
            m_solver.nextGeneration();
            m_hooks.processEvents();
            m_solver.selectSurvivors();
            ++m_result.generations;
            report(false, m_result.generations);
        }
    }

    void report(bool inStartStage, qint64 done) const
    {
        m_hooks.progress({inStartStage, done, m_startTotal, m_solver.bestScore()});
    }

    KWLayoutResult::StoppedBy stoppedBy(bool memoryFailed) const
    {
        if (memoryFailed)
            return KWLayoutResult::Memory;
        if (m_aborted)
            return KWLayoutResult::User;
        const bool unimproved =
            m_options.stopCriteria != KWGeneticSolver::StopOnTime &&
            m_solver.generationsUnimproved() >= m_options.maxGenerationsUnimproved;
        return unimproved ? KWLayoutResult::Unimproved : KWLayoutResult::Time;
    }

    /// Notes how long its scope took, however it is left.
    class Stopwatch
    {
    public:
        explicit Stopwatch(double &ms)
            : m_ms(ms)
        {
            m_timer.start();
        }
        ~Stopwatch() { m_ms = static_cast<double>(m_timer.nsecsElapsed()) / 1e6; }
        Stopwatch(const Stopwatch &) = delete;
        Stopwatch &operator=(const Stopwatch &) = delete;

    private:
        double &m_ms;
        QElapsedTimer m_timer;
    };

    KWDocument &m_document;
    const KWLayoutOptions &m_options;
    const KWLayoutHooks &m_hooks;
    KWGeneticSolver m_solver;
    KWLayoutResult m_result;
    int m_startTotal = m_solver.numberOfStartSolutions();
    bool m_aborted = false;
};
} // namespace

KWLayoutResult runLayout(KWDocument &document, const KWLayoutOptions &options,
                         const KWLayoutHooks &hooks)
{
    traceLine(QStringLiteral("\n**start GA"));
    traceLine(QStringLiteral("**Start number of docs="), KWDocument::liveCount());
    return LayoutRun(document, options, hooks).run();
}
