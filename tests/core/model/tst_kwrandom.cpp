#include "core/model/kwrandom.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <algorithm>
#include <cstdlib>
#include <ctime>

namespace {
void start(unsigned seed)
{
    setFixedRandomSeed(seed);
    seedRandomNumbers();
}

int shortRandom()
{
    return std::rand() >> 16;
}

/// Brings the source to the point where its next number, in 0..32767, is this one.
void goBefore(int number)
{
    constexpr unsigned seed = 1;
    int draws = 0;
    start(seed);
    while (shortRandom() != number)
        ++draws;
    start(seed);
    for (int i = 0; i < draws; ++i)
        shortRandom();
}

template <typename Draw>
QList<int> numbers(int count, Draw draw)
{
    QList<int> result;
    std::generate_n(std::back_inserter(result), count, draw);
    return result;
}

QList<int> histogram(int buckets, const QList<int> &values)
{
    QList<int> counts(buckets, 0);
    for (const int value : values)
        ++counts[value];
    return counts;
}
} // namespace

class TestRandom : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { setFixedRandomSeed({}); }

    void numbersLieBelowN_data()
    {
        QTest::addColumn<int>("n");
        for (const int n : {1, 2, 3, 8, 20, 70, 600})
            QTest::addRow("%d", n) << n;
    }
    void numbersLieBelowN()
    {
        QFETCH(const int, n);
        start(7);
        const auto [least, most] =
            std::ranges::minmax(numbers(20000, [n] { return randomNumber(n); }));
        QCOMPARE(least, 0);
        QCOMPARE(most, n - 1);
    }

    void ofNoNumbersTheResultIsMinusOne()
    {
        start(7);
        const QList<int> drawn = numbers(1000, [] { return randomNumber(0); });
        QCOMPARE(drawn.count(-1), qsizetype(1000));
    }

    void theLibrarysNumberIsScaledCutOffAndFoldedAtTheTop_data()
    {
        QTest::addColumn<int>("drawn");
        QTest::addColumn<int>("n");
        QTest::addColumn<int>("result");
        QTest::addRow("lowest") << 0 << 8 << 0;
        QTest::addRow("highest of 1 is folded") << 32767 << 1 << 0;
        QTest::addRow("highest of 2 is folded") << 32767 << 2 << 1;
        QTest::addRow("highest of 8 is folded") << 32767 << 8 << 7;
        QTest::addRow("highest of 600 is folded") << 32767 << 600 << 599;
        QTest::addRow("one below the highest") << 32766 << 8 << 7;
        QTest::addRow("last of the first eighth") << 4095 << 8 << 0;
        QTest::addRow("first of the second eighth") << 4096 << 8 << 1;
        QTest::addRow("on a whole number") << 4681 << 7 << 1;
        QTest::addRow("below a whole number") << 4680 << 7 << 0;
        // In double precision these would be 551 and 615.
        QTest::addRow("single precision, down") << 30653 << 589 << 550;
        QTest::addRow("single precision, up") << 31887 << 633 << 616;
    }
    void theLibrarysNumberIsScaledCutOffAndFoldedAtTheTop()
    {
        QFETCH(const int, drawn);
        QFETCH(const int, n);
        goBefore(drawn);
        QTEST(randomNumber(n), "result");
    }

    void everyNumberIsOneDrawOfTheLibrary()
    {
        start(3);
        const QList<int> own = numbers(1000, [] { return randomNumber(8); });
        start(3);
        QCOMPARE(own, numbers(1000, [] { return std::min(shortRandom() * 8 / 32767, 7); }));
    }

    void numbersComeAboutEquallyOften()
    {
        start(11);
        const QList<int> counts = histogram(10, numbers(100000, [] { return randomNumber(10); }));
        const auto [least, most] = std::ranges::minmax(counts);
        QVERIFY2(least > 9500 && most < 10500,
                 qPrintable(QStringLiteral("%1 to %2").arg(least).arg(most)));
    }

    void theBiasedNumberIsTheSmallerOfTwo()
    {
        start(5);
        const QList<int> biased = numbers(1000, [] { return biasedRandomNumber(40); });
        start(5);
        QCOMPARE(biased, numbers(1000, [] {
                     const int first = randomNumber(40);
                     return std::min(first, randomNumber(40));
                 }));
    }

    void biasedNumbersPreferTheHead()
    {
        start(11);
        const QList<int> counts =
            histogram(4, numbers(16000, [] { return biasedRandomNumber(4); }));
        for (int i = 0; i < 4; ++i) {
            const int expected = 1000 * (7 - 2 * i);
            QVERIFY2(std::abs(counts.at(i) - expected) < 300, qPrintable(QString::number(i)));
        }
    }

    void theOtherNumberIsDrawnUntilItDiffers()
    {
        start(5);
        QList<int> expected = numbers(1000, [] { return randomNumber(3); });
        expected.removeAll(1);
        start(5);
        const auto count = static_cast<int>(expected.size());
        QCOMPARE(numbers(count, [] { return otherRandomNumber(3, 1); }), expected);
        QVERIFY(expected.contains(0));
        QVERIFY(expected.contains(2));
    }

    void theOtherOfTwoIsAlwaysTheSame()
    {
        start(5);
        QCOMPARE(numbers(100, [] { return otherRandomNumber(2, 0); }), QList<int>(100, 1));
        QCOMPARE(numbers(100, [] { return otherRandomNumber(2, 1); }), QList<int>(100, 0));
    }

    void aFixedSeedGivesTheSameNumbersEveryTime()
    {
        const auto drawn = [] { return numbers(100, [] { return randomNumber(1000); }); };
        start(42);
        const QList<int> first = drawn();
        seedRandomNumbers();
        QCOMPARE(drawn(), first);
        start(43);
        QVERIFY(drawn() != first);
        start(42);
        QCOMPARE(drawn(), first);
    }

    void settingASeedAloneDoesNotRestartTheSource()
    {
        start(42);
        const QList<int> both = numbers(2, [] { return randomNumber(1000); });
        start(42);
        QCOMPARE(randomNumber(1000), both.at(0));
        setFixedRandomSeed(42);
        QCOMPARE(randomNumber(1000), both.at(1));
    }

    void withoutAFixedSeedTheSecondOfTheClockIsTheSeed()
    {
        start(42);
        setFixedRandomSeed({});
        std::time_t before = 0;
        std::time_t after = -1;
        QList<int> own;
        while (before != after) {
            before = std::time(nullptr);
            seedRandomNumbers();
            after = std::time(nullptr);
            own = numbers(100, [] { return randomNumber(1000); });
        }
        start(static_cast<unsigned>(after));
        QCOMPARE(own, numbers(100, [] { return randomNumber(1000); }));
    }
};

REGISTER_TEST(TestRandom)
#include "tst_kwrandom.moc"
