#include "copymemory.h"
#include "core/autolayout/kwmemoryexception.h"
#include "solvertest.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <QRegularExpression>

namespace {
QString gaveUp(const char *what)
{
    return s("--Gave up on ") + s(what);
}

/// The candidates behind the first so many.
QList<const KWDocument *> childrenAfter(const KWGeneticSolver &solver, int parents)
{
    return candidates(solver).mid(parents);
}

/// A seed from which a sole candidate's mutant draws move 0 at this try for the first time, with
/// 52 for not at all; 0 if there is none.
unsigned seedForTry(int wanted)
{
    for (unsigned number = 1; number < 1000000; ++number) {
        const FixedSeed seed(number);
        randomNumber(1); // the parent
        int tries = 1;
        while (tries <= 51 && randomNumber(KWGeneticSolver::mutationCount) != 0)
            ++tries;
        if (tries == wanted)
            return number;
    }
    return 0;
}
} // namespace

/// The making of generations.
class TestSolverGeneration : public QObject
{
    Q_OBJECT

private slots:
    void aGenerationIsTenMutantsAndTwentyCrossoverChildren()
    {
        const FixedSeed seed(1);
        const KWDocument plan = drawnPlan("ring A B C D | ring E F G H");
        KWGeneticSolver solver = solverFor(plan);
        addStartSolutions(solver, 40);
        solver.nextGeneration();
        QCOMPARE(solver.numberOfSolutions(), 70);
        QCOMPARE(solver.generation(), 1);
        solver.selectSurvivors();
        solver.nextGeneration();
        QCOMPARE(solver.numberOfSolutions(), 50);
        QCOMPARE(solver.generation(), 2);
    }

    void withoutCrossoverAGenerationIsTenMutants()
    {
        const FixedSeed seed(1);
        const KWDocument plan = drawnPlan("ring A B C D");
        KWGeneticSolver solver = solverFor(plan);
        addStartSolutions(solver, 40);
        solver.nextGeneration();
        QCOMPARE(solver.numberOfSolutions(), 50);
    }

    void parentsAreTheCandidatesOfBefore()
    {
        const FixedSeed seed(2);
        const KWDocument plan = drawnPlan("ring A B C D | ring E F G H");
        SolverNumbers numbers{.mutationFactor = 10, .crossoverFactor = 10};
        KWGeneticSolver solver = solverFor(plan, numbers);
        addStartSolutions(solver, 3);
        const auto parents = candidates(solver);
        solver.nextGeneration();
        QCOMPARE(candidates(solver).mid(0, 3), parents);
        // A child of a child would have two marks.
        const QStringList children = histories(childrenAfter(solver, 3));
        QCOMPARE(children.size(), 400);
        const QRegularExpression oneMark(
            s("^0(->start solution [12])?(->(GuestM|MultiGuestM|crossover))?$"));
        for (const QString &history : children)
            QVERIFY2(oneMark.match(history).hasMatch(), qPrintable(history));
        QCOMPARE(children.filter(s("crossover")).size(), 200);
    }

    void mutantsTakeTheirParentsUniformly()
    {
        const FixedSeed seed(3);
        const KWDocument plan = drawnPlan("ring A B");
        KWGeneticSolver solver = solverFor(plan, {.mutationFactor = 100});
        addStartSolutions(solver, 4);
        solver.nextGeneration();
        const QStringList children = histories(childrenAfter(solver, 4));
        QCOMPARE(children.size(), 2000);
        for (int i = 1; i < 4; ++i) {
            const qsizetype count = children.filter(s("start solution %1").arg(i)).size();
            QVERIFY2(std::abs(count - 500) < 80, qPrintable(QString::number(count)));
        }
    }

    void crossoverChildrenPreferFirstParentsAtTheHeadOfTheList()
    {
        const FixedSeed seed(3);
        const KWDocument plan = drawnPlan("ring A B | ring C D");
        KWGeneticSolver solver =
            solverFor(plan, {.populationSize = 48, .mutationFactor = 0, .crossoverFactor = 100});
        addStartSolutions(solver, 4);
        solver.nextGeneration();
        // The child is a copy of the second parent, whoever the first has left over: with first
        // parents at 7, 5, 3 and 1 of 16, the second are at 9, 11, 13 and 15 of 48.
        const QStringList children = histories(childrenAfter(solver, 4));
        QCOMPARE(children.size(), 4800);
        for (int i = 1; i < 4; ++i) {
            const auto count =
                static_cast<int>(children.filter(s("start solution %1").arg(i)).size());
            QVERIFY2(std::abs(count - 100 * (9 + 2 * i)) < 100, qPrintable(QString::number(count)));
        }
    }

