#include "core/model/kwsortedguestlist.h"

#include <algorithm>

KWSortedGuestList::KWSortedGuestList(int nameOrder)
    : m_name_order(nameOrder)
{
}

int KWSortedGuestList::compareItems(const KWGuest *a, const KWGuest *b) const
{
    const QString first = key(a);
    const QString second = key(b);
    if (first == second)
        return 0;
    return first > second ? 1 : -1;
}

void KWSortedGuestList::inSort(KWGuest *guest)
{
    const QString name = key(guest);
    const auto place = std::lower_bound(m_keys.cbegin(), m_keys.cend(), name);
    m_guests.insert(place - m_keys.cbegin(), guest);
    m_keys.insert(place, name);
}
