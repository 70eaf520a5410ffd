#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QList>

class KWDocument;
class KWGuest;
class KWTable;
class QObject;

/// What a drop of guests on a seat, on a table or outside would do to the seating, to be shown
/// before it is done: who would sit where, and who would have to give way. Knows no pane. It is
/// good until the plan changes.
///
/// The first guest takes the seat, the others go on round the table. Locks count for the seat under
/// the pointer only: further on, and on a full table, a locked guest may lose the seat.
class KWGuestDrop
{
    Q_DECLARE_TR_FUNCTIONS(KWGuestDrop)

public:
    /// A seat that would be taken. `losesLocked` if a locked guest sits there who would not stay.
    struct Seat
    {
        KWTable *table;
        int seat;
        bool losesLocked;

        bool operator==(const Seat &) const = default;
    };

    /// A drop where nothing can be dropped.
    KWGuestDrop() = default;
    /// The guests in the order in which they take seats. The plan and what is in it are not owned.
    static KWGuestDrop onSeat(KWDocument *plan, const QList<KWGuest *> &guests, KWTable *table,
                              int seat);
    /// Begins at the first seat of the longest gap.
    static KWGuestDrop onTable(KWDocument *plan, const QList<KWGuest *> &guests, KWTable *table);
    /// Takes their seats from them.
    static KWGuestDrop outside(KWDocument *plan, const QList<KWGuest *> &guests);

    /// Whether a drag may be dropped there. Too many guests for a table may, and are told so.
    bool isAccepted() const { return m_isAccepted; }
    const QList<KWGuest *> &guests() const { return m_guests; }
    /// Whether anybody would sit elsewhere than now.
    bool changesSeating() const;
    QList<Seat> seats() const;
    /// For the status bar: "Ann: seat 4 of Top table; Bob loses the seat". Also says why nothing
    /// can be dropped, where a lock is the reason.
    QString description() const;

    /// Does it: one undo point and one rescore, or neither where nothing changes. A refusal that
    /// has a message shows it as soon as the drag is over, if `receiver` is there then. False if
    /// nothing was taken, which is so for no guests, too.
    bool perform(QObject *receiver) const;

private:
    struct Place
    {
        KWTable *table = nullptr;
        int seat = -1;

        bool operator==(const Place &) const = default;
        friend size_t qHash(const Place &place, size_t seed = 0)
        {
            return qHashMulti(seed, place.table, place.seat);
        }
    };
    /// A guest who would not stay where they are. No table means no seat.
    struct Move
    {
        KWGuest *guest;
        Place from;
        Place to;
    };
    class Seating;

    KWGuestDrop(KWDocument *plan, const QList<KWGuest *> &guests);
    void seatFrom(KWTable *table, int start);
    bool isTooMany() const;
    QString guestsText() const;
    QString otherText(const Move &move) const;

    KWDocument *m_plan = nullptr;
    QList<KWGuest *> m_guests;
    /// Null for a drop outside.
    KWTable *m_table = nullptr;
    int m_start = 0;
    bool m_isAccepted = false;
    /// Why nothing can be dropped; empty if that is seen.
    QString m_refusal;
    /// The guests of the drag first, then the others.
    QList<Move> m_moves;
};