    void aMutantIsTriedFiftyOneTimes_data()
    {
        QTest::addColumn<int>("successAt");
        QTest::addColumn<QString>("history");
        QTest::addColumn<QStringList>("lines");
        const QStringList given{gaveUp("mutation")};
        QTest::newRow("success at once") << 1 << s("0->GuestM") << QStringList();
        QTest::newRow("success at the last but one") << 50 << s("0->GuestM") << QStringList();
        QTest::newRow("success at the last is given up all the same")
            << 51 << s("0->GuestM") << given;
        QTest::newRow("without success a duplicate is kept") << 52 << s("0") << given;
    }
    void aMutantIsTriedFiftyOneTimes()
    {
        QFETCH(const int, successAt);
        QFETCH(const QString, history);
        // Only two guests' change of places is available, and it always succeeds.
        const KWDocument plan = drawnPlan("ring A B");
        const FixedSeed seed(seedForTry(successAt));
        KWGeneticSolver solver = solverFor(plan, {.populationSize = 2});
        solver.addStartSolution();
        TraceLog trace;
        solver.nextGeneration();
        QCOMPARE(histories(candidates(solver)), (QStringList{s("0"), history}));
        QCOMPARE(seatingLine(*solver.solutions().at(1)), successAt > 51 ? s("A B") : s("B A"));
        QTEST(trace.lines(), "lines");
    }

    void withOneUnlockedGuestAllTriesMayBeSpentAndTheRunStillEnds_data()
    {
        QTest::addColumn<QString>("drawing");
        QTest::newRow("one guest") << s("ring A");
        QTest::newRow("all others locked") << s("ring A B! | ring C! | loves B C | hates B C");
    }
    void withOneUnlockedGuestAllTriesMayBeSpentAndTheRunStillEnds()
    {
        QFETCH(const QString, drawing);
        const FixedSeed seed(1);
        const KWDocument plan = drawnPlan(drawing);
        KWGeneticSolver solver = solverFor(plan);
        QVERIFY(!solver.isMutationAvailable(0));
        QVERIFY(!solver.isMutationAvailable(1));
        addStartSolutions(solver, 40);
        TraceLog trace;
        solver.nextGeneration();
        QCOMPARE(trace.take(), QStringList(10, gaveUp("mutation")));
        for (const KWDocument *child : childrenAfter(solver, 40))
            QCOMPARE(seatingLine(*child), seatingLine(plan));
        for (solver.selectSurvivors(); !solver.isFinished(); solver.selectSurvivors())
            solver.nextGeneration();
        QCOMPARE(solver.generation(), 20);
        QCOMPARE(solver.generationsUnimproved(), 20);
    }

    void aParentWithoutSeatedUnlockedGuestsHasNoMutants()
    {
        const FixedSeed seed(1);
        const KWDocument plan = drawnPlan("ring L! - - | wait A B");
        KWGeneticSolver solver = solverFor(plan);
        solver.addStartSolution();
        solver.nextGeneration();
        QCOMPARE(solver.numberOfSolutions(), 1);
        QCOMPARE(solver.generation(), 1);
    }

    void withAllGuestsUnseatedTheRandomisedCandidatesTakeTheLead()
    {
        const FixedSeed seed(1);
        const KWDocument plan = drawnPlan("ring - - - - | wait A B C D | hates A B | hates A C | "
                                          "hates A D | hates B C | hates B D | hates C D");
        KWGeneticSolver solver = solverFor(plan, {.mutationFactor = 10});
        addStartSolutions(solver, 40);
        QCOMPARE(solver.solutions().first()->seatedGuestCount(), 0);
        solver.nextGeneration();
        const auto children = childrenAfter(solver, 40);
        QVERIFY(children.size() > 150 && children.size() < 200);
        for (const QString &history : histories(children))
            QVERIFY2(history.startsWith(s("0->start solution ")), qPrintable(history));
        solver.selectSurvivors();
        QCOMPARE(solver.solutions().first()->seatedGuestCount(), 4);
        QVERIFY(solver.solutions().first()->totalScore() < 0);
        QCOMPARE(solver.bestSolution().seatedGuestCount(), 4);
    }

    void aCrossoverWithoutATableToTakeOverIsGivenUp()
    {
        // The plan itself seats nobody: as the first parent, it has no table to give.
        const FixedSeed seed(1);
        const KWDocument plan = drawnPlan("ring - - | ring - - | wait A B C D");
        KWGeneticSolver solver = solverFor(plan, {.populationSize = 30, .mutationFactor = 0});
        addStartSolutions(solver, 2);
        TraceLog trace;
        solver.nextGeneration();
        const QStringList children = histories(childrenAfter(solver, 2));
        const qsizetype duplicates = children.count(s("0->start solution 1"));
        QVERIFY(duplicates > 0 && duplicates < 30);
        QCOMPARE(children.count(s("0->crossover")), 30 - duplicates);
        QCOMPARE(trace.lines(), QStringList(duplicates, gaveUp("crossover")));
    }

