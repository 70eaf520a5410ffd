#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QtTest>

namespace {
QString entry(const KWGuest *first, const KWGuest *second, int value)
{
    return s("%1 %2 %3").arg(first->displayName(), second->displayName(), QString::number(value));
}

/// Every stored pair in stored order with its value: "G0 G1 4".
QStringList stored(const KWDocument &plan)
{
    QStringList result;
    for (const KWDocument::Affinity &pair : plan.affinities())
        result.append(entry(pair.first, pair.second, pair.value));
    return result;
}

QStringList pairsOf(const KWDocument &plan, int value)
{
    QStringList result;
    for (const KWDocument::GuestPair &pair : plan.proximityPairs(value))
        result.append(pair.first->displayName() + u' ' + pair.second->displayName());
    return result;
}

qsizetype linesInTheFile(const KWDocument &plan)
{
    return plan.toPlanText({}).count("<affinity ");
}
} // namespace

class TestAffinity : public QObject
{
    Q_OBJECT

private slots:
    void everyPairIsNeutralAtFirst()
    {
        KWDocument plan;
        const QList<KWGuest *> g = addGuests(plan, 2);
        QCOMPARE(plan.affinity(g[0], g[1]), 2);
        QCOMPARE(plan.affinity(g[0], g[0]), 2);
        QCOMPARE(plan.affinityCount(), 0);
    }

    void bothOrdersAreEqualAfterAnySequenceOfSettings()
    {
        KWDocument plan;
        const QList<KWGuest *> g = addGuests(plan, 2);
        // Each step sets one of five values in one of two orders.
        constexpr int steps = 3;
        constexpr int choices = 10;
        for (int sequence = 0; sequence < choices * choices * choices; ++sequence) {
            plan.setAffinity(g[0], g[1], KWScore::Neutral, false);
            for (int step = 0, rest = sequence; step < steps; ++step, rest /= choices) {
                const int value = rest % 5;
                const int first = rest % choices / 5;
                plan.setAffinity(g[first], g[1 - first], value, false);
                QCOMPARE(plan.affinity(g[0], g[1]), value);
                QCOMPARE(plan.affinity(g[1], g[0]), value);
                QStringList expected;
                if (value != 2)
                    expected.append(entry(g[first], g[1 - first], value));
                QCOMPARE(stored(plan), expected);
                QCOMPARE(plan.affinityCount(), value == 2 ? 0 : 1);
            }
        }
    }

    void aLaterSettingInTheOtherOrderReplacesTheEntry()
    {
        KWDocument plan;
        const QList<KWGuest *> g = addGuests(plan, 2);
        plan.setAffinity(g[0], g[1], 0, false);
        plan.setAffinity(g[1], g[0], 4, false);
        QCOMPARE(stored(plan), QStringList{s("G1 G0 4")});
        QCOMPARE(pairsOf(plan, 0), QStringList());
        QCOMPARE(pairsOf(plan, 4), QStringList{s("G1 G0")});
        QCOMPARE(plan.affinity(g[0], g[1]), 4);
        QCOMPARE(plan.affinity(g[1], g[0]), 4);
    }

    void aNeutralPairHasNoEntryAndNoLineInTheFile()
    {
        KWDocument plan;
        const QList<KWGuest *> g = addGuests(plan, 3);
        plan.setAffinity(g[0], g[1], 0, false);
        plan.setAffinity(g[1], g[2], 3, false);
        QCOMPARE(linesInTheFile(plan), 2);
        plan.setAffinity(g[1], g[0], 2, false);
        QCOMPARE(stored(plan), QStringList{s("G1 G2 3")});
        QCOMPARE(linesInTheFile(plan), 1);
        plan.setAffinity(g[1], g[2], 2, false);
        plan.setAffinity(g[0], g[2], 2, false);
        QCOMPARE(stored(plan), QStringList());
        QCOMPARE(linesInTheFile(plan), 0);
    }

    void theSameGuestMayBeGivenTwice()
    {
        KWDocument plan;
        const QList<KWGuest *> g = addGuests(plan, 2);
        plan.setAffinity(g[0], g[0], 1, false);
        QCOMPARE(plan.affinity(g[0], g[0]), 1);
        QCOMPARE(plan.affinity(g[1], g[1]), 2);
        QCOMPARE(stored(plan), QStringList{s("G0 G0 1")});
        plan.setAffinity(g[0], g[0], 2, false);
        QCOMPARE(plan.affinity(g[0], g[0]), 2);
        QCOMPARE(plan.affinityCount(), 0);
    }

    void theValueIsTakenAsItComes()
    {
        KWDocument plan;
        const QList<KWGuest *> g = addGuests(plan, 2);
        for (int value : {-1, 5, 1000}) {
            plan.setAffinity(g[0], g[1], value, false);
            QCOMPARE(plan.affinity(g[1], g[0]), value);
            QCOMPARE(pairsOf(plan, value), QStringList{s("G0 G1")});
        }
    }

    void pairsOfAValueStandOnceInStoredOrder()
    {
        KWDocument plan;
        const QList<KWGuest *> g = addGuests(plan, 4);
        plan.setAffinity(g[3], g[0], 0, false);
        plan.setAffinity(g[0], g[1], 0, false);
        plan.setAffinity(g[1], g[2], 1, false);
        plan.setAffinity(g[2], g[0], 4, false);
        QCOMPARE(pairsOf(plan, 0), (QStringList{s("G0 G1"), s("G3 G0")}));
        QCOMPARE(pairsOf(plan, 1), QStringList{s("G1 G2")});
        QCOMPARE(pairsOf(plan, 2), QStringList());
        QCOMPARE(pairsOf(plan, 3), QStringList());
        QCOMPARE(pairsOf(plan, 4), QStringList{s("G2 G0")});
    }

    void nobodyAndStrangersAreNeutral()
    {
        KWDocument plan;
        KWDocument other;
        const QList<KWGuest *> g = addGuests(plan, 2);
        const QList<KWGuest *> strangers = addGuests(other, 2);
        plan.setAffinity(g[0], g[1], 0, false);
        QCOMPARE(plan.affinity(nullptr, g[1]), 2);
        QCOMPARE(plan.affinity(g[0], nullptr), 2);
        QCOMPARE(plan.affinity(nullptr, nullptr), 2);
        QCOMPARE(plan.affinity(strangers[0], strangers[1]), 2);
        QCOMPARE(plan.affinity(g[0], strangers[1]), 2);
    }
};

REGISTER_TEST(TestAffinity)
#include "tst_kwaffinity.moc"
