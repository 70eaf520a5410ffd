#include "core/charts/kwwishes.h"

#include <algorithm>

namespace {
KWWish::Seating seatingOf(const KWDocument &plan, const KWGuest *first, const KWGuest *second)
{
    const bool firstSeated = plan.findGuest(first);
    const bool secondSeated = plan.findGuest(second);
    if (!firstSeated || !secondSeated)
        return firstSeated    ? KWWish::SecondUnseated
               : secondSeated ? KWWish::FirstUnseated
                              : KWWish::BothUnseated;
    if (!plan.atSameTable(first, second))
        return KWWish::AtDifferentTables;
    return plan.isNextTo(first, second) ? KWWish::SideBySide : KWWish::AtOneTable;
}

bool isMet(int value, KWWish::Seating seating)
{
    const bool sideBySide = seating == KWWish::SideBySide;
    const bool oneTable = sideBySide || seating == KWWish::AtOneTable;
    switch (value) {
    case KWScore::Loves:
        return sideBySide;
    case KWScore::Likes:
        return oneTable;
    case KWScore::Dislikes:
        return !sideBySide;
    default:
        return !oneTable;
    }
}

/// What a wish brings to one guest's seat.
int pointsAt(const KWDocument &plan, const KWGuest *guest, const KWGuest *other, int value)
{
    KWTable *table = nullptr;
    int seat = -1;
    if (!plan.atSameTable(guest, other) || !plan.findGuest(guest, &table, &seat))
        return 0;
    const double weight = KWScore::weight(guest->isVip());
    // On a ring of two the other guest sits on both sides.
    const int sides = (table->leftNeighbour(seat) == other ? 1 : 0) +
                      (table->rightNeighbour(seat) == other ? 1 : 0);
    const auto index = static_cast<std::size_t>(value);
    return sides > 0 ? sides * KWScore::rounded(KWScore::nextTo[index] * weight)
                     : KWScore::rounded(KWScore::sameTable[index] * weight);
}
} // namespace

QString KWWish::wanted(const NameOf &nameOf) const
{
    const auto text = [&](const QString &pattern) {
        return pattern.arg(nameOf(*first), nameOf(*second));
    };
    switch (value) {
    case KWScore::Loves:
        return text(tr("%1 should sit next to %2"));
    case KWScore::Likes:
        return text(tr("%1 should sit near %2"));
    case KWScore::Dislikes:
        return text(tr("%1 should not sit next to %2"));
    default:
        return text(tr("%1 should not sit near %2"));
    }
}

QString KWWish::found(const NameOf &nameOf) const
{
    switch (seating) {
    case SideBySide:
        return tr("they sit side by side");
    case AtOneTable:
        // Who should sit side by side has to be told that one table is not enough.
        return value == KWScore::Loves ? tr("they are at one table, not side by side")
                                       : tr("they are at one table");
    case AtDifferentTables:
        return tr("they are at different tables");
    case FirstUnseated:
        return tr("%1 has no seat").arg(nameOf(*first));
    case SecondUnseated:
        return tr("%1 has no seat").arg(nameOf(*second));
    default:
        return tr("neither has a seat");
    }
}

QString KWWish::sentence(const NameOf &nameOf) const
{
    return isMet ? wanted(nameOf) : tr("%1, but %2").arg(wanted(nameOf), found(nameOf));
}

QList<KWWish> KWWish::all(const KWDocument &plan)
{
    QList<KWWish> wishes;
    const QList<KWDocument::Affinity> stored = plan.affinities();
    wishes.reserve(stored.size());
    for (const auto &[first, second, value] : stored) {
        if (first == second || KWScore::entryOf(value) < 0)
            continue;
        const Seating seating = seatingOf(plan, first, second);
        const int points =
            pointsAt(plan, first, second, value) + pointsAt(plan, second, first, value);
        wishes.append({first, second, value, seating, ::isMet(value, seating), points});
    }
    return wishes;
}

int KWWish::unmetCount(const QList<KWWish> &wishes)
{
    return static_cast<int>(
        std::ranges::count_if(wishes, [](const KWWish &wish) { return !wish.isMet; }));
}

QString KWWish::unmetText(const QList<KWWish> &wishes)
{
    const int unmet = unmetCount(wishes);
    if (wishes.isEmpty())
        return tr("There are no wishes");
    if (unmet == 0)
        return wishes.size() == 1 ? tr("The wish is met")
                                  : tr("All %1 wishes are met").arg(wishes.size());
    if (wishes.size() == 1)
        return tr("The wish is not met");
    return unmet == 1 ? tr("1 of %1 wishes is not met").arg(wishes.size())
                      : tr("%1 of %2 wishes are not met").arg(unmet).arg(wishes.size());
}

QString KWWish::unseatedText(const KWDocument &plan)
{
    switch (const int count = plan.unseatedGuestCount(true)) {
    case 0:
        return tr("Every guest has a seat");
    case 1:
        return tr("1 guest has no seat");
    default:
        return tr("%1 guests have no seat").arg(count);
    }
}
