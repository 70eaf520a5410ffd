#include "gui/appearance/kwcontrast.h"

#include "support/registeredtest.h"

class TestKWContrast : public QObject
{
    Q_OBJECT

private slots:
    void theEyeTakesGreenForTheBrightestAndBlueForTheDarkest()
    {
        QCOMPARE(luminance(Qt::black), 0.0);
        QCOMPARE(luminance(Qt::white), 1.0);
        QCOMPARE(luminance(Qt::red), 0.2126);
        QCOMPARE(luminance(Qt::green), 0.7152);
        QCOMPARE(luminance(Qt::blue), 0.0722);
        // A grey that is half as light by its numbers is a fifth as light to the eye.
        QVERIFY(std::abs(luminance(QColor(128, 128, 128)) - 0.2159) < 0.0001);
        QVERIFY(std::abs(luminance(QColor(5, 5, 5)) - 0.001518) < 0.000001);
    }

    void contrastGoesFromOneToTwentyOneInEitherOrder()
    {
        QCOMPARE(contrast(Qt::white, Qt::white), 1.0);
        QCOMPARE(contrast(Qt::white, Qt::black), 21.0);
        QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
        QVERIFY(std::abs(contrast(QColor(118, 118, 118), Qt::white) - 4.54) < 0.01);
    }

    void aGroundIsDarkWhereWhiteStandsOut()
    {
        QVERIFY(isDark(Qt::black) && isDark(QColor(30, 30, 30)) && isDark(Qt::blue));
        QVERIFY(!isDark(Qt::white) && !isDark(Qt::gray) && !isDark(Qt::green));
    }

    void textThatCannotBeReadIsBlackOrWhite()
    {
        QCOMPARE(legible(QColor(0, 0, 120), Qt::white), QColor(0, 0, 120));
        QCOMPARE(legible(QColor(230, 230, 230), QColor(224, 224, 255)), QColor(Qt::black));
        QCOMPARE(legible(QColor(60, 60, 60), QColor(30, 30, 30)), QColor(Qt::white));
        // One that is just good enough, and one just below.
        QCOMPARE(legible(QColor(118, 118, 118), Qt::white), QColor(118, 118, 118));
        QCOMPARE(legible(QColor(120, 120, 120), Qt::white), QColor(Qt::black));
    }

    void aMixtureLiesBetween()
    {
        QCOMPARE(mixed(Qt::black, Qt::white, 0).rgb(), QColor(Qt::black).rgb());
        QCOMPARE(mixed(Qt::black, Qt::white, 1).rgb(), QColor(Qt::white).rgb());
        QCOMPARE(mixed(QColor(100, 0, 200), QColor(200, 100, 0), 0.25F).rgb(), qRgb(125, 25, 150));
    }
};

REGISTER_TEST(TestKWContrast)
#include "tst_kwcontrast.moc"
