#include "core/autolayout/kwmutations.h"

#include "core/model/kwdocument.h"
#include "core/model/kwrandom.h"

#include <algorithm>

namespace {
struct Seat
{
    KWTable *table = nullptr;
    int number = -1;

    KWGuest *guest() const { return table->guest(number); }
};

/// The guest's seat; false if the guest is on none.
bool find(const KWDocument &document, const KWGuest *guest, Seat &seat)
{
    return document.findGuest(guest, &seat.table, &seat.number);
}

void assign(KWDocument &document, KWGuest *guest, const Seat &seat)
{
    document.assignGuest(guest, seat.table, seat.number, false);
}

struct Roles
{
    KWGuest *mover;
    KWGuest *anchor;
};

/// An empty seat drawn by chance, or none. The draws have an end, since chance never comes to some
/// tables of a plan that has more than it has numbers.
Seat drawEmptySeat(const KWDocument &document)
{
    constexpr int mostDraws = 200'000;
    for (int draw = 0; draw < mostDraws; ++draw) {
        Seat seat{document.tableAt(randomNumber(document.tableCount()))};
        if (seat.table->emptySeatCount() == 0)
            continue;
        do {
            seat.number = randomNumber(seat.table->seatCount());
        } while (seat.guest());
        return seat;
    }
    return {};
}

/// Walks the pairs with a proximity value round from one drawn by chance, the roles in each drawn
/// by chance too, until `move` succeeds for one.
template <typename Move>
bool forPairs(const KWDocument &document, int value, Move move)
{
    const QList<KWDocument::GuestPair> pairs = document.proximityPairs(value);
    const auto count = static_cast<int>(pairs.size());
    if (count == 0)
        return false;
    const int start = randomNumber(count);
    for (int i = 0; i < count; ++i) {
        const auto &pair = pairs.at((start + i) % count);
        const bool firstMoves = randomNumber(2) == 0;
        if (move(firstMoves ? Roles{pair.first, pair.second} : Roles{pair.second, pair.first}))
            return true;
    }
    return false;
}

/// A seat beside another, drawn by chance where there are two. A head table of one seat has none:
/// the result is then a seat that does not exist.
Seat seatBeside(const Seat &seat)
{
    const int count = seat.table->seatCount();
    const bool head = seat.table->isHead();
    if (head && seat.number == 0)
        return {seat.table, 1};
    if (head && seat.number == count - 1)
        return {seat.table, seat.number - 1};
    if (randomNumber(2) == 0)
        return {seat.table, (seat.number + 1) % count};
    return {seat.table, seat.number == 0 ? count - 1 : seat.number - 1};
}
} // namespace

namespace KWMutations {

bool mutateGuest(KWDocument &child)
{
    const int index = randomNumber(child.guestCount());
    KWGuest *guest = child.guestAt(index);
    Seat seat;
    if (guest->isLocked() || !find(child, guest, seat))
        return false;
    KWGuest *other = child.guestAt(otherRandomNumber(child.guestCount(), index));
    if (other->isLocked())
        return false;
    assign(child, other, seat);
    child.appendHistory(QStringLiteral("GuestM"));
    return true;
}

bool mutateMultiGuest(KWDocument &child)
{
    const KWGuest *guest = child.guestAt(randomNumber(child.guestCount()));
    Seat a;
    if (guest->isLocked() || !find(child, guest, a))
        return false;
    Seat b;
    b.table = child.tableAt(otherRandomNumber(child.tableCount(), child.indexOfTable(a.table)));
    const int most = std::min(a.table->seatedCount(), b.table->seatedCount());
    if (most < 2)
        return false;
    const int length = randomNumber(most - 1) + 2;
    b.number = randomNumber(b.table->seatCount());

    bool moved = false;
    for (int i = 0; i < length; ++i) {
        const Seat from{a.table, (a.number + i) % a.table->seatCount()};
        const Seat to{b.table, (b.number + i) % b.table->seatCount()};
        if (!from.guest() || from.guest()->isLocked() ||
            child.seatHoldsLockedGuest(to.table, to.number))
            continue;
        assign(child, from.guest(), to);
        moved = true;
    }
    if (moved)
        child.appendHistory(QStringLiteral("MultiGuestM"));
    return moved;
}

bool mutateMember(KWDocument &child)
{
    const KWGroup *group = child.groupAt(randomNumber(child.groupCount()));
    if (group->guestCount() < 2)
        return false;
    const int index = randomNumber(group->guestCount());
    const KWGuest *member = group->guestAt(index);
    Seat seat;
    if (member->isLocked() || !find(child, member, seat))
        return false;
    KWGuest *other = group->guestAt(otherRandomNumber(group->guestCount(), index));
    if (other->isLocked())
        return false;
    assign(child, other, seat);
    child.appendHistory(QStringLiteral("MemberM"));
    return true;
}

bool mutateEmpty(KWDocument &child)
{
    const Seat seat = drawEmptySeat(child);
    if (!seat.table)
        return false;
    KWGuest *guest = child.guestAt(randomNumber(child.guestCount()));
    if (guest->isLocked())
        return false;
    assign(child, guest, seat);
    child.appendHistory(QStringLiteral("EmptyM"));
    return true;
}

bool mutateTogether(KWDocument &child, int value)
{
    return forPairs(child, value, [&](const Roles &pair) {
        Seat anchor;
        if (pair.mover->isLocked() || !find(child, pair.anchor, anchor))
            return false;
        const Seat beside = seatBeside(anchor);
        const KWGuest *occupant = beside.guest();
        if (!occupant || occupant->isLocked() || occupant == pair.mover)
            return false;
        assign(child, pair.mover, beside);
        return true;
    });
}

bool mutateApart(KWDocument &child, int value)
{
    return forPairs(child, value, [&](const Roles &pair) {
        Seat mover;
        Seat anchor;
        if (pair.mover->isLocked() || !find(child, pair.mover, mover) ||
            !find(child, pair.anchor, anchor) || mover.table != anchor.table)
            return false;
        Seat seat;
        seat.table =
            child.tableAt(otherRandomNumber(child.tableCount(), child.indexOfTable(mover.table)));
        if (seat.table->seatCount() == 0)
            return false;
        seat.number = randomNumber(seat.table->seatCount());
        if (child.seatHoldsLockedGuest(seat.table, seat.number))
            return false;
        assign(child, pair.mover, seat);
        return true;
    });
}

bool crossoverTable(const KWDocument &first, KWDocument &child)
{
    const int count = first.tableCount();
    const int start = randomNumber(count);
    for (int i = 0; i < count; ++i) {
        const int index = (start + i) % count;
        const KWTable *source = first.tableAt(index);
        if (source->seatedCount() == 0 || first.tableHasLockedGuest(source))
            continue;
        for (int seat = 0; seat < source->seatCount(); ++seat) {
            if (const KWGuest *guest = source->guest(seat))
                assign(child, child.guestAt(first.indexOfGuest(guest)),
                       {child.tableAt(index), seat});
        }
        child.appendHistory(QStringLiteral("crossover"));
        return true;
    }
    return false;
}

} // namespace KWMutations
