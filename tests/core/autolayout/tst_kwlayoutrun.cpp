#include "layouttrial.h"
#include "support/eventlog.h"
#include "support/registeredtest.h"

#include <QtTest>

namespace {
constexpr auto unimprovedOnly = KWGeneticSolver::StopOnUnimproved;

KWLayoutOptions unimproved(int generations)
{
    return {.stopCriteria = unimprovedOnly, .maxGenerationsUnimproved = generations};
}

/// The scores that the trace tells after each generation.
QList<int> bestScores(const QStringList &lines)
{
    const QString prefix = s("**new best score=");
    QList<int> scores;
    for (const QString &line : lines) {
        if (line.startsWith(prefix))
            scores.append(line.mid(prefix.size()).toInt());
    }
    return scores;
}

/// After how many generations the score last rose above what it was before.
int lastImprovement(int startScore, const QList<int> &scores)
{
    int last = 0;
    for (int i = 0; i < scores.size(); ++i) {
        if (scores.at(i) > (i == 0 ? startScore : scores.at(i - 1)))
            last = i + 1;
    }
    return last;
}
} // namespace

/// Runs that nobody disturbs.
class TestLayoutRun : public QObject
{
    Q_OBJECT

private slots:
    void progressIsReportedAfterEachStartSolutionAndEachGeneration()
    {
        KWDocument plan;
        fillRandomly(plan, {.seed = 1});
        const int startScore = plan.totalScore();
        LayoutTrial trial{.options = unimproved(3)};
        const KWLayoutResult result = trial.run(plan);
        QCOMPARE(result.startSolutions, 40);
        QCOMPARE(trial.progress.size(), 40 + result.generations);
        for (int i = 0; i < trial.progress.size(); ++i) {
            const KWLayoutProgress &progress = trial.progress.at(i);
            QCOMPARE(progress.inStartStage, i < 40);
            QCOMPARE(progress.done, i < 40 ? i + 1 : i - 39);
            QCOMPARE(progress.total, 40);
            if (i < 40)
                QCOMPARE(progress.score, startScore);
        }
        const QList<int> scores = bestScores(trial.lines);
        QCOMPARE(scores.size(), result.generations);
        for (int i = 0; i < scores.size(); ++i)
            QCOMPARE(trial.progress.at(40 + i).score, scores.at(i));
        QCOMPARE(plan.totalScore(), scores.last());
    }

    void eventsAreProcessedOnceForAStartSolutionAndTwiceInAGeneration()
    {
        KWDocument plan = drawnPlan("ring A");
        LayoutTrial trial{.options = unimproved(7)};
        trial.run(plan);
        QCOMPARE(trial.eventCalls, 40 + 2 * 7);
    }

    void theTraceTellsTheWholeRun()
    {
        KWDocument plan = drawnPlan("ring A");
        QStringList expected = firstLines();
        expected.append(s("start solution 0 score 0 "));
        for (int i = 1; i < 40; ++i)
            expected.append(s("start solution 0->start solution %1 score 0 ").arg(i));
        for (int i = 0; i < 2; ++i) {
            expected.append(s("**GA generation=%1").arg(i));
            expected.append(QStringList(10, s("--Gave up on mutation")));
            expected.append(s("**new best score=0"));
        }
        expected.append({s("**GA finished"), s("**best solution=0")});
        LayoutTrial trial{.options = unimproved(2)};
        trial.run(plan);
        QCOMPARE(trial.lines, expected);
    }

    void theTraceNamesTheHistoryOfTheAdoptedSolution()
    {
        KWDocument plan;
        fillRandomly(plan, {.seed = 3});
        LayoutTrial trial{.options = unimproved(3)};
        trial.run(plan);
        QVERIFY(plan.history().startsWith(s("0->start solution ")));
        QCOMPARE(trial.lines.last(), s("**best solution=") + plan.history());
    }

    void theHooksMayBeLeftOut()
    {
        const FixedSeed seed(1);
        KWDocument plan = drawnPlan("ring - - | wait A B | loves A B");
        const KWLayoutResult result = runLayout(plan, unimproved(2));
        QCOMPARE(result.startSolutions, 40);
        QCOMPARE(plan.totalScore(), 80);
    }

