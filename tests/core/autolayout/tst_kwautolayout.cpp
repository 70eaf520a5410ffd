#include "copymemory.h"
#include "core/autolayout/kwautolayout.h"
#include "core/autolayout/kwgaevent.h"
#include "solvertest.h"
#include "support/eventlog.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <stdexcept>

// The layout of a live plan: what its views and the dialog are told, and in which order.

namespace {

/// Stands in for the dialog.
class Dialog : public QObject
{
public:
    QList<QPair<int, int>> steps;
    /// Called with each of them, from 1 on.
    std::function<void(int count)> onStep = [](int) {};

    bool event(QEvent *event) override
    {
        if (event->type() != KWGAEvent::EventType)
            return QObject::event(event);
        const auto *step = static_cast<KWGAEvent *>(event);
        steps.append({step->progress(), step->score()});
        onStep(int(steps.size()));
        return true;
    }
};

const KWLayoutOptions quick{.stopCriteria = KWGeneticSolver::StopOnUnimproved,
                            .maxGenerationsUnimproved = 3};

QString memoryText()
{
    return s("error(Insufficient memory available to complete calculation.)");
}

QString timeText()
{
    return s("error(The automatic layout did not have enough time to compute a good solution.\n"
             "Try increasing the time allowed in the Preferences window.)");
}
} // namespace