    void aLockedGuestNeverMovesInAnyCandidate_data() { addRandomPlans(); }
    void aLockedGuestNeverMovesInAnyCandidate()
    {
        QFETCH(const RandomPlan, shape);
        KWDocument plan;
        fillRandomly(plan, shape);
        plan.setGuestLocked(plan.unseatedGuests(false).constFirst(), true);
        const FixedSeed seed(shape.seed);
        KWGeneticSolver solver = solverFor(plan);
        addStartSolutions(solver, 40);
        for (int i = 0; i < 4; ++i) {
            solver.nextGeneration();
            for (const KWDocument *candidate : candidates(solver)) {
                QCOMPARE(lockedSeats(*candidate), lockedSeats(plan));
                QVERIFY(seatsAgreeWithGuests(*candidate));
            }
            solver.selectSurvivors();
        }
    }

    void everyCandidateIsScored_data() { addRandomPlans(); }
    void everyCandidateIsScored()
    {
        QFETCH(const RandomPlan, shape);
        KWDocument plan;
        fillRandomly(plan, shape);
        const FixedSeed seed(shape.seed);
        KWGeneticSolver solver = solverFor(plan);
        addStartSolutions(solver, 40);
        solver.nextGeneration();
        for (const KWDocument *candidate : candidates(solver))
            QCOMPARE(candidate->totalScore(), scoreFromSeats(*candidate));
    }

    void theSameSeedGivesTheSameCandidates()
    {
        KWDocument plan;
        fillRandomly(plan, {.seed = 6});
        const auto evolved = [&plan](unsigned number) {
            const FixedSeed seed(number);
            KWGeneticSolver solver = solverFor(plan);
            addStartSolutions(solver, 40);
            for (int i = 0; i < 5; ++i) {
                solver.nextGeneration();
                solver.selectSurvivors();
            }
            return snapshot(solver);
        };
        const QStringList first = evolved(1);
        QVERIFY(evolved(2) != first);
        QCOMPARE(evolved(1), first);
    }

    void withoutMemoryTheStartStageKeepsWhatItHas()
    {
        const KWDocument plan = drawnPlan("ring A B");
        KWGeneticSolver solver = solverFor(plan);
        const CopyLimit limit(3);
        addStartSolutions(solver, 3);
        const QStringList before = snapshot(solver);
        QVERIFY_THROWS_EXCEPTION(KWMemoryException, solver.addStartSolution());
        QCOMPARE(snapshot(solver), before);
    }

    void withoutMemoryAGenerationLeavesTheCandidatesAsTheyWere_data()
    {
        QTest::addColumn<int>("copies");
        QTest::newRow("at the first mutant") << 0;
        QTest::newRow("at the last mutant") << 9;
        QTest::newRow("at the first crossover child") << 10;
        QTest::newRow("at the last crossover child") << 29;
    }
    void withoutMemoryAGenerationLeavesTheCandidatesAsTheyWere()
    {
        QFETCH(const int, copies);
        const FixedSeed seed(1);
        const KWDocument plan = drawnPlan("ring A B C D | ring E F G H");
        KWGeneticSolver solver = solverFor(plan);
        addStartSolutions(solver, 40);
        const auto before = candidates(solver);
        const QStringList state = snapshot(solver);
        const int alive = KWDocument::liveCount();

        {
            const CopyLimit limit(copies);
            QVERIFY_THROWS_EXCEPTION(KWMemoryException, solver.nextGeneration());
        }
        QCOMPARE(candidates(solver), before);
        QCOMPARE(snapshot(solver), state);
        QCOMPARE(solver.generation(), 0);
        QCOMPARE(KWDocument::liveCount(), alive);

        solver.nextGeneration();
        QCOMPARE(solver.numberOfSolutions(), 70);
    }

private:
    static void addRandomPlans()
    {
        QTest::addColumn<RandomPlan>("shape");
        QTest::newRow("room for all") << RandomPlan{.locked = 10, .seed = 1};
        QTest::newRow("more guests than seats")
            << RandomPlan{.seats = 30, .wishes = 200, .locked = 6, .seed = 2};
        QTest::newRow("many seats") << RandomPlan{.guests = 20, .seats = 50, .seed = 3};
        QTest::newRow("many locked") << RandomPlan{.guests = 30, .locked = 20, .seed = 4};
    }
};

REGISTER_TEST(TestSolverGeneration)
#include "tst_kwgeneticsolver_generation.moc"
