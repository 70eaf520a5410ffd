#include "core/model/kwdocument.h"

#include <numeric>

namespace {
/// What a guest's neighbour brings the guest: nothing without one.
int genderPoints(const KWGuest *guest, const KWGuest *neighbour, double weight)
{
    const bool alternate = neighbour && guest->gender() != KWGuest::Undefined &&
                           neighbour->gender() != KWGuest::Undefined &&
                           guest->gender() != neighbour->gender();
    return alternate ? KWScore::rounded(KWScore::genderAlternation * weight) : 0;
}

int alonePoints(const KWGuest *left, const KWGuest *right, double weight)
{
    return left || right ? 0 : KWScore::rounded(KWScore::alone * weight);
}

/// What a wish is worth to a guest between `left` and `right` for another guest of the table. On a
/// ring of two, the other guest is the neighbour on both sides.
int wishPoints(int value, const KWGuest *other, const KWGuest *left, const KWGuest *right,
               double weight)
{
    const int sides = (other == right ? 1 : 0) + (other == left ? 1 : 0);
    return sides > 0 ? sides * KWScore::rounded(KWScore::nextTo[value] * weight)
                     : KWScore::rounded(KWScore::sameTable[value] * weight);
}
} // namespace

int KWDocument::affinity(const KWGuest *a, const KWGuest *b) const
{
    if (!m_guests.contains(a) || !m_guests.contains(b))
        return KWScore::Neutral;
    return m_affinities.value(a->m_wishId, b->m_wishId);
}

QList<KWDocument::GuestPair> KWDocument::proximityPairs(int value) const
{
    const auto pairs = m_affinities.pairs(value);
    QList<GuestPair> result;
    result.reserve(static_cast<qsizetype>(pairs.size()));
    for (const auto &pair : pairs)
        result.append(GuestPair(guestOfWish(pair.first), guestOfWish(pair.second)));
    return result;
}

QList<KWDocument::Affinity> KWDocument::affinities() const
{
    QList<Affinity> result;
    result.reserve(m_affinities.size());
    for (const auto &entry : m_affinities.entries())
        result.append({guestOfWish(entry.first), guestOfWish(entry.second), entry.value});
    return result;
}

void KWDocument::recalculateScores()
{
    for (KWTable *table : m_tables) {
        if (table->areScoresCurrent())
            emit eventScoreChange(table);
        else
            scoreTable(table);
    }
    emit eventScoreChange();
}

void KWDocument::scoreTable(KWTable *table)
{
    if (!m_tables.contains(table))
        return;
    QList<KWSeatScore> seatScores(table->seatCount(), KWSeatScore{});
    int score = 0;
    for (int seat = 0; seat < table->seatCount(); ++seat) {
        if (const KWGuest *guest = table->guest(seat)) {
            seatScores[seat] = seatContribution(table, seat, guest);
            score += seatScores[seat][KWScore::TotalEntry];
        }
    }
    table->setScores(seatScores, score);
    emit eventScoreChange(table);
}

int KWDocument::totalScore() const
{
    return std::accumulate(m_tables.begin(), m_tables.end(), 0,
                           [](int sum, const KWTable *table) { return sum + table->score(); });
}

int KWDocument::seatScore(const KWTable *table, int seat, int entry) const
{
    const QList<KWSeatScore> &scores = table->seatScores();
    if (seat < 0 || seat >= scores.size() || entry < 0 || entry >= KWScore::EntryCount)
        return 0;
    return scores.at(seat)[static_cast<std::size_t>(entry)];
}

KWSeatScore KWDocument::seatContribution(const KWTable *table, int seat, const KWGuest *guest) const
{
    const double weight = KWScore::weight(guest->isVip());
    const KWGuest *left = table->leftNeighbour(seat);
    const KWGuest *right = table->rightNeighbour(seat);
    KWSeatScore score{};
    score[KWScore::AloneEntry] = alonePoints(left, right, weight);
    score[KWScore::GenderEntry] =
        genderPoints(guest, right, weight) + genderPoints(guest, left, weight);
    // Only wishes give points, so the guest's wishes are walked and not the table's seats.
    for (const auto &wish : m_affinities.wishesOf(guest->m_wishId)) {
        const int entry = KWScore::entryOf(wish.value);
        const KWGuest *other = guestOfWish(wish.other);
        if (entry < 0 || other->m_table != table)
            continue;
        if (other != guest || other == left || other == right)
            score[static_cast<std::size_t>(entry)] +=
                wishPoints(wish.value, other, left, right, weight);
    }
    score[KWScore::TotalEntry] =
        std::accumulate(score.begin(), score.begin() + KWScore::TotalEntry, 0);
    return score;
}

int KWDocument::neighbourPoints(const KWTable *table, int seat, const KWGuest *guest) const
{
    const double weight = KWScore::weight(guest->isVip());
    const KWGuest *left = table->leftNeighbour(seat);
    const KWGuest *right = table->rightNeighbour(seat);
    return alonePoints(left, right, weight) + genderPoints(guest, right, weight) +
           genderPoints(guest, left, weight);
}

void KWDocument::addWishPoints(const KWTable *table, int seat, int sign,
                               std::vector<int> &points) const
{
    const KWGuest *left = table->leftNeighbour(seat);
    const KWGuest *right = table->rightNeighbour(seat);
    // Few sit at the table and many wait, so the wishes are walked from those who sit.
    for (const KWGuest *other : table->seats()) {
        if (!other)
            continue;
        for (const auto &wish : m_affinities.wishesOf(other->m_wishId)) {
            if (KWScore::entryOf(wish.value) >= 0)
                points[static_cast<std::size_t>(wish.other)] +=
                    sign * wishPoints(wish.value, other, left, right,
                                      KWScore::weight(guestOfWish(wish.other)->isVip()));
        }
    }
}
