#include "copymemory.h"
#include "core/autolayout/kwmemoryexception.h"
#include "layouttrial.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <cstdlib>
#include <new>

int copiesLeft = -1;

// Nothing but a copy of a plan has an object of that size.
void *operator new(std::size_t size)
{
    if (size == sizeof(KWDocument) && copiesLeft >= 0 && copiesLeft-- == 0)
        throw std::bad_alloc();
    if (void *memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}
void *operator new(std::size_t size, const std::nothrow_t & /*tag*/) noexcept
{
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}
void operator delete(void *memory) noexcept
{
    std::free(memory);
}
void operator delete(void *memory, const std::nothrow_t & /*tag*/) noexcept
{
    std::free(memory);
}
void operator delete(void *memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

namespace {
QStringList generationLines(int first, int last)
{
    QStringList lines;
    for (int i = first; i <= last; ++i)
        lines.append(s("**GA generation=%1").arg(i));
    return lines;
}

QString aborted()
{
    return s("**aborted GA");
}

/// How the trace ends, when nothing went wrong.
QStringList lastLines(const KWDocument &plan)
{
    return {s("**GA finished"), s("**best solution=") + plan.history()};
}

template <typename Exception>
std::function<void(int)> throwAt(int wanted, const Exception &exception)
{
    return [=](int call) {
        if (call == wanted)
            throw exception;
    };
}
} // namespace

/// Runs that the user stops, or that something goes wrong in.
class TestLayoutRunStops : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_plan = std::make_unique<KWDocument>();
        fillRandomly(*m_plan, {.guests = 16, .seats = 18, .wishes = 40, .locked = 2, .seed = 1});
        m_before = std::make_unique<KWDocument>(*m_plan);
    }
    void cleanup()
    {
        m_plan.reset();
        m_before.reset();
    }

    void aStopInTheStartStageEndsAtTheFirstGenerationsCheck_data()
    {
        QTest::addColumn<int>("stopAt");
        QTest::newRow("after the first candidate") << 1;
        QTest::newRow("on the way") << 7;
        QTest::newRow("after the last candidate") << 40;
    }
    void aStopInTheStartStageEndsAtTheFirstGenerationsCheck()
    {
        QFETCH(const int, stopAt);
        QStringList expected = firstLines();
        expected << aborted() << generationLines(0, 0) << aborted();
        LayoutTrial trial = trialStoppedAt(stopAt);
        const KWLayoutResult result = trial.run(*m_plan);
        QCOMPARE(result.startSolutions, stopAt);
        QCOMPARE(result.generations, 0);
        QCOMPARE(result.stoppedBy, KWLayoutResult::User);
        QCOMPARE(trial.eventCalls, stopAt + 1);
        QCOMPARE(trial.progress.size(), stopAt - 1);
        QCOMPARE(trial.stages(), expected + lastLines(*m_plan));
        QVERIFY(!m_plan->abortRequested());
        QCOMPARE(stateOf(*m_plan), stateOf(bestOf(*m_before, stopAt)));
    }

    void aStopInTheStartStageOfARunThatIsFinishedAtOnceStopsTheNextRunToo()
    {
        QStringList expected = firstLines();
        expected << aborted();
        LayoutTrial trial = trialStoppedAt(7);
        trial.options.maxGenerationsUnimproved = 0;
        const KWLayoutResult result = trial.run(*m_plan);
        QCOMPARE(result.startSolutions, 7);
        QCOMPARE(result.stoppedBy, KWLayoutResult::User);
        QCOMPARE(trial.stages(), expected + lastLines(*m_plan));
        QVERIFY(m_plan->abortRequested());

        LayoutTrial next;
        const KWLayoutResult stopped = next.run(*m_plan);
        QCOMPARE(stopped.startSolutions, 1);
        QCOMPARE(stopped.generations, 0);
        QCOMPARE(stopped.stoppedBy, KWLayoutResult::User);
        QVERIFY(!m_plan->abortRequested());
    }

    void aStopOnTheFirstGenerationsCheckAdoptsTheBestOfTheStartSolutions()
    {
        QStringList expected = firstLines();
        expected << generationLines(0, 0) << aborted();
        LayoutTrial trial = trialStoppedAt(41);
        const KWLayoutResult result = trial.run(*m_plan);
        QCOMPARE(result.startSolutions, 40);
        QCOMPARE(result.generations, 0);
        QCOMPARE(result.stoppedBy, KWLayoutResult::User);
        QCOMPARE(trial.progress.size(), 40);
        QCOMPARE(trial.stages(), expected + lastLines(*m_plan));
        QVERIFY(!m_plan->abortRequested());
        QCOMPARE(stateOf(*m_plan), stateOf(bestOf(*m_before, 40)));
        QVERIFY(m_plan->history() != s("0"));
    }

    void aStopInAGenerationLetsItEndFirst_data()
    {
        QTest::addColumn<int>("stopAt");
        QTest::addColumn<int>("generations");
        QTest::newRow("within the first") << 42 << 1;
        QTest::newRow("before the second") << 43 << 1;
        QTest::newRow("within the second") << 44 << 2;
        QTest::newRow("within the fourth") << 48 << 4;
    }
    void aStopInAGenerationLetsItEndFirst()
    {
        QFETCH(const int, stopAt);
        QFETCH(const int, generations);
        QStringList expected = firstLines();
        expected << generationLines(0, generations) << aborted();
        LayoutTrial trial = trialStoppedAt(stopAt);
        const KWLayoutResult result = trial.run(*m_plan);
        QCOMPARE(result.startSolutions, 40);
        QCOMPARE(result.generations, generations);
        QCOMPARE(result.stoppedBy, KWLayoutResult::User);
        QCOMPARE(trial.eventCalls, 40 + 2 * generations + 1);
        QCOMPARE(trial.progress.size(), 40 + generations);
        QCOMPARE(trial.stages(), expected + lastLines(*m_plan));
        QVERIFY(!m_plan->abortRequested());
        QCOMPARE(stateOf(*m_plan), stateOf(bestOf(*m_before, 40, generations)));
    }

    void anUnknownCriterionLeavesTheEndToTheUser()
    {
        LayoutTrial trial = trialStoppedAt(40 + 2 * 30);
        trial.options = {.stopCriteria = 0, .maxSeconds = -1, .maxGenerationsUnimproved = 0};
        const KWLayoutResult result = trial.run(*m_plan);
        QCOMPARE(result.generations, 30);
        QCOMPARE(result.stoppedBy, KWLayoutResult::User);
    }

    void aRunThatIsNotStoppedLeavesTheFlagAlone()
    {
        LayoutTrial trial{.options = {.maxGenerationsUnimproved = 2}};
        trial.run(*m_plan);
        QVERIFY(!m_plan->abortRequested());
        QVERIFY(!trial.lines.contains(aborted()));
    }

    void withoutMemoryTheBestSoFarIsAdopted_data()
    {
        QTest::addColumn<int>("copies");
        QTest::addColumn<int>("startSolutions");
        QTest::addColumn<int>("generations");
        QTest::newRow("no candidate at all") << 0 << 0 << 0;
        QTest::newRow("after the plan itself") << 1 << 1 << 0;
        QTest::newRow("in the start stage") << 12 << 12 << 0;
        QTest::newRow("at the first child") << 40 << 40 << 0;
        QTest::newRow("among the children of the first generation") << 45 << 40 << 0;
    }
    void withoutMemoryTheBestSoFarIsAdopted()
    {
        QFETCH(const int, copies);
        QFETCH(const int, startSolutions);
        const int alive = KWDocument::liveCount();
        LayoutTrial trial;
        const CopyLimit limit(copies);
        const KWLayoutResult result = trial.run(*m_plan);
        QCOMPARE(result.startSolutions, startSolutions);
        QTEST(static_cast<int>(result.generations), "generations");
        QCOMPARE(result.stoppedBy, KWLayoutResult::Memory);
        QVERIFY(!trial.lines.contains(s("**GA finished")));
        QCOMPARE(trial.lines.last(), s("**best solution=") + m_plan->history());
        QCOMPARE(stateOf(*m_plan), stateOf(bestOf(*m_before, startSolutions)));
        QCOMPARE(KWDocument::liveCount(), alive);
    }

    void aMemoryFailureEndsTheRunWhereverItComesFrom_data()
    {
        QTest::addColumn<int>("failAt");
        QTest::addColumn<int>("startSolutions");
        QTest::addColumn<int>("generations");
        QTest::addColumn<bool>("children");
        QTest::newRow("first candidate") << 1 << 1 << 0 << false;
        QTest::newRow("start stage") << 20 << 20 << 0 << false;
        QTest::newRow("before the first generation") << 41 << 40 << 0 << false;
        QTest::newRow("before the first selection") << 42 << 40 << 0 << true;
        QTest::newRow("before the second generation") << 43 << 40 << 1 << false;
        QTest::newRow("before the second selection") << 44 << 40 << 1 << true;
        QTest::newRow("before the fifth generation") << 49 << 40 << 4 << false;
    }
    void aMemoryFailureEndsTheRunWhereverItComesFrom()
    {
        QFETCH(const int, failAt);
        QFETCH(const int, startSolutions);
        QFETCH(const int, generations);
        QFETCH(const bool, children);
        LayoutTrial trial;
        trial.onEvents = throwAt(failAt, KWMemoryException());
        const KWLayoutResult result = trial.run(*m_plan);
        QCOMPARE(result.startSolutions, startSolutions);
        QCOMPARE(result.generations, generations);
        QCOMPARE(result.stoppedBy, KWLayoutResult::Memory);
        QVERIFY(result.startStageMs > 0);
        QCOMPARE(result.generationsMs > 0, failAt > 40);
        QVERIFY(!trial.lines.contains(s("**GA finished")));
        QCOMPARE(stateOf(*m_plan),
                 stateOf(bestOf(*m_before, startSolutions, generations, children)));
    }

    void otherExceptionsPassOnAndLeaveThePlanAsItWas_data()
    {
        QTest::addColumn<int>("throwAtCall");
        QTest::newRow("start stage") << 1;
        QTest::newRow("before the first generation") << 41;
        QTest::newRow("within the first generation") << 42;
        QTest::newRow("before the second generation") << 43;
    }
    void otherExceptionsPassOnAndLeaveThePlanAsItWas()
    {
        QFETCH(const int, throwAtCall);
        const int alive = KWDocument::liveCount();
        LayoutTrial trial;
        trial.onEvents = throwAt(throwAtCall, std::runtime_error("not memory"));
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, trial.run(*m_plan));
        QCOMPARE(trial.eventCalls, throwAtCall);
        QCOMPARE(stateOf(*m_plan), stateOf(*m_before));
        QVERIFY(!m_plan->isModified());
        QCOMPARE(KWDocument::liveCount(), alive);
    }

    void anExceptionFromTheProgressReportPassesOnToo()
    {
        LayoutTrial trial;
        trial.onProgress = [](const KWLayoutProgress &progress) {
            if (!progress.inStartStage)
                throw std::runtime_error("not memory");
        };
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, trial.run(*m_plan));
        QCOMPARE(trial.progress.size(), 41);
        QCOMPARE(stateOf(*m_plan), stateOf(*m_before));
    }

private:
    /// A run whose user presses Stop at this call of the processing of events.
    LayoutTrial trialStoppedAt(int wanted) const
    {
        LayoutTrial trial;
        trial.onEvents = [this, wanted](int call) {
            if (call == wanted)
                m_plan->abortProcessing();
        };
        return trial;
    }

    std::unique_ptr<KWDocument> m_plan;
    std::unique_ptr<KWDocument> m_before;
};

REGISTER_TEST(TestLayoutRunStops)
#include "tst_kwlayoutrun_stops.moc"
