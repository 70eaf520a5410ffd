#include "kwdocument.h"

#include <numeric>

namespace {
double weightOf(const KWGuest *guest)
{
    return guest->isVip() ? KWScore::vipWeight : KWScore::plainWeight;
}

bool alternate(const KWGuest *a, const KWGuest *b)
{
    return a->gender() != KWGuest::Undefined && b->gender() != KWGuest::Undefined &&
           a->gender() != b->gender();
}

struct Neighbours
{
    KWGuest *left;
    KWGuest *right;
};

/// Seats form a ring, or a line at a head table; an empty seat is no neighbour.
Neighbours neighboursOf(const KWTable *table, int seat)
{
    const int last = table->seatCount() - 1;
    const bool head = table->isHead();
    return {seat == 0 ? (head ? nullptr : table->guest(last)) : table->guest(seat - 1),
            seat == last ? (head ? nullptr : table->guest(0)) : table->guest(seat + 1)};
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
    for (KWTable *table : m_tables)
        scoreTable(table);
    emit eventScoreChange();
}

void KWDocument::scoreTable(KWTable *table)
{
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
    KWSeatScore score{};
    const double weight = weightOf(guest);
    const auto [left, right] = neighboursOf(table, seat);
    if (!left && !right)
        score[KWScore::AloneEntry] = KWScore::rounded(KWScore::alone * weight);

    for (const KWGuest *neighbour : {right, left}) {
        if (neighbour && alternate(guest, neighbour))
            score[KWScore::GenderEntry] += KWScore::rounded(KWScore::genderAlternation * weight);
    }

    // Only wishes give points, so the guest's wishes are walked and not the table's seats.
    for (const auto &wish : m_affinities.wishesOf(guest->m_wishId)) {
        const int entry = KWScore::entryOf(wish.value);
        const KWGuest *other = guestOfWish(wish.other);
        if (entry < 0 || other->m_table != table)
            continue;
        // On a ring of two, the other guest is the neighbour on both sides.
        const int sides = (other == right ? 1 : 0) + (other == left ? 1 : 0);
        int &points = score[static_cast<std::size_t>(entry)];
        if (sides > 0)
            points += sides * KWScore::rounded(KWScore::nextTo[wish.value] * weight);
        else if (other != guest)
            points += KWScore::rounded(KWScore::sameTable[wish.value] * weight);
    }
    score[KWScore::TotalEntry] =
        std::accumulate(score.begin(), score.begin() + KWScore::TotalEntry, 0);
    return score;
}
