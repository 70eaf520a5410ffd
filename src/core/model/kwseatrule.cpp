#include "core/model/kwseatrule.h"

#include "core/model/kwguest.h"
#include "core/model/kwscore.h"
#include "core/model/kwtable.h"

namespace {
double weightOf(const KWGuest &guest)
{
    return KWScore::weight(guest.isVip());
}

bool alternate(const KWGuest &guest, const KWGuest *neighbour)
{
    return neighbour && guest.gender() != KWGuest::Undefined &&
           neighbour->gender() != KWGuest::Undefined && guest.gender() != neighbour->gender();
}
} // namespace

KWSeatRule::KWSeatRule(const KWTable &table, int seat)
    : m_left(table.leftNeighbour(seat))
    , m_right(table.rightNeighbour(seat))
{
}

int KWSeatRule::alonePoints(const KWGuest &guest) const
{
    return m_left || m_right ? 0 : KWScore::rounded(KWScore::alone * weightOf(guest));
}

int KWSeatRule::genderPoints(const KWGuest &guest) const
{
    const int sides = (alternate(guest, m_left) ? 1 : 0) + (alternate(guest, m_right) ? 1 : 0);
    return sides * KWScore::rounded(KWScore::genderAlternation * weightOf(guest));
}

int KWSeatRule::wishPoints(const KWGuest &guest, const KWGuest &other, int proximity) const
{
    // On a ring of two the other guest is the neighbour on both sides, and on a ring of one the
    // guest is.
    const int sides = (&other == m_left ? 1 : 0) + (&other == m_right ? 1 : 0);
    if (sides > 0)
        return sides * KWScore::rounded(KWScore::nextTo[proximity] * weightOf(guest));
    return &other == &guest ? 0 : KWScore::rounded(KWScore::sameTable[proximity] * weightOf(guest));
}
