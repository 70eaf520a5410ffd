#include "gui/exchange/kwguestdrop.h"

#include "core/model/kwdocument.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"

#include <QStringList>
#include <QTimer>

#include <algorithm>

namespace {

/// A status bar has a line only.
QString shortName(const KWGuest &guest)
{
    constexpr qsizetype longest = 40;
    const QString name = guest.displayName().simplified();
    return name.size() <= longest ? name : name.first(longest - 1).trimmed() + u'…';
}
} // namespace

/// The seating as it would be: tries KWDocument::assignGuest() and unassignGuest() out.
class KWGuestDrop::Seating
{
public:
    explicit Seating(const KWDocument &plan)
        : m_plan(plan)
    {
    }

    KWGuest *guestAt(const Place &place) const
    {
        const auto it = m_guests.constFind(place);
        return it != m_guests.constEnd() ? it.value() : place.table->guest(place.seat);
    }

    Place placeOf(KWGuest *guest) const
    {
        const auto it = m_places.constFind(guest);
        return it != m_places.constEnd() ? it.value() : placeNow(guest);
    }

    Place placeNow(const KWGuest *guest) const
    {
        Place place;
        m_plan.findGuest(guest, &place.table, &place.seat);
        return place;
    }

    void assign(KWGuest *guest, const Place &place)
    {
        const Place old = placeOf(guest);
        KWGuest *occupant = guestAt(place);
        put(guest, place);
        if (occupant == guest)
            return;
        if (occupant)
            put(occupant, old);
        else if (old.table)
            m_guests.insert(old, nullptr);
    }

    void unassign(KWGuest *guest) { put(guest, {}); }

    /// All who would sit elsewhere, `first` before the others.
    QList<Move> moves(const QList<KWGuest *> &first) const
    {
        QList<KWGuest *> touched;
        for (KWGuest *guest : first + m_order) {
            if (!touched.contains(guest))
                touched.append(guest);
        }
        QList<Move> moves;
        for (KWGuest *guest : touched) {
            const Move move{guest, placeNow(guest), placeOf(guest)};
            if (!(move.from == move.to))
                moves.append(move);
        }
        return moves;
    }

private:
    void put(KWGuest *guest, const Place &place)
    {
        m_places.insert(guest, place);
        m_order.append(guest);
        if (place.table)
            m_guests.insert(place, guest);
    }

    const KWDocument &m_plan;
    QHash<KWGuest *, Place> m_places;
    QHash<Place, KWGuest *> m_guests;
    QList<KWGuest *> m_order;
};

KWGuestDrop::KWGuestDrop(KWDocument *plan, const QList<KWGuest *> &guests)
    : m_plan(plan)
    , m_guests(guests)
{
}

KWGuestDrop KWGuestDrop::onSeat(KWDocument *plan, const QList<KWGuest *> &guests, KWTable *table,
                                int seat)
{
    KWGuestDrop drop(plan, guests);
    if (plan->seatHoldsLockedGuest(table, seat))
        drop.m_refusal = tr("%1 is locked").arg(shortName(*table->guest(seat)));
    else
        drop.seatFrom(table, seat);
    return drop;
}

KWGuestDrop KWGuestDrop::onTable(KWDocument *plan, const QList<KWGuest *> &guests, KWTable *table)
{
    KWGuestDrop drop(plan, guests);
    if (plan->allSeatsLocked(table))
        drop.m_refusal = tr("All guests of %1 are locked").arg(table->name().simplified());
    else
        drop.seatFrom(table, table->firstSeatOfLargestGap());
    return drop;
}

KWGuestDrop KWGuestDrop::outside(KWDocument *plan, const QList<KWGuest *> &guests)
{
    KWGuestDrop drop(plan, guests);
    drop.m_isAccepted = true;
    Seating seating(*plan);
    for (KWGuest *guest : guests)
        seating.unassign(guest);
    drop.m_moves = seating.moves(guests);
    return drop;
}

