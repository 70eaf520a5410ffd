#include "solvertest.h"
#include "support/eventlog.h"
#include "support/registeredtest.h"

#include <QtTest>

/// The solver without its generations: its numbers, the start, the end and the choice.
class TestGeneticSolver : public QObject
{
    Q_OBJECT

private slots:
    void numbersAreProductsCutOff_data()
    {
        QTest::addColumn<int>("populationSize");
        QTest::addColumn<float>("factor");
        QTest::addColumn<int>("number");
        QTest::newRow("as in a run: start solutions") << 20 << 2.0F << 40;
        QTest::newRow("as in a run: mutants") << 20 << 0.5F << 10;
        QTest::newRow("as in a run: crossover children") << 20 << 1.0F << 20;
        QTest::newRow("cut off") << 5 << 0.5F << 2;
        QTest::newRow("cut off below one") << 3 << 0.3F << 0;
        QTest::newRow("none") << 20 << 0.0F << 0;
    }
    void numbersAreProductsCutOff()
    {
        QFETCH(const int, populationSize);
        QFETCH(const float, factor);
        QFETCH(const int, number);
        const FixedSeed seed(1);
        const KWDocument plan = drawnPlan("ring A B C D | ring E F G H");

        QCOMPARE(solverFor(plan, {.populationSize = populationSize, .startFactor = factor})
                     .numberOfStartSolutions(),
                 number);
        SolverNumbers mutantsOnly{.populationSize = populationSize, .mutationFactor = factor};
        mutantsOnly.crossoverFactor = 0;
        QCOMPARE(childrenOf(plan, mutantsOnly), number);
        SolverNumbers crossoversOnly{.populationSize = populationSize, .crossoverFactor = factor};
        crossoversOnly.mutationFactor = 0;
        QCOMPARE(childrenOf(plan, crossoversOnly), number);
    }

