#include "../drawnplan.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <array>
#include <cstdlib>
#include <numeric>
#include <random>

namespace {
/// The guest for a seat by the rule itself, without any of the shortcuts of the document.
KWGuest *naiveBestGuest(const KWDocument &plan, const KWTable *table, int seat)
{
    constexpr std::array worth{20, 5, 0, -10, -40};
    const QList<KWGuest *> waiting = plan.unseatedUnlockedGuests();
    QList<KWGuest *> ties;
    int best = -99999;
    for (KWGuest *guest : waiting) {
        int value = plan.seatContribution(table, seat, guest)[KWScore::TotalEntry];
        int partner = -999;
        for (const KWGuest *other : waiting) {
            const auto wish = static_cast<std::size_t>(plan.affinity(guest, other));
            const double weight = guest->isVip() ? 3.0 : 1.0;
            if (other != guest)
                partner = std::max(partner, static_cast<int>(worth[wish] * weight));
        }
        if (seat == table->seatCount() - 1)
            value -= partner;
        if (value > best)
            ties.clear();
        best = std::max(best, value);
        if (value == best)
            ties.append(guest);
    }
    return ties.value(0);
}

void naiveFill(KWDocument &plan, KWTable *table)
{
    const auto waiting = static_cast<int>(plan.unseatedUnlockedGuests().size());
    const int limit = std::min(table->seatCount(), waiting);
    int placed = 0;
    for (int seat = 0; seat < table->seatCount() && placed < limit; ++seat) {
        if (plan.seatHoldsLockedGuest(table, seat))
            continue;
        plan.assignGuest(placed == 0 ? plan.randomUnseatedGuest()
                                     : naiveBestGuest(plan, table, seat),
                         table, seat, false);
        ++placed;
    }
}

void naiveRandomLayout(KWDocument &plan)
{
    for (KWGuest *guest : plan.guests()) {
        if (!guest->isLocked())
            plan.unassignGuest(guest, false);
    }
    for (KWTable *table : plan.shuffledTables())
        naiveFill(plan, table);
}

int seatsFreeOfLocks(const KWDocument &plan)
{
    const auto &tables = plan.tables();
    return std::accumulate(tables.begin(), tables.end(), 0, [&](int sum, const KWTable *table) {
        return sum + plan.seatsFreeOfLocks(table);
    });
}

/// Unseats guests by chance until as many as wanted are without a seat, locked ones apart.
void unseatSome(KWDocument &plan, int wanted, unsigned seed)
{
    std::mt19937 engine(seed);
    while (plan.unseatedGuestCount(false) < wanted && plan.seatedUnlockedGuestCount() > 0) {
        const auto index = static_cast<int>(engine() % static_cast<unsigned>(plan.guestCount()));
        if (!plan.guestAt(index)->isLocked())
            plan.unassignGuest(plan.guestAt(index), false);
    }
}

/// How many numbers a step takes from the random source.
template <typename Step>
int draws(Step step)
{
    const FixedSeed seed(9);
    step();
    const int next = std::rand();
    seedRandomNumbers();
    int count = 0;
    while (std::rand() != next)
        ++count;
    return count;
}

/// The seating with "x" for every unlocked guest.
QString occupation(const KWDocument &plan)
{
    QStringList words = wordsOf(seatingLine(plan));
    for (QString &word : words) {
        const KWGuest *guest = guestNamed(plan, word);
        if (guest && !guest->isLocked())
            word = s("x");
    }
    return words.join(u' ');
}

/// What a step makes of a plan when it is repeated, each result once.
template <typename Step>
QStringList results(int repeats, Step step)
{
    const FixedSeed seed(5);
    QStringList found;
    for (int i = 0; i < repeats; ++i)
        found.append(step());
    found.removeDuplicates();
    found.sort();
    return found;
}

QString nameOf(const KWGuest *guest)
{
    return guest ? guest->displayName() : s("nobody");
}
} // namespace

class TestDocumentLayout : public QObject
{
    Q_OBJECT

private slots:
    void aGuestHatedBeyondMeasureStillGetsASeat()
    {
        constexpr int others = 1800;
        KWDocument plan;
        KWTable *table = addCustom(plan, "T", 1000, 1000, 0, 0);
        const QList<KWGuest *> guests = addGuests(plan, others + 1);
        KWGuest *hated = guests.first();
        plan.setGuestVip(hated, true);
        for (int i = 1; i <= others; ++i) {
            plan.assignGuest(guests.at(i), table, i, false);
            plan.setAffinity(hated, guests.at(i), KWScore::Hates, false);
        }
        QVERIFY(plan.seatContribution(table, others + 50, hated)[KWScore::TotalEntry] < -99999);
        QCOMPARE(plan.bestGuestForSeat(table, others + 50), hated);
    }