    void aPlanThatCannotImproveEndsAfterExactlyTheGenerationsAllowed_data()
    {
        QTest::addColumn<int>("generations");
        for (const int generations : {0, 1, 7, 20})
            QTest::addRow("%d", generations) << generations;
    }
    void aPlanThatCannotImproveEndsAfterExactlyTheGenerationsAllowed()
    {
        QFETCH(const int, generations);
        KWDocument plan = drawnPlan("ring A B C D | loves A B");
        LayoutTrial trial{.options = unimproved(generations)};
        const KWLayoutResult result = trial.run(plan);
        QCOMPARE(result.generations, generations);
        QCOMPARE(result.stoppedBy, KWLayoutResult::Unimproved);
        QCOMPARE(stateOf(plan), (QStringList{s("A B C D"), s("0"), s("40")}));
    }

    void anImprovementStartsTheCountAgain()
    {
        KWDocument plan;
        fillRandomly(plan, {.wishes = 300, .seed = 4});
        {
            // All are seated from the start, so that an improvement is one of the score.
            const FixedSeed seed(1);
            plan.randomLayout();
        }
        const int startScore = plan.totalScore();
        LayoutTrial trial{.options = unimproved(4)};
        const KWLayoutResult result = trial.run(plan);
        const int last = lastImprovement(startScore, bestScores(trial.lines));
        QVERIFY(last > 1);
        QCOMPARE(result.generations, last + 4);
        QCOMPARE(result.stoppedBy, KWLayoutResult::Unimproved);
    }

    void timeEndsARun()
    {
        KWDocument plan = drawnPlan("ring A");
        LayoutTrial trial{.options = {.stopCriteria = KWGeneticSolver::StopOnTime,
                                      .maxSeconds = 0,
                                      .maxGenerationsUnimproved = 0}};
        const KWLayoutResult result = trial.run(plan);
        QCOMPARE(result.stoppedBy, KWLayoutResult::Time);
        QCOMPARE(result.startSolutions, 40);
        QVERIFY(result.generations > 0);
        QVERIFY(result.startStageMs > 0);
        QVERIFY(result.generationsMs > 0);
    }

    void theStopCriteriaDecideWhatEndsARun_data()
    {
        QTest::addColumn<int>("stopCriteria");
        QTest::addColumn<int>("maxSeconds");
        QTest::addColumn<int>("generations");
        QTest::addColumn<int>("stoppedBy");
        QTest::newRow("time over at once") << 1 << -1 << 0 << int(KWLayoutResult::Time);
        QTest::newRow("unimproved alone") << 2 << -1 << 5 << int(KWLayoutResult::Unimproved);
        QTest::newRow("either: time") << 3 << -1 << 0 << int(KWLayoutResult::Time);
        QTest::newRow("either: unimproved") << 3 << 60 << 5 << int(KWLayoutResult::Unimproved);
    }
    void theStopCriteriaDecideWhatEndsARun()
    {
        QFETCH(const int, stopCriteria);
        QFETCH(const int, maxSeconds);
        KWDocument plan = drawnPlan("ring A");
        LayoutTrial trial{.options = {stopCriteria, maxSeconds, 5}};
        const KWLayoutResult result = trial.run(plan);
        QCOMPARE(result.startSolutions, 40);
        QTEST(static_cast<int>(result.generations), "generations");
        QTEST(int(result.stoppedBy), "stoppedBy");
    }

    void withoutAGenerationTheBestStartSolutionIsAdopted()
    {
        KWDocument plan;
        fillRandomly(plan, {.seed = 5});
        const KWDocument before(plan);
        LayoutTrial trial{.options = {.stopCriteria = 1, .maxSeconds = -1}};
        const KWLayoutResult result = trial.run(plan);
        QCOMPARE(result.generations, 0);
        QCOMPARE(stateOf(plan), stateOf(bestOf(before, 40)));
        QCOMPARE(plan.seatedGuestCount(), plan.guestCount());
        QCOMPARE(trial.lines.mid(42),
                 (QStringList{s("**GA finished"), s("**best solution=") + plan.history()}));
    }

