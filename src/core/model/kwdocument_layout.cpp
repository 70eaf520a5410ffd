#include "core/model/kwdocument.h"
#include "core/model/kwrandom.h"

#include <algorithm>

namespace {
/// Below any value that a seat can have.
constexpr int worstValue = -99999;
/// Below anything that a waiting partner can be worth.
constexpr int noPartner = -999;

KWGuest *drawOne(const QList<KWGuest *> &guests)
{
    return guests.at(randomNumber(static_cast<int>(guests.size())));
}
} // namespace

void KWDocument::randomLayout()
{
    for (KWTable *table : m_tables) {
        for (int seat = 0; seat < table->seatCount(); ++seat) {
            if (!seatHoldsLockedGuest(table, seat))
                unassignGuest(table->guest(seat), false);
        }
    }
    QList<KWGuest *> waiting = unseatedUnlockedGuests();
    std::vector<int> points(static_cast<std::size_t>(m_guestOfWishId.size()));
    for (KWTable *table : shuffledTables()) {
        const int limit = std::min(table->seatCount(), static_cast<int>(waiting.size()));
        int placed = 0;
        bool first = true;
        for (int seat = 0; seat < table->seatCount() && placed < limit; ++seat) {
            if (seatHoldsLockedGuest(table, seat))
                continue;
            KWGuest *guest =
                first ? drawOne(waiting) : bestGuestForSeat(table, seat, waiting, points);
            first = false;
            assignGuest(guest, table, seat, false);
            waiting.removeOne(guest);
            ++placed;
        }
    }
    recalculateScores();
}

KWGuest *KWDocument::randomUnseatedGuest() const
{
    const QList<KWGuest *> waiting = unseatedUnlockedGuests();
    return waiting.isEmpty() ? nullptr : drawOne(waiting);
}

KWGuest *KWDocument::bestGuestForSeat(const KWTable *table, int seat) const
{
    std::vector<int> points(static_cast<std::size_t>(m_guestOfWishId.size()));
    return bestGuestForSeat(table, seat, unseatedUnlockedGuests(), points);
}

KWGuest *KWDocument::bestGuestForSeat(const KWTable *table, int seat,
                                      const QList<KWGuest *> &candidates,
                                      std::vector<int> &points) const
{
    // The last seat can have no further neighbour, so a guest with a good partner waiting is
    // kept for another table.
    const bool lastSeat = seat == table->seatCount() - 1;
    const auto count = static_cast<int>(candidates.size());
    // Whoever waits longest, should nobody come up to even the worst value.
    KWGuest *bestGuest = candidates.value(0);
    int best = worstValue;
    addWishPoints(table, seat, +1, points);
    for (KWGuest *guest : candidates) {
        int value =
            neighbourPoints(table, seat, guest) + points[static_cast<std::size_t>(guest->m_wishId)];
        if (lastSeat)
            value -= bestWaitingPartner(guest, count);
        if (value > best) {
            best = value;
            bestGuest = guest;
        }
    }
    addWishPoints(table, seat, -1, points);
    return bestGuest;
}

/// The most that any other guest who waits for a seat would be worth as the guest's neighbour.
int KWDocument::bestWaitingPartner(const KWGuest *guest, int candidateCount) const
{
    const double weight = KWScore::weight(guest->isVip());
    int neutral = candidateCount - 1;
    int best = noPartner;
    for (const auto &wish : m_affinities.wishesOf(guest->m_wishId)) {
        const KWGuest *other = guestOfWish(wish.other);
        if (other == guest || other->m_table || other->isLocked() ||
            KWScore::entryOf(wish.value) < 0)
            continue;
        --neutral;
        best = std::max(best, static_cast<int>(KWScore::nextTo[wish.value] * weight));
    }
    return neutral > 0 ? std::max(best, 0) : best;
}
