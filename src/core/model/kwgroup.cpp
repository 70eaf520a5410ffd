#include "core/model/kwgroup.h"

#include "core/model/kwguest.h"

#include <QStringList>

#include <algorithm>

namespace {
/// The parts that are not empty, with one blank between them.
QString joinedParts(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(u' ');
}

QString coupleName(const KWGuest &a, const KWGuest &b, const QString &joinWord)
{
    if (a.lastName() != b.lastName())
        return joinedParts(
            {a.title(), a.initial(), a.lastName(), joinWord, b.title(), b.initial(), b.lastName()});
    if (!a.title().isEmpty() && !b.title().isEmpty())
        return joinedParts({a.title(), joinWord, b.title(), a.initial(), a.lastName()});
    if (!a.initial().isEmpty() && !b.initial().isEmpty())
        return joinedParts({a.initial(), joinWord, b.initial(), a.lastName()});
    return {};
}
} // namespace

KWGroup::KWGroup(const KWContact &contact, const QString &name, const QString &notes)
    : KWObject(notes)
    , m_texts(new Texts{{}, contact, name})
{
}

KWGroup::KWGroup(const KWGroup &other)
    : KWObject(other)
    , m_texts(other.m_texts)
{
}

QList<KWGuest *> KWGroup::adults() const
{
    QList<KWGuest *> result;
    std::copy_if(m_guests.begin(), m_guests.end(), std::back_inserter(result),
                 [](const KWGuest *guest) { return guest->age() == KWGuest::Adult; });
    return result;
}

int KWGroup::unlockedCount() const
{
    return static_cast<int>(std::count_if(m_guests.begin(), m_guests.end(),
                                          [](const KWGuest *guest) { return !guest->isLocked(); }));
}

bool KWGroup::isCouple() const
{
    const QList<KWGuest *> two = adults();
    return two.size() == 2 && two[0]->gender() != KWGuest::Undefined &&
           two[1]->gender() != KWGuest::Undefined && two[0]->gender() != two[1]->gender();
}

int KWGroup::kind() const
{
    if (guestCount() == 1)
        return Single;
    if (guestCount() < 2 || m_guests.first()->gender() == m_guests.last()->gender())
        return OtherParty;
    if (guestCount() == 2)
        return Couple;
    return m_guests.last()->age() == KWGuest::Child ? Family : OtherParty;
}

QString KWGroup::addressName(const QString &joinWord) const
{
    if (m_guests.isEmpty())
        return name();
    QString result;
    if (isCouple()) {
        QList<KWGuest *> two = adults();
        sortGuests(two);
        result = coupleName(*two[0], *two[1], joinWord);
    }
    if (result.isEmpty()) {
        QList<KWGuest *> sorted = guests();
        sortGuests(sorted);
        const KWGuest &first = *sorted.first();
        result = joinedParts({first.title(), first.initial(), first.lastName()});
    }
    return result;
}

QString KWGroup::firstNames(const QString &joinWord) const
{
    QList<KWGuest *> sorted = guests();
    sortGuests(sorted);
    QStringList names;
    for (const KWGuest *guest : std::as_const(sorted)) {
        if (!guest->firstName().isEmpty())
            names.append(guest->firstName());
    }
    if (names.size() < 2)
        return names.join(QString());
    const QString last = names.takeLast();
    return names.join(QLatin1StringView(", ")) + u' ' + joinWord + u' ' + last;
}

void KWGroup::sortGuests(QList<KWGuest *> &guests)
{
    std::stable_sort(guests.begin(), guests.end(),
                     [](const KWGuest *a, const KWGuest *b) { return a->precedes(*b); });
}