class TestKWAutoLayout : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_plan = std::make_unique<KWDocument>();
        fillRandomly(*m_plan, {.guests = 16, .seats = 18, .wishes = 40, .locked = 2, .seed = 1});
        m_plan->setModified(false);
    }
    void cleanup() { m_plan.reset(); }

    void theViewsHearNothingBetweenTheStartAndTheRefresh()
    {
        EventLog log(*m_plan);
        autoLayout(*m_plan, nullptr, quick);
        QCOMPARE(log.take(), QStringList({s("eventPrepareAutoLayout()"), s("eventRefresh()"),
                                          s("eventModified()")}));
        QVERIFY(m_plan->isModified());
        QCOMPARE(m_plan->seatedGuestCount(), 16);
    }

    void anUnchangedResultStillCountsAsAChange()
    {
        autoLayout(*m_plan, nullptr, quick);
        m_plan->setModified(false);
        KWLayoutOptions none = quick;
        none.maxGenerationsUnimproved = 1;
        const QString before = seating(*m_plan);
        const CopyLimit limit(1);
        autoLayout(*m_plan, nullptr, none);
        QCOMPARE(seating(*m_plan), before);
        QVERIFY(m_plan->isModified());
    }

    void aLayoutCountsAsAChangeAlsoInAPlanWithoutWishes()
    {
        KWDocument drawn = drawnPlan(s("ring A B"));
        drawn.setModified(false);
        autoLayout(drawn, nullptr, quick);
        QVERIFY(drawn.isModified());
    }

    void theProgressOfAVeryLongRunStaysWithinItsNumber()
    {
        const auto steps = [](bool inStartStage, qint64 done) {
            return KWGAEvent::progressOf({inStartStage, done, 40, 0});
        };
        QCOMPARE(steps(true, 7), 7);
        QCOMPARE(steps(false, 7), 110);
        QCOMPARE(steps(false, 214'748'360), 2'147'483'640);
        QCOMPARE(steps(false, 214'748'361), 2'147'483'647);
        QCOMPARE(steps(false, 10'000'000'000), 2'147'483'647);
    }

    void theDialogIsToldOfEachStartSolutionAndGeneration()
    {
        Dialog dialog;
        autoLayout(*m_plan, &dialog, quick);
        QCoreApplication::sendPostedEvents(&dialog);
        QVERIFY(dialog.steps.size() >= 43);
        for (int i = 0; i < dialog.steps.size(); ++i)
            QCOMPARE(dialog.steps[i].first, i < 40 ? i + 1 : 40 + (i - 39) * 10);
        QCOMPARE(dialog.steps.last().second, m_plan->totalScore());
    }

    void eventsArriveWhileTheLayoutRuns()
    {
        Dialog dialog;
        int scoreThen = 0;
        const int before = m_plan->totalScore();
        dialog.onStep = [&](int count) {
            if (count == 20)
                scoreThen = m_plan->totalScore();
        };
        autoLayout(*m_plan, &dialog, quick);
        // The plan itself stays as it was until the end.
        QCOMPARE(scoreThen, before);
        QVERIFY(m_plan->totalScore() > before);
    }

    void aStopIsHeard_data()
    {
        QTest::addColumn<int>("step");
        QTest::addColumn<bool>("tooShort");
        QTest::newRow("start stage") << 5 << true;
        QTest::newRow("last start solution") << 40 << true;
        QTest::newRow("after a generation") << 42 << false;
    }

    void aStopIsHeard()
    {
        QFETCH(int, step);
        QFETCH(bool, tooShort);
        EventLog log(*m_plan);
        Dialog dialog;
        dialog.onStep = [&](int count) {
            if (count == step)
                m_plan->abortProcessing();
        };
        KWLayoutOptions endless = quick;
        endless.maxGenerationsUnimproved = 99999;
        autoLayout(*m_plan, &dialog, endless);
        QStringList expected{s("eventPrepareAutoLayout()")};
        if (tooShort)
            expected.append(timeText());
        expected.append({s("eventRefresh()"), s("eventModified()")});
        QCOMPARE(log.take(), expected);
        QVERIFY(!m_plan->abortRequested());
        QCOMPARE(m_plan->seatedGuestCount(), 16);
    }

    void memoryThatEndsIsToldAndTheBestSoFarIsKept_data()
    {
        QTest::addColumn<int>("copies");
        QTest::addColumn<int>("seated");
        QTest::newRow("first candidate") << 0 << 2;
        QTest::newRow("start stage") << 20 << 16;
        QTest::newRow("generation") << 47 << 16;
    }

    void memoryThatEndsIsToldAndTheBestSoFarIsKept()
    {
        QFETCH(int, copies);
        EventLog log(*m_plan);
        const CopyLimit limit(copies);
        autoLayout(*m_plan, nullptr, quick);
        QCOMPARE(log.take(), QStringList({s("eventPrepareAutoLayout()"), memoryText(),
                                          s("eventRefresh()"), s("eventModified()")}));
        QTEST(m_plan->seatedGuestCount(), "seated");
    }

    void anyOtherExceptionLeavesThePlanAsItStoodAndTheViewsWithIt()
    {
        const QString before = seating(*m_plan);
        EventLog log(*m_plan);
        const auto trace = modelHooks().trace;
        modelHooks().trace = [](const QString &line) {
            if (line == s("**GA generation=1"))
                throw std::runtime_error("broken");
        };
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, autoLayout(*m_plan, nullptr, quick));
        modelHooks().trace = trace;
        QCOMPARE(log.take(), QStringList({s("eventPrepareAutoLayout()"), s("eventRefresh()")}));
        QCOMPARE(seating(*m_plan), before);
        QVERIFY(!m_plan->isModified());
        // Its events are not blocked for ever.
        m_plan->announceModified();
        QCOMPARE(log.take(), QStringList{s("eventModified()")});
    }

    void oneGuestNoGuestsOneTableAndTooFewSeatsAllEnd_data()
    {
        QTest::addColumn<QString>("plan");
        QTest::addColumn<int>("seated");
        QTest::newRow("one guest") << s("ring - - | wait A") << 1;
        QTest::newRow("no guest") << s("ring - -") << 0;
        QTest::newRow("all locked") << s("ring A! B!") << 2;
        QTest::newRow("one table") << s("ring - - - | wait A B C") << 3;
        QTest::newRow("more guests than seats") << s("ring - - | wait A B C D") << 2;
    }

    void oneGuestNoGuestsOneTableAndTooFewSeatsAllEnd()
    {
        QFETCH(QString, plan);
        KWDocument drawn = drawnPlan(qPrintable(plan));
        autoLayout(drawn, nullptr, quick);
        QTEST(drawn.seatedGuestCount(), "seated");
    }

private:
    std::unique_ptr<KWDocument> m_plan;
};

REGISTER_TEST(TestKWAutoLayout)
#include "tst_kwautolayout.moc"
