#pragma once

#include "core/model/kwguest.h"

#include <QList>
#include <QStringList>

/// Guests in the order of their lower-cased names in one name order. Does not own them.
class KWSortedGuestList
{
public:
    explicit KWSortedGuestList(int nameOrder);

    /// 0 for equal names, else 1 if the first name is greater and -1 if not.
    int compareItems(const KWGuest *a, const KWGuest *b) const;
    /// Inserts in front of the first guest whose name does not compare lower.
    void inSort(KWGuest *guest);

    const QList<KWGuest *> &guests() const { return m_guests; }

private:
    QString key(const KWGuest *guest) const { return guest->name(m_name_order).toLower(); }

    int m_name_order;
    QList<KWGuest *> m_guests;
    QStringList m_keys;
};
