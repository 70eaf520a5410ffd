#include "core/model/kwdocument.h"
#include "core/model/kwseatrule.h"

#include <numeric>

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
    const KWSeatRule rule(*table, seat);
    KWSeatScore score{};
    score[KWScore::AloneEntry] = rule.alonePoints(*guest);
    score[KWScore::GenderEntry] = rule.genderPoints(*guest);
    // Only wishes give points, so the guest's wishes are walked and not the table's seats.
    for (const auto &wish : m_affinities.wishesOf(guest->m_wishId)) {
        const int entry = KWScore::entryOf(wish.value);
        const KWGuest *other = guestOfWish(wish.other);
        if (entry >= 0 && other->m_table == table)
            score[static_cast<std::size_t>(entry)] += rule.wishPoints(*guest, *other, wish.value);
    }
    score[KWScore::TotalEntry] =
        std::accumulate(score.begin(), score.begin() + KWScore::TotalEntry, 0);
    return score;
}
