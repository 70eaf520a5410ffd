#include "gui/framework/kwtimer.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

/// A timer under a clock that the test moves, which counts what it emits.
class ClockedTimer
{
public:
    ClockedTimer()
    {
        QObject::connect(&timer, &KWTimer::timeout, &timer, [this] { ++m_fired; });
    }

    /// Moves the clock and lets the inner timer fire; true if that came through.
    bool fireAfter(double seconds)
    {
        m_now = m_now.addMSecs(qRound64(seconds * 1000));
        const int before = m_fired;
        QMetaObject::invokeMethod(inner(), "timeout");
        return m_fired > before;
    }

    QTimer *inner() { return timer.findChild<QTimer *>(); }

private:
    QDateTime m_now{QDate(2024, 6, 1), QTime(12, 0), Qt::UTC};
    int m_fired = 0;

public:
    KWTimer timer{nullptr, s("test timer"), [this] { return m_now; }};
};

void expectWarning(int seconds, int interval)
{
    QTest::ignoreMessage(QtWarningMsg, qPrintable(s("ignoring spurious timer update after %1 sec "
                                                    "(expected %2 msec)")
                                                      .arg(seconds)
                                                      .arg(interval)));
}
} // namespace

class TestKWTimer : public QObject
{
    Q_OBJECT

private slots:
    void aFirstFiringCountsFromTheTimersMaking_data()
    {
        QTest::addColumn<int>("interval");
        QTest::addColumn<double>("seconds");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("at once") << 60000 << 0.0 << false;
        QTest::newRow("two seconds early") << 60000 << 58.0 << false;
        QTest::newRow("hardly more than a second early") << 60000 << 58.999 << false;
        QTest::newRow("one second early") << 60000 << 59.0 << true;
        QTest::newRow("in time") << 60000 << 60.0 << true;
        QTest::newRow("after a long sleep") << 60000 << 86400.0 << true;
        QTest::newRow("two seconds, at once") << 2000 << 0.0 << false;
        QTest::newRow("two seconds, after one") << 2000 << 1.0 << true;
        QTest::newRow("less than two seconds, at once") << 1999 << 0.0 << true;
        QTest::newRow("one second, at once") << 1000 << 0.0 << true;
        QTest::newRow("less than a second") << 999 << 1.0 << false;
        QTest::newRow("less than a second, after a day") << 999 << 86400.0 << false;
        QTest::newRow("the clock was set back") << 60000 << -3600.0 << true;
    }

    void aFirstFiringCountsFromTheTimersMaking()
    {
        QFETCH(int, interval);
        QFETCH(double, seconds);
        QFETCH(bool, accepted);
        ClockedTimer clocked;
        clocked.timer.start(interval);
        if (accepted)
            QTest::failOnWarning(QRegularExpression(s("spurious")));
        else
            expectWarning(static_cast<int>(seconds), interval);
        QCOMPARE(clocked.fireAfter(seconds), accepted);
    }

    void anIgnoredFiringDoesNotPostponeTheNext()
    {
        ClockedTimer clocked;
        clocked.timer.start(60000);
        expectWarning(58, 60000);
        QVERIFY(!clocked.fireAfter(58));
        QVERIFY(clocked.fireAfter(1));
    }

    void laterFiringsCountFromTheLastAcceptedOne()
    {
        ClockedTimer clocked;
        clocked.timer.start(60000);
        QVERIFY(clocked.fireAfter(3600));
        expectWarning(0, 60000);
        QVERIFY(!clocked.fireAfter(0));
        expectWarning(58, 60000);
        QVERIFY(!clocked.fireAfter(58));
        QVERIFY(clocked.fireAfter(1));
    }

    void aStartDoesNotCountAsAFiring()
    {
        ClockedTimer clocked;
        clocked.timer.start(60000);
        QVERIFY(clocked.fireAfter(60));
        clocked.timer.stop();
        clocked.timer.start(60000);
        expectWarning(1, 60000);
        QVERIFY(!clocked.fireAfter(1));
    }

    void aFiringIsMeasuredByTheIntervalInForce()
    {
        ClockedTimer clocked;
        clocked.timer.start(60000);
        clocked.timer.changeInterval(120000);
        expectWarning(60, 120000);
        QVERIFY(!clocked.fireAfter(60));
        clocked.timer.changeInterval(60000);
        QVERIFY(clocked.fireAfter(0));
    }

    void aNewTimerStandsStillAndHasNoInterval()
    {
        QObject parent;
        const KWTimer timer(&parent, s("auto save timer"));
        QCOMPARE(timer.interval(), -1);
        QVERIFY(!timer.isActive());
        QCOMPARE(timer.objectName(), s("auto save timer"));
        QCOMPARE(timer.parent(), &parent);
    }

    void startRepeatsUnlessAskedForOneFiring()
    {
        ClockedTimer clocked;
        clocked.timer.start(60000);
        QVERIFY(clocked.timer.isActive());
        QVERIFY(!clocked.inner()->isSingleShot());
        QCOMPARE(clocked.inner()->interval(), 60000);
        clocked.timer.start(30000, true);
        QVERIFY(clocked.inner()->isSingleShot());
        QCOMPARE(clocked.timer.interval(), 30000);
        clocked.timer.stop();
        QVERIFY(!clocked.timer.isActive());
        QCOMPARE(clocked.timer.interval(), 30000);
    }

    void aChangeOfIntervalIsOnlyNotedWhileTheTimerStandsStill()
    {
        ClockedTimer clocked;
        clocked.timer.changeInterval(120000);
        QCOMPARE(clocked.timer.interval(), 120000);
        QVERIFY(!clocked.timer.isActive());
        clocked.timer.start(60000);
        clocked.timer.changeInterval(180000);
        QVERIFY(clocked.timer.isActive());
        QCOMPARE(clocked.inner()->interval(), 180000);
    }

    void restartTakesTheIntervalLastSet()
    {
        ClockedTimer clocked;
        clocked.timer.restart();
        QVERIFY(!clocked.timer.isActive());
        clocked.timer.start(60000, true);
        clocked.timer.stop();
        clocked.timer.changeInterval(90000);
        clocked.timer.restart();
        QVERIFY(clocked.timer.isActive());
        QVERIFY(clocked.inner()->isSingleShot());
        QCOMPARE(clocked.inner()->interval(), 90000);
    }

    void aSingleShotOfASecondFiresOnceByTheRealClock()
    {
        KWTimer timer(nullptr);
        QSignalSpy fired(&timer, &KWTimer::timeout);
        timer.start(1000, true);
        QTRY_COMPARE(fired.count(), 1);
        QVERIFY(!timer.isActive());
    }

    void theStaticSingleShotCallsItsReceiver()
    {
        QObject receiver;
        bool called = false;
        KWTimer::singleShot(0, &receiver, [&called] { called = true; });
        QVERIFY(!called);
        QTRY_VERIFY(called);
    }
};

REGISTER_TEST(TestKWTimer)
#include "tst_kwtimer.moc"
