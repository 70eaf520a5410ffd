#include "solvertest.h"
#include "support/registeredtest.h"

#include <QtTest>

namespace {
using Statistics = KWGeneticSolver::Statistics;

Statistics operator-(const Statistics &a, const Statistics &b)
{
    return {a.attempts - b.attempts, a.successes - b.successes, a.fails - b.fails,
            a.improved - b.improved};
}

/// What the counters rose by since this was made.
class Counting
{
public:
    Statistics mutation(int number) const
    {
        const auto i = static_cast<std::size_t>(number);
        return KWGeneticSolver::mutationStatistics()[i] - m_mutations[i];
    }
    Statistics mutations() const
    {
        Statistics sum;
        for (int number = 0; number < KWGeneticSolver::mutationCount; ++number)
            sum = sum - (Statistics() - mutation(number));
        return sum;
    }
    Statistics crossover() const { return KWGeneticSolver::crossoverStatistics() - m_crossover; }

private:
    std::array<Statistics, KWGeneticSolver::mutationCount> m_mutations =
        KWGeneticSolver::mutationStatistics();
    Statistics m_crossover = KWGeneticSolver::crossoverStatistics();
};

QList<qint64> values(const Statistics &counters)
{
    return {counters.attempts, counters.successes, counters.fails, counters.improved};
}

QString percent(qint64 part, qint64 whole)
{
    return whole < 1 ? s("-") : QString::number(part * 100 / whole);
}

/// The six columns that both tables have, each cell ten wide.
QString cells(const Statistics &c)
{
    return QString::asprintf("%10lld %10lld %10lld %10lld %10s %10s", c.attempts, c.successes,
                             c.fails, c.improved,
                             qUtf8Printable(percent(c.successes, c.successes + c.fails)),
                             qUtf8Printable(percent(c.improved, c.successes)));
}

void runOneGeneration(const KWDocument &plan, const SolverNumbers &numbers = {})
{
    const FixedSeed seed(1);
    KWGeneticSolver solver = solverFor(plan, numbers);
    addStartSolutions(solver, 2);
    solver.nextGeneration();
}
} // namespace

/// The counters of the moves and the reports for whoever tunes the solver.
class TestSolverStatistics : public QObject
{
    Q_OBJECT

private slots:
    // Comes first: the counters belong to the process.
    void beforeAnyRunTheReportShowsNoughtsAndDashes()
    {
        TraceLog trace;
        KWGeneticSolver::logStatistics();
        const QString noughts = s("         0          0          0          0          -"
                                  "          -");
        QStringList expected{s("\nMutations\n  mutation   attempts  successes      fails   "
                               "improved  success % improved %")};
        for (int number = 0; number < 8; ++number)
            expected.append(s("         %1 ").arg(number) + noughts);
        expected.append(s("\nCrossovers\n  attempts  successes      fails   improved  success % "
                          "improved %"));
        expected.append(noughts);
        QCOMPARE(trace.lines(), expected);
    }

    void aRunReportsNoStatistics()
    {
        TraceLog trace;
        runOneGeneration(drawnPlan("ring A B C D | ring E F G H"));
        QCOMPARE(trace.lines().size(), 2);
        QVERIFY(trace.lines().at(0).startsWith(s("start solution 0 score")));
        QVERIFY(trace.lines().at(1).startsWith(s("start solution 0->start solution 1 score")));
    }

    void theReportShowsTheCounters()
    {
        KWDocument plan;
        fillRandomly(plan, {.seed = 3});
        runOneGeneration(plan, {.mutationFactor = 10});
        TraceLog trace;
        KWGeneticSolver::logStatistics();
        QCOMPARE(trace.lines().size(), 11);
        for (int number = 0; number < 8; ++number) {
            const Statistics &counters =
                KWGeneticSolver::mutationStatistics()[static_cast<std::size_t>(number)];
            QVERIFY(counters.successes > 0);
            QCOMPARE(trace.lines().at(1 + number),
                     QString::asprintf("%10d ", number) + cells(counters));
        }
        QCOMPARE(trace.lines().at(10), cells(KWGeneticSolver::crossoverStatistics()));
    }

    void unavailableMovesCountAsAttempts()
    {
        const Counting counting;
        runOneGeneration(drawnPlan("ring A"));
        QCOMPARE(values(counting.mutations()), (QList<qint64>{10 * 51, 0, 0, 0}));
        for (int number = 0; number < 8; ++number)
            QVERIFY(std::abs(counting.mutation(number).attempts - 64) < 30);
        QCOMPARE(values(counting.crossover()), (QList<qint64>{0, 0, 0, 0}));
    }

