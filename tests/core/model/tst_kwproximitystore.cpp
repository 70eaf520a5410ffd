#include "core/model/kwproximitystore.h"
#include "core/model/kwscore.h"
#include "support/registeredtest.h"

#include <QtTest>

class TestProximityStore : public QObject
{
    Q_OBJECT

private slots:
    void pairHasOneValueInEitherOrder()
    {
        KWProximityStore store;
        store.set(1, 2, KWScore::Loves);
        QCOMPARE(store.value(1, 2), int(KWScore::Loves));
        QCOMPARE(store.value(2, 1), int(KWScore::Loves));
        store.set(2, 1, KWScore::Hates);
        QCOMPARE(store.size(), 1);
        QCOMPARE(store.value(1, 2), int(KWScore::Hates));
        QCOMPARE(store.entries().front().first, 2);
        QCOMPARE(store.entries().front().second, 1);
    }

    void neutralRemovesThePair()
    {
        KWProximityStore store;
        store.set(1, 2, KWScore::Likes);
        store.set(2, 1, KWScore::Neutral);
        QCOMPARE(store.size(), 0);
        QCOMPARE(store.value(1, 2), int(KWScore::Neutral));
        QVERIFY(store.entries().empty());
        QVERIFY(store.wishesOf(1).empty());
    }

    void aGuestMayStandInAPairTwice()
    {
        KWProximityStore store;
        store.set(4, 4, KWScore::Loves);
        QCOMPARE(store.size(), 1);
        QCOMPARE(store.value(4, 4), int(KWScore::Loves));
        store.removeGuest(4);
        QCOMPARE(store.size(), 0);
        QVERIFY(store.entries().empty());
    }

    void wishesAndPairsAreInOrder()
    {
        KWProximityStore store;
        store.set(7, 1, KWScore::Loves);
        store.set(3, 7, KWScore::Loves);
        store.set(7, 2, KWScore::Hates);
        const auto wishes = store.wishesOf(7);
        QCOMPARE(wishes.size(), std::size_t(3));
        QCOMPARE(wishes[0].other, 1);
        QCOMPARE(wishes[1].other, 2);
        QCOMPARE(wishes[1].value, int(KWScore::Hates));
        QCOMPARE(wishes[2].other, 3);
        const auto pairs = store.pairs(KWScore::Loves);
        QCOMPARE(pairs.size(), std::size_t(2));
        QCOMPARE(pairs[0].first, 3);
        QCOMPARE(pairs[1].first, 7);
        QVERIFY(store.wishesOf(0).empty());
        QVERIFY(store.wishesOf(8).empty());
        QVERIFY(store.wishesOf(-1).empty());
        QVERIFY(store.pairs(KWScore::Likes).empty());
    }

    void removingAGuestLeavesTheOthers()
    {
        KWProximityStore store;
        store.set(1, 2, KWScore::Loves);
        store.set(2, 3, KWScore::Likes);
        store.set(3, 1, KWScore::Hates);
        store.removeGuest(2);
        QCOMPARE(store.size(), 1);
        QCOMPARE(store.value(3, 1), int(KWScore::Hates));
        QCOMPARE(store.value(1, 2), int(KWScore::Neutral));
        store.removeGuest(9);
        QCOMPARE(store.size(), 1);
    }

    void aCopyIsItsOwn()
    {
        KWProximityStore store;
        store.set(1, 2, KWScore::Loves);
        KWProximityStore copy = store;
        QCOMPARE(copy.wishesOf(1).size(), std::size_t(1));
        copy.set(1, 2, KWScore::Neutral);
        copy.set(5, 6, KWScore::Likes);
        QCOMPARE(store.value(1, 2), int(KWScore::Loves));
        QCOMPARE(store.value(5, 6), int(KWScore::Neutral));
        QCOMPARE(copy.value(5, 6), int(KWScore::Likes));
        QVERIFY(copy.wishesOf(1).empty());
    }
};

REGISTER_TEST(TestProximityStore)
#include "tst_kwproximitystore.moc"