    void aRandomLayoutFillsSeatsByTheRules_data()
    {
        QTest::addColumn<QString>("drawing");
        QTest::addColumn<QString>("occupied");
        const auto row = [](const char *name, const char *drawing, const char *occupied) {
            QTest::newRow(name) << s(drawing) << s(occupied);
        };
        row("room for everybody", "ring - - - | wait A B C", "x x x");
        row("from the first seat on", "ring - - - - | wait A B", "x x - -");
        row("head table", "head - - - - | wait A B", "x x - -");
        row("more guests than seats", "ring - - | head - | wait A B C D", "x x | x");
        row("who sits is turned out first", "ring - - A B | wait C", "x x x -");
        row("locked seats are passed over", "ring - L! - - | wait A B", "x L x -");
        row("locked seats and more guests", "ring L! - - | wait A B C D", "L x x");
        row("fully locked table", "ring L! M! | ring - - | wait A B", "L M | x x");
        row("fully locked table alone", "ring L! M! | wait A B", "L M");
        row("unseated locked guests stay so", "ring - - - | wait A L!", "x - -");
        row("nobody to place", "ring - - | wait L!", "- -");
        row("no guests", "ring - -", "- -");
        row("table without seats", "ring | ring - | wait A B", "| x");
        row("no tables", "wait A B", "");
    }
    void aRandomLayoutFillsSeatsByTheRules()
    {
        QFETCH(const QString, drawing);
        QFETCH(const QString, occupied);
        KWDocument plan = drawnPlan(drawing);
        const QStringList locked = lockedSeats(plan);
        QCOMPARE(results(30,
                         [&] {
                             plan.randomLayout();
                             return occupation(plan);
                         }),
                 QStringList{occupied});
        QCOMPARE(lockedSeats(plan), locked);
        QVERIFY(seatsAgreeWithGuests(plan));
    }

    void randomLayoutOnATableFullOfLockedGuestsPlacesAndDrawsNobody()
    {
        // One draw for each table of the shuffle, and one for each table's first guest.
        KWDocument full = drawnPlan("ring L! M! | ring - - | wait A B C");
        QCOMPARE(draws([&] { full.randomLayout(); }), 2 + 1);
        QCOMPARE(occupation(full), s("L M | x x"));
        KWDocument open = drawnPlan("ring L! - | ring - - | wait A B C");
        QCOMPARE(draws([&] { open.randomLayout(); }), 2 + 2);
    }

    void aTableForWhichNobodyIsLeftDrawsNobody()
    {
        KWDocument plan = drawnPlan("ring - - | ring - - | wait A B");
        QCOMPARE(draws([&] { plan.randomLayout(); }), 2 + 1);
    }

    void tablesAreFilledInRandomOrder()
    {
        KWDocument plan = drawnPlan("ring - | ring - | ring - | wait A");
        const QStringList reached = results(200, [&] {
            plan.randomLayout();
            return seatingLine(plan);
        });
        QCOMPARE(reached, (QStringList{s("- | - | A"), s("- | A | -"), s("A | - | -")}));
    }

    void theFirstGuestOfATableIsDrawnUniformly()
    {
        const FixedSeed seed(5);
        KWDocument plan = drawnPlan("ring - - - | wait A B C | loves A B");
        QHash<QString, int> firsts;
        for (int i = 0; i < 3000; ++i) {
            plan.randomLayout();
            ++firsts[plan.tableAt(0)->guest(0)->displayName()];
        }
        for (const QString &name : {s("A"), s("B"), s("C")})
            QVERIFY2(std::abs(firsts.value(name) - 1000) < 100, qPrintable(name));
    }

    void tablesGrowGreedilyAroundTheFirstGuest_data() { addRandomPlans(); }
    void tablesGrowGreedilyAroundTheFirstGuest()
    {
        QFETCH(const RandomPlan, shape);
        KWDocument plan;
        fillRandomly(plan, shape);
        KWDocument expected(plan);
        const QStringList locked = lockedSeats(plan);
        for (unsigned i = 1; i <= 5; ++i) {
            const FixedSeed seed(i);
            plan.randomLayout();
            seedRandomNumbers();
            naiveRandomLayout(expected);
            QCOMPARE(seating(plan), seating(expected));
            QCOMPARE(lockedSeats(plan), locked);
            QCOMPARE(plan.seatedUnlockedGuestCount(),
                     std::min(seatsFreeOfLocks(plan), plan.unlockedGuestCount()));
        }
    }

    void aRandomLayoutIsRescored()
    {
        KWDocument plan;
        fillRandomly(plan, {.seed = 3});
        const FixedSeed seed(1);
        plan.randomLayout();
        QVERIFY(plan.totalScore() != 0);
        QCOMPARE(plan.totalScore(), scoreFromSeats(plan));
        for (const KWTable *table : plan.tables()) {
            for (int seat = 0; seat < table->seatCount(); ++seat) {
                const KWGuest *guest = table->guest(seat);
                QCOMPARE(table->seatScores().at(seat),
                         guest ? plan.seatContribution(table, seat, guest) : KWSeatScore());
            }
        }
    }

    void aRandomLayoutIsRepeatedByItsSeed()
    {
        KWDocument plan;
        fillRandomly(plan, {.seed = 3});
        const auto layout = [&](unsigned number) {
            const FixedSeed seed(number);
            plan.randomLayout();
            return seating(plan);
        };
        const QString first = layout(1);
        QVERIFY(layout(2) != first);
        QCOMPARE(layout(1), first);
    }