    void aMoveIsAvailableWhenThePlanHasWhatItNeeds_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("drawing");
        QTest::addColumn<bool>("available");
        addGuestRows();
        addPairRows();
    }
    void aMoveIsAvailableWhenThePlanHasWhatItNeeds()
    {
        QFETCH(const int, number);
        QFETCH(const QString, drawing);
        const KWDocument plan = drawnPlan(drawing);
        const KWGeneticSolver solver = solverFor(plan);
        QTEST(number == crossover ? solver.isCrossoverAvailable()
                                  : solver.isMutationAvailable(number),
              "available");
    }

    void withOneTableTheMovesBetweenTablesAreOff()
    {
        const KWDocument plan = drawnPlan("ring A B C D - | group A B | loves A B | likes A C | "
                                          "dislikes A D | hates B C");
        const KWGeneticSolver solver = solverFor(plan);
        QList<int> available;
        for (int number = 0; number < KWGeneticSolver::mutationCount; ++number) {
            if (solver.isMutationAvailable(number))
                available.append(number);
        }
        QCOMPARE(available, (QList<int>{0, 2, 3, 4, 5}));
        QVERIFY(!solver.isCrossoverAvailable());
    }

    void otherNumbersAreNoMoves()
    {
        const KWDocument plan = drawnPlan("ring A B");
        QVERIFY(!solverFor(plan).isMutationAvailable(-1));
        QVERIFY(!solverFor(plan).isMutationAvailable(8));
    }

    void availabilityIsThatOfTheBeginning()
    {
        KWDocument plan = drawnPlan("ring A B");
        const KWGeneticSolver solver = solverFor(plan);
        plan.setGuestLocked(plan.guestAt(0), true);
        QVERIFY(solver.isMutationAvailable(0));
        QVERIFY(!solverFor(plan).isMutationAvailable(0));
    }

    void theFirstCandidateIsThePlanAsTheUserLeftIt()
    {
        KWDocument plan = drawnPlan("ring A - B! | head C | wait D | loves A B");
        plan.setHistory(s("kept"));
        // A score that is not up to date stays so, too.
        plan.unassignGuest(plan.guestAt(2), false);
        const int score = plan.totalScore();
        KWGeneticSolver solver = solverFor(plan);
        solver.addStartSolution();
        QCOMPARE(solver.numberOfSolutions(), 1);
        const KWDocument &first = *solver.solutions().first();
        QVERIFY(&first != &plan);
        QCOMPARE(seatingLine(first), seatingLine(plan));
        QCOMPARE(first.history(), s("kept"));
        QCOMPARE(first.totalScore(), score);
    }

    void startSolutionsAreCountedInHistoryAndTrace()
    {
        TraceLog trace;
        const FixedSeed seed(3);
        const KWDocument plan = drawnPlan("ring A B C - | loves A C | wait D");
        KWGeneticSolver solver = solverFor(plan);
        addStartSolutions(solver, 40);
        QCOMPARE(solver.numberOfSolutions(), 40);
        QStringList expected;
        for (int i = 0; i < 40; ++i) {
            const KWDocument &candidate = *solver.solutions().at(i);
            const QString history = i == 0 ? s("0") : s("0->start solution %1").arg(i);
            QCOMPARE(candidate.history(), history);
            expected.append(
                s("start solution %1 score %2 ").arg(history).arg(candidate.totalScore()));
        }
        QCOMPARE(trace.lines(), expected);
        QCOMPARE(expected.at(0), s("start solution 0 score 20 "));
        QVERIFY(expected.at(1).startsWith(s("start solution 0->start solution 1 score ")));
    }

    void laterCandidatesAreRandomLayoutsOfThePlan()
    {
        KWDocument plan;
        fillRandomly(plan, {.seed = 2});
        const FixedSeed seed(4);
        KWGeneticSolver solver = solverFor(plan);
        addStartSolutions(solver, 4);
        seedRandomNumbers();
        for (int i = 1; i < 4; ++i) {
            KWDocument expected(plan);
            expected.randomLayout();
            QCOMPARE(seatingLine(*solver.solutions().at(i)), seatingLine(expected));
            QCOMPARE(solver.solutions().at(i)->totalScore(), expected.totalScore());
        }
    }

    void aRunIsFinishedByItsStopCriteria_data()
    {
        QTest::addColumn<int>("stopCriteria");
        QTest::addColumn<int>("maxSeconds");
        QTest::addColumn<int>("unimproved");
        QTest::addColumn<bool>("finished");
        // Three generations without improvement are allowed; -1 seconds are over at once.
        QTest::newRow("time: left") << 1 << 60 << 9 << false;
        QTest::newRow("time: over") << 1 << -1 << 0 << true;
        QTest::newRow("unimproved: fewer") << 2 << -1 << 2 << false;
        QTest::newRow("unimproved: as many") << 2 << 60 << 3 << true;
        QTest::newRow("unimproved: more") << 2 << 60 << 4 << true;
        QTest::newRow("either: neither") << 3 << 60 << 2 << false;
        QTest::newRow("either: time") << 3 << -1 << 2 << true;
        QTest::newRow("either: unimproved") << 3 << 60 << 3 << true;
        QTest::newRow("criterion 0 never ends") << 0 << -1 << 9 << false;
        QTest::newRow("criterion 4 never ends") << 4 << -1 << 9 << false;
    }
    void aRunIsFinishedByItsStopCriteria()
    {
        QFETCH(const int, stopCriteria);
        QFETCH(const int, maxSeconds);
        QFETCH(const int, unimproved);
        const KWDocument plan = drawnPlan("ring A");
        KWGeneticSolver solver = solverFor(plan, {.stopCriteria = stopCriteria,
                                                  .maxSeconds = maxSeconds,
                                                  .maxGenerationsUnimproved = 3});
        solver.addStartSolution();
        for (int i = 0; i < unimproved; ++i)
            solver.selectSurvivors();
        QCOMPARE(solver.generationsUnimproved(), unimproved);
        QTEST(solver.isFinished(), "finished");
    }

    void timeIsOverWhenTheWholeSecondsExceedTheAllowance()
    {
        QVERIFY(!KWGeneticSolver::isTimeOver(999, 0));
        QVERIFY(KWGeneticSolver::isTimeOver(1000, 0));
        QVERIFY(!KWGeneticSolver::isTimeOver(60'999, 60));
        QVERIFY(KWGeneticSolver::isTimeOver(61'000, 60));
        // More milliseconds than an int holds.
        QVERIFY(!KWGeneticSolver::isTimeOver(3'000'000'999, 3'000'000));
        QVERIFY(KWGeneticSolver::isTimeOver(3'000'001'000, 3'000'000));
    }

    void theTimeOfARunPasses()
    {
        const KWDocument plan = drawnPlan("ring A");
        const KWGeneticSolver solver =
            solverFor(plan, {.stopCriteria = KWGeneticSolver::StopOnTime, .maxSeconds = 0});
        // Nothing else ends it than that a second goes by.
        while (!solver.isFinished()) {
        }
    }

    void aRunDrawsItsNumbersFromTheSeedAnew()
    {
        const FixedSeed seed(1);
        const int first = randomNumber(30'000);
        const KWDocument plan = drawnPlan("ring A");
        const KWGeneticSolver solver = solverFor(plan);
        QCOMPARE(randomNumber(30'000), first);
    }

    void onlyTheFirstCandidateIsKept()
    {
        const KWDocument plan = drawnPlan("ring A B C");
        KWGeneticSolver solver = solverFor(plan);
        addStartSolutions(solver, 5);
        const KWDocument *first = solver.solutions().first();
        const int alive = KWDocument::liveCount();
        solver.keepFirstSolution();
        QCOMPARE(candidates(solver), QList<const KWDocument *>{first});
        QCOMPARE(KWDocument::liveCount(), alive - 4);
        KWGeneticSolver empty = solverFor(plan);
        empty.keepFirstSolution();
        QCOMPARE(empty.numberOfSolutions(), 0);
    }

    void theCandidateWinsIfItSeatsMoreOrScoresHigher_data()
    {
        QTest::addColumn<QString>("candidate");
        QTest::addColumn<QString>("plan");
        QTest::addColumn<bool>("candidateWins");
        const auto row = [](const char *name, const char *candidate, const char *plan, bool wins) {
            QTest::newRow(name) << s(candidate) << s(plan) << wins;
        };
        row("neither", "A B - - - -", "A B - - - -", false);
        row("neither: fewer and lower", "- - - - - -", "A B - - - -", false);
        row("neither: lower", "A - B - - -", "A B - - - -", false);
        row("neither: fewer", "A B - - - -", "A B C - - -", false);
        row("higher", "A B - - - -", "A - B - - -", true);
        row("higher with fewer seated", "A B - - - -", "A B C D - -", true);
        row("more seated", "A B C - - -", "A B - - - -", true);
        row("more seated with a lower score", "A B C D - -", "A B - - - -", true);
        row("both", "A B - - - -", "- - - - - -", true);
    }
    void theCandidateWinsIfItSeatsMoreOrScoresHigher()
    {
        QFETCH(const QString, candidate);
        QFETCH(const QString, plan);
        QFETCH(const bool, candidateWins);
        KWDocument document = drawnPlan("ring - - - - - - | wait A B C D | loves A B | hates C D");
        reseat(document, candidate);
        KWGeneticSolver solver = solverFor(document);
        solver.addStartSolution();
        // The user's plan stays under the solver's eyes, so that it can be made to differ.
        reseat(document, plan);
        document.setHistory(s("plan"));

        const KWDocument best = solver.bestSolution();
        const KWDocument &winner = candidateWins ? *solver.solutions().at(0) : document;
        QCOMPARE(best.history(), candidateWins ? s("0") : s("plan"));
        QCOMPARE(seatingLine(best), candidateWins ? candidate : plan);
        QCOMPARE(best.totalScore(), winner.totalScore());
        QCOMPARE(solver.bestScore(), winner.totalScore());
    }

    void theWinnerIsComparedAsTheListStands()
    {
        const FixedSeed seed(1);
        const KWDocument plan = drawnPlan("ring - - | wait A B | loves A B");
        KWGeneticSolver solver = solverFor(plan);
        addStartSolutions(solver, 2);
        QCOMPARE(solver.bestSolution().seatedGuestCount(), 0);
        QCOMPARE(solver.bestScore(), 0);
        solver.sortSolutions();
        QCOMPARE(solver.bestSolution().seatedGuestCount(), 2);
        QCOMPARE(solver.bestScore(), 80);
    }

    void withoutCandidatesThePlanWins()
    {
        const KWDocument plan = drawnPlan("ring A B | loves A B");
        KWGeneticSolver solver = solverFor(plan);
        QCOMPARE(seatingLine(solver.bestSolution()), s("A B"));
        QCOMPARE(solver.bestScore(), 80);
        solver.nextGeneration();
        solver.selectSurvivors();
        QCOMPARE(solver.numberOfSolutions(), 0);
    }

    void theSolverOwnsItsCandidatesAndNoMore()
    {
        KWDocument plan;
        fillRandomly(plan, {.seed = 5});
        const QString seats = seating(plan);
        const int alive = KWDocument::liveCount();
        EventLog events(plan);
        {
            KWGeneticSolver solver = solverFor(plan);
            addStartSolutions(solver, 40);
            solver.nextGeneration();
            QCOMPARE(KWDocument::liveCount(), alive + solver.numberOfSolutions());
            solver.selectSurvivors();
            QCOMPARE(KWDocument::liveCount(), alive + 20);
        }
        QCOMPARE(KWDocument::liveCount(), alive);
        QCOMPARE(seating(plan), seats);
        QVERIFY(!plan.isModified());
        QCOMPARE(events.take(), QStringList());
    }

private:
    static constexpr int crossover = -1;

    static int childrenOf(const KWDocument &plan, const SolverNumbers &numbers)
    {
        KWGeneticSolver solver = solverFor(plan, numbers);
        addStartSolutions(solver, 2);
        solver.nextGeneration();
        return solver.numberOfSolutions() - 2;
    }

    static void addRow(const char *name, int number, const char *drawing, bool available)
    {
        QTest::addRow("%d: %s", number, name) << number << s(drawing) << available;
    }

    static void addGuestRows()
    {
        addRow("two unlocked guests", 0, "ring A B", true);
        addRow("two without a seat", 0, "ring - | wait A B", true);
        addRow("one unlocked guest", 0, "ring A B!", false);

        addRow("four unlocked, two tables", 1, "ring A B | ring C D", true);
        addRow("four without seats", 1, "ring - - | ring - - | wait A B C D", true);
        addRow("locked guests leave two seats", 1, "ring A B C D | ring E! - -", true);
        addRow("three unlocked", 1, "ring A B - | ring C - D! -", false);
        addRow("four unlocked, room at both", 1, "ring A B - | ring C D -", true);
        addRow("a table of one seat", 1, "ring A B C D | ring -", false);
        addRow("locked guests leave one seat", 1, "ring A B C D | ring E! -", false);

        addRow("two unlocked members", 2, "ring A B | group A B", true);
        addRow("two unlocked of three", 2, "ring A B! C | group A B C", true);
        addRow("members without seats", 2, "wait A B | group A B", true);
        addRow("one unlocked member", 2, "ring A B! | group A B", false);
        addRow("two groups of one", 2, "ring A B | group A | group B", false);
        addRow("no group", 2, "ring A B", false);

        addRow("a free seat", 3, "ring A -", true);
        addRow("a free seat among locked", 3, "ring A! -", true);
        addRow("a seat for every guest", 3, "ring A", false);
        addRow("a free seat, but no more seats than guests", 3, "ring A - | wait B", false);
        addRow("more guests than seats", 3, "ring A - | wait B C", false);

        addRow("four unlocked, two tables without locks", crossover, "ring A B | ring C D", true);
        addRow("besides a table with a lock", crossover, "ring A B | ring C D | ring E!", true);
        addRow("empty tables", crossover, "ring - | ring - | wait A B C D", true);
        addRow("three unlocked", crossover, "ring A B | ring C - | ring D!", false);
        addRow("one table without locks", crossover, "ring A B C D | ring E! -", false);
        addRow("a table without seats", crossover, "ring A B C D | ring", false);
    }

    static void addPairRows()
    {
        const QList<const char *> words{"loves", "likes", "dislikes", "hates"};
        for (int i = 0; i < 4; ++i) {
            const int number = 4 + i;
            const bool apart = number >= 6;
            const auto row = [&](const char *name, const char *drawing, bool available) {
                const QString text = s(drawing).replace(s("wish"), s(words.at(i)));
                addRow(name, number, qUtf8Printable(text), available);
            };
            row("an unlocked pair", "ring A B | ring - | wish A B", true);
            row("one of them locked", "ring A! B | ring - | wish A B", true);
            row("the other locked", "ring A B! | ring - | wish A B", true);
            row("both locked", "ring A! B! | ring - | wish A B", false);
            row("one of two pairs", "ring A! B! C | ring - | wish A B | wish B C", true);
            row("no pair", "ring A B | ring -", false);
            row("another value",
                QByteArray("ring A B | ring - | ") + words.at((i + 1) % 4) + " A B", false);
            row("the other table has no seats", "ring A B | ring | wish A B", true);
            row("one table", "ring A B | wish A B", !apart);
        }
    }
};

REGISTER_TEST(TestGeneticSolver)
#include "tst_kwgeneticsolver.moc"
