#include "gui/framework/kwprogress.h"
#include "support/gui/fakemainwindow.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"

class TestKWProgress : public QObject
{
    Q_OBJECT

private slots:
    void theWindowShowsThePercentage()
    {
        FakeMainWindow window;
        setProgress(40);
        setProgress(100);
        QCOMPARE(window.progress, (QList<int>{40, 100}));
    }

    void stepsAreRoundedDownToPercents()
    {
        FakeMainWindow window;
        for (int step = 0; step <= 3; ++step)
            setProgress(step, 3);
        QCOMPARE(window.progress, (QList<int>{0, 33, 66, 100}));
    }

    void theWindowMayAnswerInBetween()
    {
        const FakeMainWindow window;
        int answered = 0;
        QTimer::singleShot(0, this, [&] { ++answered; });
        setProgress(1);
        QCOMPARE(answered, 1);
        QCOMPARE(window.progress, QList<int>{1});
    }

    void withoutAWindowThereIsNothingToShow()
    {
        int answered = 0;
        QTimer::singleShot(0, this, [&] { ++answered; });
        setProgress(1, 2);
        QCOMPARE(answered, 1);
    }
};

REGISTER_TEST(TestKWProgress)
#include "tst_kwprogress.moc"
