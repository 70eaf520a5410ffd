#include "fakemainwindow.h"
#include "guitest.h"
#include "kwprogress.h"

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

GUI_TEST_MAIN(TestKWProgress)
#include "tst_kwprogress.moc"
