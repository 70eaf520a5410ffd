#include "solvertest.h"
#include "support/registeredtest.h"

#include <QtTest>

namespace {
QList<const KWDocument *> inOrder(QList<const KWDocument *> plans)
{
    std::ranges::stable_sort(plans, [](const KWDocument *a, const KWDocument *b) {
        return KWSolutionsList::compareItems(a, b) < 0;
    });
    return plans;
}
} // namespace

/// What is left of the candidates at the end of a generation.
class TestSolverSurvivors : public QObject
{
    Q_OBJECT

private slots:
    void theBestTenSurviveAndTheOthersAreThinnedByChance()
    {
        KWDocument plan;
        fillRandomly(plan, {.seed = 1});
        const FixedSeed begin(1);
        KWGeneticSolver solver = solverFor(plan);
        addStartSolutions(solver, 40);
        solver.nextGeneration();
        const auto sorted = inOrder(candidates(solver));
        auto expected = sorted;
        {
            const FixedSeed thinning(7);
            while (expected.size() > 20)
                expected.removeAt(10 + randomNumber(static_cast<int>(expected.size()) - 10));
        }
        const FixedSeed thinning(7);
        solver.selectSurvivors();
        QCOMPARE(candidates(solver), expected);
        QCOMPARE(expected.mid(0, 10), sorted.mid(0, 10));
        QVERIFY(sorted.indexOf(expected.last()) >= 20);
    }

    void afterSelectingThereAreAtMostTwentyAndExactlyTwentyOfTwentyOrMore_data()
    {
        QTest::addColumn<int>("startSolutions");
        QTest::addColumn<int>("afterFirst");
        QTest::newRow("a full start stage") << 40 << 20;
        QTest::newRow("eleven and ten mutants") << 11 << 20;
        QTest::newRow("ten and ten mutants") << 10 << 20;
        QTest::newRow("nine and ten mutants") << 9 << 19;
        QTest::newRow("one and ten mutants") << 1 << 11;
    }
    void afterSelectingThereAreAtMostTwentyAndExactlyTwentyOfTwentyOrMore()
    {
        QFETCH(const int, startSolutions);
        const KWDocument plan = drawnPlan("ring A B C D");
        const FixedSeed seed(1);
        KWGeneticSolver solver = solverFor(plan);
        addStartSolutions(solver, startSolutions);
        solver.nextGeneration();
        solver.selectSurvivors();
        QTEST(solver.numberOfSolutions(), "afterFirst");
        for (int i = 0; i < 5; ++i) {
            solver.nextGeneration();
            solver.selectSurvivors();
            QCOMPARE(solver.numberOfSolutions(), 20);
        }
    }

    void anOddPopulationIsHalvedDownwards()
    {
        const KWDocument plan = drawnPlan("ring A B C D | loves A C");
        const FixedSeed begin(1);
        KWGeneticSolver solver = solverFor(plan, {.populationSize = 5});
        addStartSolutions(solver, 30);
        auto expected = inOrder(candidates(solver));
        {
            const FixedSeed thinning(7);
            while (expected.size() > 5)
                expected.removeAt(2 + randomNumber(static_cast<int>(expected.size()) - 2));
        }
        const FixedSeed thinning(7);
        solver.selectSurvivors();
        QCOMPARE(candidates(solver), expected);
    }

    void withoutABetterFirstTheCountRises()
    {
        TraceLog trace;
        const KWDocument plan = drawnPlan("ring A B | loves A B");
        KWGeneticSolver solver = solverFor(plan);
        solver.addStartSolution();
        trace.take();
        QCOMPARE(solver.generationsUnimproved(), 0);
        for (int i = 1; i <= 3; ++i) {
            solver.selectSurvivors();
            QCOMPARE(solver.generationsUnimproved(), i);
        }
        QCOMPARE(trace.lines(), QStringList(3, s("**new best score=80")));
    }

    void aBetterFirstStartsTheCountAgain_data()
    {
        QTest::addColumn<QString>("drawing");
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        QTest::newRow("higher score") << s("ring A B C D | loves A C") << 20 << 40;
        QTest::newRow("more seated with a lower score")
            << s("ring - - | wait A B | hates A B") << 0 << -160;
        QTest::newRow("more seated with the same score") << s("ring - - | wait A B") << 0 << 0;
    }
    void aBetterFirstStartsTheCountAgain()
    {
        QFETCH(const QString, drawing);
        QFETCH(const int, before);
        QFETCH(const int, after);
        TraceLog trace;
        const FixedSeed seed(1);
        const KWDocument plan = drawnPlan(drawing);
        KWGeneticSolver solver = solverFor(plan);
        solver.addStartSolution();
        solver.selectSurvivors();
        solver.selectSurvivors();
        QCOMPARE(solver.generationsUnimproved(), 2);

        // The first random layout is better than the plan already.
        solver.addStartSolution();
        trace.take();
        solver.selectSurvivors();
        QCOMPARE(solver.generationsUnimproved(), 0);
        solver.selectSurvivors();
        QCOMPARE(solver.generationsUnimproved(), 1);
        QCOMPARE(trace.lines(), QStringList(2, s("**new best score=%1").arg(after)));
        QCOMPARE(plan.totalScore(), before);
    }

    void theFirstGenerationIsComparedWithThePlan()
    {
        // The plan comes first in the unsorted list, whatever the start solutions are worth.
        const FixedSeed seed(1);
        const KWDocument worse = drawnPlan("ring A B C D | loves A C");
        const KWDocument best = drawnPlan("ring A C B D | loves A C");
        for (const KWDocument *plan : {&worse, &best}) {
            KWGeneticSolver solver = solverFor(*plan);
            addStartSolutions(solver, 40);
            solver.nextGeneration();
            solver.selectSurvivors();
            QCOMPARE(solver.generationsUnimproved(), plan == &worse ? 0 : 1);
            QCOMPARE(solver.bestScore(), 40);
        }
    }

    void theBestIsNeverLost()
    {
        KWDocument plan;
        fillRandomly(plan, {.wishes = 300, .seed = 2});
        const FixedSeed seed(1);
        KWGeneticSolver solver = solverFor(plan);
        addStartSolutions(solver, 40);
        const KWDocument *best = nullptr;
        for (int i = 0; i < 15; ++i) {
            solver.nextGeneration();
            const auto sorted = inOrder(candidates(solver));
            if (best) {
                QVERIFY(sorted.contains(best));
                QVERIFY(best == sorted.first() ||
                        KWSolutionsList::compareItems(sorted.first(), best) < 0);
            }
            best = sorted.first();
            solver.selectSurvivors();
            QCOMPARE(solver.solutions().first(), best);
        }
    }
};

REGISTER_TEST(TestSolverSurvivors)
#include "tst_kwgeneticsolver_survivors.moc"