    void plansOfAllKindsAreLaidOut_data()
    {
        QTest::addColumn<QString>("drawing");
        QTest::addColumn<int>("seated");
        const auto row = [](const char *name, const char *drawing, int seated) {
            QTest::newRow(name) << s(drawing) << seated;
        };
        row("one guest", "ring A", 1);
        row("one guest who waits", "ring - - | wait A", 1);
        row("one unlocked guest", "ring A! B - | group A B | loves A B", 2);
        row("all locked", "ring A! - B! | wait C! | loves A B", 2);
        row("no seats", "wait A B C D | loves A B | hates C D", 0);
        row("tables without seats", "ring | ring | wait A B C D | dislikes A B", 0);
        row("one table", "ring A B - | wait C | group A B C | loves A B | hates B C", 3);
        row("more guests than seats", "ring A - | head - - | wait B C D E F | loves E F", 4);
        row("more guests than seats, all taken", "ring A B | head C D | wait E F | hates A C", 4);
        row("a seat for every guest", "ring - - | ring - - | wait A B C D | likes A B", 4);
        row("locked among unlocked", "ring A! - | ring - B! C | wait D E! | loves A D", 4);
        row("no guests", "ring - - | head -", 0);
        row("nothing", "", 0);
        row("groups only", "group | group", 0);
    }
    void plansOfAllKindsAreLaidOut()
    {
        QFETCH(const QString, drawing);
        KWDocument plan = drawnPlan(drawing);
        const KWDocument before(plan);
        const int alive = KWDocument::liveCount();
        LayoutTrial trial{.options = unimproved(4)};
        const KWLayoutResult result = trial.run(plan);
        QCOMPARE(result.stoppedBy, KWLayoutResult::Unimproved);
        QVERIFY(result.generations >= 4);
        QTEST(plan.seatedGuestCount(), "seated");
        QCOMPARE(lockedSeats(plan), lockedSeats(before));
        QVERIFY(seatsAgreeWithGuests(plan));
        QCOMPARE(plan.guestCount(), before.guestCount());
        QCOMPARE(plan.groupCount(), before.groupCount());
        QCOMPARE(plan.tableCount(), before.tableCount());
        QCOMPARE(plan.affinityCount(), before.affinityCount());
        QCOMPARE(KWDocument::liveCount(), alive);
        QVERIFY(!plan.abortRequested());
    }

    void theUsersOwnSeatingIsNeverWorsened_data()
    {
        QTest::addColumn<RandomPlan>("shape");
        for (unsigned seed = 1; seed <= 5; ++seed) {
            QTest::addRow("room for all %u", seed) << RandomPlan{.wishes = 200, .seed = seed};
            QTest::addRow("more guests than seats %u", seed)
                << RandomPlan{.seats = 30, .wishes = 200, .seed = seed};
        }
    }
    void theUsersOwnSeatingIsNeverWorsened()
    {
        QFETCH(const RandomPlan, shape);
        KWDocument plan;
        fillRandomly(plan, shape);
        // Each run starts from what the one before has found.
        for (unsigned seed = 1; seed <= 4; ++seed) {
            const int seated = plan.seatedGuestCount();
            const int score = plan.totalScore();
            LayoutTrial trial{.seed = seed, .options = unimproved(2)};
            trial.run(plan);
            QVERIFY(plan.seatedGuestCount() >= seated);
            QVERIFY(plan.seatedGuestCount() > seated || plan.totalScore() >= score);
        }
        QCOMPARE(plan.seatedGuestCount(), std::min(plan.guestCount(), plan.seatCount()));
    }

    void aBetterSeatingIsFound()
    {
        KWDocument plan = drawnPlan("ring A B C D | ring E F G H | loves A E | loves B F | "
                                    "hates A B");
        LayoutTrial trial{.options = unimproved(20)};
        trial.run(plan);
        QCOMPARE(plan.totalScore(), 80);
        QVERIFY(plan.isNextTo(plan.guestAt(0), plan.guestAt(4)));
        QVERIFY(plan.isNextTo(plan.guestAt(1), plan.guestAt(5)));
        QVERIFY(!plan.atSameTable(plan.guestAt(0), plan.guestAt(1)));
    }

    void theSameSeedGivesTheSameResult()
    {
        KWDocument plan;
        fillRandomly(plan, {.seed = 6});
        const auto resultOf = [&plan](unsigned seed) {
            KWDocument laidOut(plan);
            LayoutTrial trial{.seed = seed, .options = unimproved(3)};
            trial.run(laidOut);
            return stateOf(laidOut);
        };
        const QStringList first = resultOf(1);
        QVERIFY(resultOf(2) != first);
        QCOMPARE(resultOf(1), first);
    }

    void aRunReachesNoViewButByItsResult()
    {
        KWDocument plan = drawnPlan("ring - - - | wait A B C | loves A B");
        EventLog events(plan);
        LayoutTrial trial{.options = unimproved(2)};
        trial.run(plan);
        QCOMPARE(events.take(), QStringList{s("eventModified()")});
        plan.blockEvents();
        trial.run(plan);
        QCOMPARE(events.take(), QStringList());
        plan.unblockEvents();
        plan.announceModified();
        QCOMPARE(events.take(), QStringList{s("eventModified()")});
    }
};

REGISTER_TEST(TestLayoutRun)
#include "tst_kwlayoutrun.moc"