    void anUnseatedGuestIsDrawnFromThoseWhoMayBeSeated()
    {
        const KWDocument plan = drawnPlan("ring A | wait B! C D");
        QCOMPARE(results(100, [&] { return nameOf(plan.randomUnseatedGuest()); }),
                 (QStringList{s("C"), s("D")}));
        const KWDocument none = drawnPlan("ring A | wait B!");
        QCOMPARE(none.randomUnseatedGuest(), nullptr);
    }

    void theBestGuestForASeat_data()
    {
        QTest::addColumn<QString>("drawing");
        QTest::addColumn<int>("seat");
        QTest::addColumn<QString>("best");
        const auto row = [](const char *name, const char *drawing, int seat, const char *best) {
            QTest::newRow(name) << s(drawing) << seat << s(best);
        };
        row("ties go to the earliest", "ring - - | wait C B A", 0, "C");
        row("ties go to the earliest on the last seat", "ring - - | wait C B A", 1, "C");
        row("ties go to the earliest of the best",
            "ring X - - | wait A B C | likes B X | likes C X", 1, "B");
        row("most points win", "ring X - - | wait A B C | likes B X | loves C X", 1, "C");
        row("a partner may wait elsewhere", "ring X - - | wait B C D | likes B X | loves B C", 1,
            "B");
        row("but not for the last seat", "ring X - - | wait B C D | likes B X | loves B C", 2, "D");
        row("nor the last seat of a line", "head X - | wait B C D | likes B X | loves B C", 1, "D");
        row("the seated are no partners", "ring X - | wait D B | loves B X", 1, "B");
        row("the locked are no partners", "ring X - | wait D B C! | likes B X | loves B C", 1, "B");
        row("whom all others avoid takes it", "ring X - | wait C B D | hates B C | hates B D", 1,
            "B");
        row("a neutral partner counts nothing", "ring X - | wait C B D | hates B C | likes B X", 1,
            "B");
        row("dislikes weigh less than hates",
            "ring X - | wait A B C | dislikes A C | hates B A | hates B C", 1, "B");
        row("equals without a VIP", "ring X - | wait B C | hates B C", 1, "B");
        row("a VIP's partner counts three times", "ring X - | wait B C* | hates B C", 1, "C");
        row("a partner's own weight does not count",
            "ring X - | wait C D B* | loves C B | loves C X | dislikes D X", 1, "C");
        row("a single candidate", "ring X - | wait B | hates B X", 1, "B");
        row("nobody", "ring X - | wait B!", 1, "nobody");
    }
    void theBestGuestForASeat()
    {
        QFETCH(const QString, drawing);
        QFETCH(const int, seat);
        const KWDocument plan = drawnPlan(drawing);
        QTEST(nameOf(plan.bestGuestForSeat(plan.tableAt(0), seat)), "best");
    }

    void theBestGuestIsNotDrawnByLot()
    {
        const KWDocument plan = drawnPlan("ring X - | wait A B C");
        QCOMPARE(draws([&] { plan.bestGuestForSeat(plan.tableAt(0), 1); }), 0);
    }

    void theBestGuestAgreesWithTheRuleOnRandomPlans_data() { addRandomPlans(); }
    void theBestGuestAgreesWithTheRuleOnRandomPlans()
    {
        QFETCH(const RandomPlan, shape);
        KWDocument plan;
        fillRandomly(plan, shape);
        const FixedSeed seed(shape.seed);
        int seats = 0;
        int lastSeats = 0;
        for (const int waiting : {1, 2, 3, 10, shape.guests / 2, shape.guests}) {
            plan.randomLayout();
            unseatSome(plan, waiting, shape.seed);
            for (const KWTable *table : plan.tables()) {
                for (int seat = 0; seat < table->seatCount(); ++seat) {
                    if (table->guest(seat))
                        continue;
                    QCOMPARE(nameOf(plan.bestGuestForSeat(table, seat)),
                             nameOf(naiveBestGuest(plan, table, seat)));
                    ++seats;
                    lastSeats += seat == table->seatCount() - 1 ? 1 : 0;
                }
            }
        }
        QVERIFY(seats > shape.seats);
        QVERIFY(lastSeats > 0);
    }

private:
    static void addRandomPlans()
    {
        QTest::addColumn<RandomPlan>("shape");
        for (unsigned seed = 1; seed <= 6; ++seed) {
            QTest::addRow("room for all %u", seed) << RandomPlan{.seed = seed};
            QTest::addRow("many wishes %u", seed) << RandomPlan{.wishes = 600, .seed = seed};
            QTest::addRow("few seats %u", seed)
                << RandomPlan{.seats = 30, .wishes = 200, .locked = 8, .seed = seed};
            QTest::addRow("many locked %u", seed)
                << RandomPlan{.guests = 30, .seats = 40, .locked = 20, .seed = seed};
        }
    }
};

REGISTER_TEST(TestDocumentLayout)
#include "tst_kwdocument_layout.moc"