    void eachTryCountsAsSuccessOrFailAndEachBetterChildAsImproved()
    {
        const FixedSeed seed(2);
        const KWDocument plan = drawnPlan("ring A B C D E F | loves A D");
        KWGeneticSolver solver = solverFor(plan, {.mutationFactor = 10});
        solver.addStartSolution();
        const Counting counting;
        TraceLog trace;
        solver.nextGeneration();
        QCOMPARE(trace.lines(), QStringList());
        int improved = 0;
        for (const KWDocument *child : candidates(solver))
            improved += child->totalScore() > plan.totalScore() ? 1 : 0;
        QVERIFY(improved > 0 && improved < 200);
        QCOMPARE(counting.mutations().successes, 200);
        QCOMPARE(counting.mutations().fails, 0);
        QCOMPARE(counting.mutations().improved, improved);
        QCOMPARE(counting.mutation(0).successes + counting.mutation(4).successes, 200);
        // Beside the loved one there is always somebody to displace.
        QCOMPARE(counting.mutation(4).improved, counting.mutation(4).successes);
        QCOMPARE(counting.mutation(0).attempts, counting.mutation(0).successes);
        QVERIFY(counting.mutation(0).improved < counting.mutation(0).successes);
    }

    void failsAreCounted()
    {
        const Counting counting;
        const FixedSeed seed(2);
        const KWDocument plan = drawnPlan("ring A B C! D! E! F!");
        KWGeneticSolver solver = solverFor(plan);
        solver.addStartSolution();
        solver.nextGeneration();
        const Statistics guest = counting.mutation(0);
        QCOMPARE(guest.successes, histories(candidates(solver)).count(s("0->GuestM")));
        QVERIFY(guest.successes > 0);
        QVERIFY(guest.fails > 10);
        QCOMPARE(guest.attempts, guest.successes + guest.fails);
        QCOMPARE(guest.improved, 0);
    }

    void eachNumberIsItsOwnMove_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("mark");
        QTest::addColumn<QString>("drawing");
        const auto row = [](int number, const char *mark, const char *drawing) {
            QTest::addRow("%d", number) << number << s(mark) << s(drawing);
        };
        // In each plan the others would leave another mark or could do nothing.
        row(0, "->GuestM", "ring A B");
        row(1, "->MultiGuestM", "ring A B | ring C D");
        row(2, "->MemberM", "ring A B | group A B");
        row(3, "->EmptyM", "ring A -");
        row(4, "", "ring A B C | loves A C");
        row(5, "", "ring A B C | likes A C");
        row(6, "", "ring A B | ring C D | dislikes A B");
        row(7, "", "ring A B | ring C D | hates A B");
    }

    void eachNumberIsItsOwnMove()
    {
        QFETCH(const int, number);
        QFETCH(const QString, mark);
        QFETCH(const QString, drawing);
        const FixedSeed seed(1);
        const KWDocument plan = drawnPlan(drawing);
        SolverNumbers numbers{.mutationFactor = 10};
        numbers.crossoverFactor = 0;
        KWGeneticSolver solver = solverFor(plan, numbers);
        solver.addStartSolution();
        const Counting counting;
        solver.nextGeneration();
        const QStringList children = histories(candidates(solver).mid(1));
        QCOMPARE(children.size(), 200);
        QVERIFY(counting.mutation(number).successes > 0);
        if (mark.isEmpty()) {
            // The plain children are those of this number, since no other leaves no mark.
            QCOMPARE(counting.mutation(number).successes, children.count(s("0")));
        } else {
            QCOMPARE(counting.mutation(number).successes, children.count(s("0") + mark));
        }
    }

    void crossoversAreCounted()
    {
        const Counting counting;
        const FixedSeed seed(1);
        const KWDocument plan = drawnPlan("ring - - | ring - - | wait A B C D | loves A B | "
                                          "loves C D");
        KWGeneticSolver solver = solverFor(plan, {.populationSize = 30, .mutationFactor = 0});
        addStartSolutions(solver, 2);
        TraceLog trace;
        solver.nextGeneration();
        // Given up 51 times from a parent that seats nobody, else a success at once that puts two
        // who love each other on empty seats.
        const auto givenUp = static_cast<int>(trace.lines().size());
        QVERIFY(givenUp > 0 && givenUp < 30);
        QCOMPARE(
            values(counting.crossover()),
            (QList<qint64>{51 * givenUp + 30 - givenUp, 30 - givenUp, 51 * givenUp, 30 - givenUp}));
        QCOMPARE(values(counting.mutations()), (QList<qint64>{0, 0, 0, 0}));
    }

    void theCountersAreNotClearedByANewRun()
    {
        KWDocument plan;
        fillRandomly(plan, {.seed = 3});
        const Counting counting;
        runOneGeneration(plan);
        const QList<qint64> mutations = values(counting.mutations());
        const QList<qint64> crossovers = values(counting.crossover());
        QVERIFY(mutations.at(0) > 0 && crossovers.at(0) > 0);
        runOneGeneration(plan);
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(values(counting.mutations()).at(i), 2 * mutations.at(i));
            QCOMPARE(values(counting.crossover()).at(i), 2 * crossovers.at(i));
        }
    }

    void theSeatsOfATableAreReported()
    {
        TraceLog trace;
        const KWDocument plan = drawnPlan("ring Ann - Bob! - | ring Cid");
        KWGeneticSolver::logSeats(*plan.tableAt(0));
        QCOMPARE(trace.lines(),
                 (QStringList{s("seat 0 = assigned Ann"), s("seat 1 = unassigned"),
                              s("seat 2 = assigned Bob"), s("seat 3 = unassigned")}));
    }
};

REGISTER_TEST(TestSolverStatistics)
#include "tst_kwgeneticsolver_statistics.moc"
