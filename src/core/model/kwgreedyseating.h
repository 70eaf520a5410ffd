#pragma once

#include <QList>

#include <vector>

class KWDocument;
class KWGuest;
class KWSeatRule;
class KWTable;

/// The guests who wait for a seat, and which of them suits one best: how the automatic layout gets
/// its first candidates. Whoever is seated must be taken off by take().
class KWGreedySeating
{
public:
    /// Those of a plan who are neither seated nor locked. The plan is not owned.
    explicit KWGreedySeating(const KWDocument &plan);

    /// Turns everybody out who is not locked and seats as many as there are seats for: each table
    /// gets one guest by chance and grows greedily around that guest. Rescores.
    static void seatEverybody(KWDocument &plan);

    int waitingCount() const { return static_cast<int>(m_waiting.size()); }
    /// One of those who wait, by chance; null, without a draw, if nobody does.
    KWGuest *anyGuest() const;
    /// The one whom the seat suits best, the earliest of equals; null if nobody waits.
    KWGuest *bestGuestFor(const KWTable &table, int seat);
    void take(KWGuest *guest) { m_waiting.removeOne(guest); }

private:
    void fill(KWDocument &plan, KWTable *table);
    void addWishPoints(const KWTable &table, const KWSeatRule &rule, int sign);
    int bestPartner(const KWGuest &guest) const;

    const KWDocument &m_plan;
    /// In the order of the plan's list.
    QList<KWGuest *> m_waiting;
    /// What wishes are worth on the seat at hand to each guest, by wish number; else all 0.
    std::vector<int> m_points;
};
