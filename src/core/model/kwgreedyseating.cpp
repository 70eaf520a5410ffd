#include "core/model/kwgreedyseating.h"

#include "core/model/kwdocument.h"
#include "core/model/kwrandom.h"
#include "core/model/kwseatrule.h"

#include <algorithm>

namespace {
/// Below any value that a seat can have.
constexpr int worstValue = -99999;
/// Below anything that a waiting partner can be worth.
constexpr int noPartner = -999;
} // namespace

KWGreedySeating::KWGreedySeating(const KWDocument &plan)
    : m_plan(plan)
    , m_waiting(plan.unseatedUnlockedGuests())
    , m_points(static_cast<std::size_t>(plan.m_guestOfWishId.size()))
{
}

void KWGreedySeating::seatEverybody(KWDocument &plan)
{
    for (KWTable *table : plan.tables()) {
        for (int seat = 0; seat < table->seatCount(); ++seat) {
            if (!plan.seatHoldsLockedGuest(table, seat))
                plan.unassignGuest(table->guest(seat), false);
        }
    }
    KWGreedySeating seating(plan);
    for (KWTable *table : plan.shuffledTables())
        seating.fill(plan, table);
    plan.recalculateScores();
}

void KWGreedySeating::fill(KWDocument &plan, KWTable *table)
{
    const int limit = std::min(table->seatCount(), waitingCount());
    int placed = 0;
    for (int seat = 0; seat < table->seatCount() && placed < limit; ++seat) {
        if (plan.seatHoldsLockedGuest(table, seat))
            continue;
        KWGuest *guest = placed == 0 ? anyGuest() : bestGuestFor(*table, seat);
        plan.assignGuest(guest, table, seat, false);
        take(guest);
        ++placed;
    }
}

KWGuest *KWGreedySeating::anyGuest() const
{
    return m_waiting.isEmpty() ? nullptr : m_waiting.at(randomNumber(waitingCount()));
}

KWGuest *KWGreedySeating::bestGuestFor(const KWTable &table, int seat)
{
    // The last seat can have no further neighbour, so a guest with a good partner waiting is
    // kept for another table.
    const bool lastSeat = seat == table.seatCount() - 1;
    const KWSeatRule rule(table, seat);
    // Whoever waits longest, should nobody come up to even the worst value.
    KWGuest *bestGuest = m_waiting.value(0);
    int best = worstValue;
    addWishPoints(table, rule, +1);
    for (KWGuest *guest : std::as_const(m_waiting)) {
        int value = rule.alonePoints(*guest) + rule.genderPoints(*guest) +
                    m_points[static_cast<std::size_t>(guest->m_wishId)];
        if (lastSeat)
            value -= bestPartner(*guest);
        if (value > best) {
            best = value;
            bestGuest = guest;
        }
    }
    addWishPoints(table, rule, -1);
    return bestGuest;
}

/// Adds what the wishes of the table's guests are worth to others on the seat, or with a sign of
/// -1 takes the same away.
void KWGreedySeating::addWishPoints(const KWTable &table, const KWSeatRule &rule, int sign)
{
    // Few sit at the table and many wait, so the wishes are walked from those who sit.
    for (const KWGuest *other : table.seats()) {
        if (!other)
            continue;
        for (const auto &wish : m_plan.m_affinities.wishesOf(other->m_wishId)) {
            if (KWScore::entryOf(wish.value) >= 0)
                m_points[static_cast<std::size_t>(wish.other)] +=
                    sign * rule.wishPoints(*m_plan.guestOfWish(wish.other), *other, wish.value);
        }
    }
}

/// The most that any other guest who waits would be worth as the guest's neighbour.
int KWGreedySeating::bestPartner(const KWGuest &guest) const
{
    const double weight = KWScore::weight(guest.isVip());
    int neutral = waitingCount() - 1;
    int best = noPartner;
    for (const auto &wish : m_plan.m_affinities.wishesOf(guest.m_wishId)) {
        const KWGuest *other = m_plan.guestOfWish(wish.other);
        if (other == &guest || other->m_table || other->isLocked() ||
            KWScore::entryOf(wish.value) < 0)
            continue;
        --neutral;
        best = std::max(best, static_cast<int>(KWScore::nextTo[wish.value] * weight));
    }
    return neutral > 0 ? std::max(best, 0) : best;
}