void KWGuestDrop::seatFrom(KWTable *table, int start)
{
    m_isAccepted = true;
    m_table = table;
    m_start = start;
    if (isTooMany())
        return;
    Seating seating(*m_plan);
    for (qsizetype i = 0; i < m_guests.size(); ++i)
        seating.assign(m_guests[i], {table, static_cast<int>(start + i) % table->seatCount()});
    m_moves = seating.moves(m_guests);
}

bool KWGuestDrop::isTooMany() const
{
    return m_table && m_guests.size() > m_table->seatCount();
}

bool KWGuestDrop::changesSeating() const
{
    return !m_moves.isEmpty();
}

QList<KWGuestDrop::Seat> KWGuestDrop::seats() const
{
    QList<Seat> seats;
    if (!m_table || isTooMany())
        return seats;
    for (qsizetype i = 0; i < m_guests.size(); ++i) {
        const Place place{m_table, static_cast<int>(m_start + i) % m_table->seatCount()};
        const bool losesLocked =
            std::any_of(m_moves.begin(), m_moves.end(), [&place](const Move &move) {
                return move.from == place && move.guest->isLocked();
            });
        seats.append({place.table, place.seat, losesLocked});
    }
    return seats;
}

QString KWGuestDrop::description() const
{
    if (!m_isAccepted)
        return m_refusal;
    if (m_guests.isEmpty())
        return {};
    if (isTooMany())
        return tr("Too many guests for table");
    // What a person would least expect comes first, since the end may not be seen.
    constexpr qsizetype most = 3;
    QStringList locked;
    QStringList others;
    for (const Move &move : m_moves) {
        if (m_table && m_guests.contains(move.guest))
            continue;
        (move.guest->isLocked() ? locked : others).append(otherText(move));
    }
    QStringList texts = locked + others;
    const qsizetype left = texts.size() - most;
    if (left > 0)
        texts = texts.first(most) << tr("and %1 more").arg(left);
    if (m_table)
        texts.prepend(guestsText());
    else if (texts.isEmpty())
        texts.append(tr("No seat is lost"));
    return texts.join(QStringLiteral("; "));
}

/// The guests of the drag and the seats that they would take.
QString KWGuestDrop::guestsText() const
{
    const QString table = m_table->name().simplified();
    const QString first = QString::number(m_start + 1);
    if (m_guests.size() == 1)
        return tr("%1: seat %2 of %3").arg(shortName(*m_guests.first()), first, table);
    const qsizetype last = (m_start + m_guests.size() - 1) % m_table->seatCount() + 1;
    return tr("%1 guests: seats %2 to %3 of %4")
        .arg(QString::number(m_guests.size()), first, QString::number(last), table);
}

/// What would become of somebody whose seat is taken.
QString KWGuestDrop::otherText(const Move &move) const
{
    const QString name = shortName(*move.guest);
    if (move.guest->isLocked())
        return tr("%1 is locked and would lose the seat").arg(name);
    if (!move.to.table)
        return tr("%1 loses the seat").arg(name);
    for (const Move &other : m_moves) {
        if (other.to == move.from && other.from == move.to)
            return tr("%1 changes places with %2").arg(name, shortName(*other.guest));
    }
    return tr("%1 moves to seat %2 of %3")
        .arg(name, QString::number(move.to.seat + 1), move.to.table->name().simplified());
}

bool KWGuestDrop::perform(QObject *receiver) const
{
    if (!m_isAccepted || m_guests.isEmpty())
        return false;
    if (isTooMany()) {
        // Not while the one who drags waits for the end of it.
        QTimer::singleShot(0, receiver,
                           [] { errorBox(tr("Too many guests for table"), tr("&OK")); });
        return false;
    }
    if (!changesSeating())
        return true;
    if (KWMainWindow *window = mainWin())
        window->saveUndoState(tr("Drag guest(s)"));
    for (qsizetype i = 0; i < m_guests.size(); ++i) {
        if (m_table)
            m_plan->assignGuest(m_guests[i], m_table,
                                static_cast<int>(m_start + i) % m_table->seatCount(), false);
        else
            m_plan->unassignGuest(m_guests[i], false);
    }
    m_plan->recalculateScores();
    return true;
}
