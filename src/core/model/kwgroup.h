#pragma once

#include "core/model/kwcontact.h"
#include "core/model/kwobject.h"

#include <QList>
#include <QSharedData>
#include <QVarLengthArray>

class KWGuest;

/// A household, couple, family or any party of guests that shares an address.
///
/// Owned by the group list of its KWDocument; it does not own its members. Adding or removing a
/// member here does not touch the guest's own link, which is the document's business.
class KWGroup final : public KWObject
{
public:
    enum Kind { Single, Couple, Family, OtherParty };

    KWGroup(const KWContact &contact, const QString &name, const QString &notes);
    /// Copies everything but the members: the copier adds its own guests.
    KWGroup(const KWGroup &other);
    KWGroup &operator=(const KWGroup &) = delete;

    const KWContact &contact() const { return m_texts->contact; }
    const QString &name() const { return m_texts->name; }
    void setContact(const KWContact &contact) { m_texts->contact = contact; }
    void setName(const QString &name) { m_texts->name = name; }

    /// The members in membership order.
    QList<KWGuest *> guests() const { return {m_guests.cbegin(), m_guests.cend()}; }
    int guestCount() const { return static_cast<int>(m_guests.size()); }
    /// The member at an index from 0, or null outside the list.
    KWGuest *guestAt(int index) const
    {
        return index >= 0 && index < guestCount() ? m_guests.at(index) : nullptr;
    }
    void appendGuest(KWGuest *guest) { m_guests.append(guest); }
    void removeGuest(KWGuest *guest) { m_guests.removeOne(guest); }

    QList<KWGuest *> adults() const;
    int unlockedCount() const;
    /// Exactly two adults, of two defined and different genders, whatever children there are.
    bool isCouple() const;
    /// A value of Kind, from the number of members and the first and the last of them.
    int kind() const;

    /// A form of address for the whole group, as on an envelope; `joinWord` stands between two.
    QString addressName(const QString &joinWord) const;
    /// The members' first names in one sentence; `joinWord` stands before the last.
    QString firstNames(const QString &joinWord) const;

    /// Sorts by KWGuest::precedes; guests that are alike keep their order.
    static void sortGuests(QList<KWGuest *> &guests);

private:
    struct Texts : QSharedData
    {
        KWContact contact;
        QString name;
    };

    QSharedDataPointer<Texts> m_texts;
    /// Room for a family, so that most groups need no memory of their own.
    QVarLengthArray<KWGuest *, 4> m_guests;
};
