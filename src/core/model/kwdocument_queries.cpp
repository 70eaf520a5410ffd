#include "core/model/kwdocument.h"
#include "core/model/kwmodelhooks.h"
#include "core/model/kwrandom.h"
#include "core/model/kwsortedguestlist.h"

#include <QSet>

#include <algorithm>
#include <numeric>
#include <set>

namespace {
void store(int *target, int value)
{
    if (target)
        *target = value;
}

template <typename List, typename Predicate>
int countIf(const List &list, Predicate predicate)
{
    return static_cast<int>(std::count_if(list.begin(), list.end(), predicate));
}

template <typename List, typename Predicate>
QList<KWGuest *> guestsIf(const List &list, Predicate predicate)
{
    QList<KWGuest *> result;
    std::copy_if(list.begin(), list.end(), std::back_inserter(result), predicate);
    return result;
}

bool isLockedGuest(const KWGuest *guest)
{
    return guest && guest->isLocked();
}

bool sameText(const QString &a, const QString &b)
{
    return a.trimmed().toLower() == b.trimmed().toLower();
}

QStringList toSortedList(const std::set<QString> &texts)
{
    return {texts.begin(), texts.end()};
}
} // namespace

int KWDocument::seatCount() const
{
    return std::accumulate(m_tables.begin(), m_tables.end(), 0,
                           [](int sum, const KWTable *t) { return sum + t->seatCount(); });
}

KWGuest *KWDocument::memberAt(const KWGroup *group, int index) const
{
    return m_groups.contains(group) ? group->guestAt(index) : nullptr;
}

bool KWDocument::findGuest(const KWGuest *guest, KWTable **table, int *seat) const
{
    if (!m_guests.contains(guest))
        return false;
    // Nothing but tables has seats.
    auto *holder = static_cast<KWTable *>(guest->m_table);
    if (!m_tables.contains(holder))
        return false;
    if (table)
        *table = holder;
    store(seat, guest->m_seat);
    return true;
}

bool KWDocument::guestAtSeat(const KWTable *table, int seat, KWGuest **guest) const
{
    KWGuest *found = m_tables.contains(table) ? table->guest(seat) : nullptr;
    if (found && guest)
        *guest = found;
    return found != nullptr;
}

KWTable *KWDocument::findTable(const QString &name, bool caseSensitive) const
{
    const QString wanted = caseSensitive ? name : name.toLower();
    const auto found = std::find_if(m_tables.begin(), m_tables.end(), [&](const KWTable *table) {
        return (caseSensitive ? table->name() : table->name().toLower()) == wanted;
    });
    return found == m_tables.end() ? nullptr : *found;
}

KWGroup *KWDocument::findGroup(const QString &name) const
{
    const auto found = std::find_if(m_groups.begin(), m_groups.end(),
                                    [&](const KWGroup *group) { return group->name() == name; });
    return found == m_groups.end() ? nullptr : *found;
}

QStringList KWDocument::nextTableNames(int count) const
{
    // One pass over the names instead of one findTable() for each number.
    QSet<QString> taken;
    taken.reserve(tableCount());
    for (const KWTable *table : m_tables)
        taken.insert(table->name().toLower());
    QStringList result;
    for (int number = 1; result.size() < count; ++number) {
        const QString name = tr("Table %1").arg(number);
        if (!taken.contains(name.toLower()))
            result.append(name);
    }
    return result;
}

bool KWDocument::guestExists(const QString &title, const QString &first, const QString &last,
                             const KWGuest *except) const
{
    return std::any_of(m_guests.begin(), m_guests.end(), [&](const KWGuest *guest) {
        return guest != except && sameText(guest->title(), title) &&
               sameText(guest->firstName(), first) && sameText(guest->lastName(), last);
    });
}

bool KWDocument::isNextTo(const KWGuest *a, const KWGuest *b) const
{
    KWTable *table = nullptr;
    KWTable *otherTable = nullptr;
    int seat = -1;
    int otherSeat = -1;
    if (!findGuest(a, &table, &seat) || !findGuest(b, &otherTable, &otherSeat) ||
        table != otherTable)
        return false;
    const auto [low, high] = std::minmax(seat, otherSeat);
    return high - low == 1 || (!table->isHead() && low == 0 && high == table->seatCount() - 1);
}

bool KWDocument::atSameTable(const KWGuest *a, const KWGuest *b) const
{
    KWTable *table = nullptr;
    KWTable *otherTable = nullptr;
    return findGuest(a, &table) && findGuest(b, &otherTable) && table == otherTable;
}

void KWDocument::countGuests(int *adults, int *children, int *acceptedAdults,
                             int *acceptedChildren) const
{
    const auto count = [this](int age, bool acceptedOnly) {
        return countIf(m_guests, [=](const KWGuest *guest) {
            return guest->age() == age && (!acceptedOnly || guest->isAccepted());
        });
    };
    store(adults, count(KWGuest::Adult, false));
    store(children, count(KWGuest::Child, false));
    store(acceptedAdults, count(KWGuest::Adult, true));
    store(acceptedChildren, count(KWGuest::Child, true));
}

void KWDocument::countDemographics(int *male, int *female, int *undefined, int *adult,
                                   int *child) const
{
    const auto countGender = [this](int gender) {
        return countIf(m_guests, [=](const KWGuest *g) { return g->gender() == gender; });
    };
    store(male, countGender(KWGuest::Male));
    store(female, countGender(KWGuest::Female));
    store(undefined, countGender(KWGuest::Undefined));
    countGuests(adult, child, nullptr, nullptr);
}

int KWDocument::seatedGuestCount() const
{
    return std::accumulate(m_tables.begin(), m_tables.end(), 0,
                           [](int sum, const KWTable *t) { return sum + t->seatedCount(); });
}

int KWDocument::seatedUnlockedGuestCount() const
{
    return countIf(m_guests, [this](const KWGuest *g) { return !g->isLocked() && findGuest(g); });
}

int KWDocument::unlockedGuestCount() const
{
    return countIf(m_guests, [](const KWGuest *guest) { return !guest->isLocked(); });
}

int KWDocument::unseatedGuestCount(bool includeLocked) const
{
    return countIf(m_guests, [this, includeLocked](const KWGuest *guest) {
        return (includeLocked || !guest->isLocked()) && !findGuest(guest);
    });
}

int KWDocument::occupiedTableCount() const
{
    return countIf(m_tables, [](const KWTable *table) { return table->seatedCount() > 0; });
}

QList<KWGuest *> KWDocument::seatedGuests() const
{
    return guestsIf(m_guests, [this](const KWGuest *guest) { return findGuest(guest); });
}

QList<KWGuest *> KWDocument::unseatedGuests(bool includeLocked) const
{
    return guestsIf(m_guests, [this, includeLocked](const KWGuest *guest) {
        return (includeLocked || !guest->isLocked()) && !findGuest(guest);
    });
}

QList<KWGuest *> KWDocument::acceptedGuests() const
{
    return guestsIf(m_guests, [](const KWGuest *guest) { return guest->isAccepted(); });
}

QList<KWGuest *> KWDocument::sortedGuests(int order) const
{
    KWSortedGuestList sorted(order);
    for (KWGuest *guest : m_guests)
        sorted.inSort(guest);
    return sorted.guests();
}

bool KWDocument::seatHoldsLockedGuest(const KWTable *table, int seat) const
{
    return isLockedGuest(table->guest(seat));
}

bool KWDocument::allSeatsLocked(const KWTable *table) const
{
    const auto seats = table->seats();
    return std::all_of(seats.begin(), seats.end(), isLockedGuest);
}

int KWDocument::seatsFreeOfLocks(const KWTable *table) const
{
    return countIf(table->seats(), [](const KWGuest *guest) { return !isLockedGuest(guest); });
}

bool KWDocument::tableHasLockedGuest(const KWTable *table) const
{
    const auto seats = table->seats();
    return std::any_of(seats.begin(), seats.end(), isLockedGuest);
}

bool KWDocument::hasSeatedUnlockedGuest() const
{
    return std::any_of(m_guests.begin(), m_guests.end(),
                       [this](const KWGuest *g) { return !g->isLocked() && findGuest(g); });
}

QList<KWTable *> KWDocument::shuffledTables() const
{
    QList<KWTable *> remaining = tables();
    QList<KWTable *> result;
    while (!remaining.isEmpty())
        result.append(remaining.takeAt(randomNumber(static_cast<int>(remaining.size()))));
    return result;
}

QList<KWTable *> KWDocument::tablesBySize() const
{
    QList<KWTable *> result = tables();
    std::stable_sort(result.begin(), result.end(), [](const KWTable *a, const KWTable *b) {
        return a->seatCount() > b->seatCount();
    });
    return result;
}

QStringList KWDocument::meals() const
{
    std::set<QString> result;
    for (const KWGuest *guest : m_guests)
        result.insert(guest->meal());
    return toSortedList(result);
}

QStringList KWDocument::titles() const
{
    std::set<QString> result{QString(),  tr("Mr"),     tr("Mrs"), tr("Ms"),
                             tr("Miss"), tr("Master"), tr("Dr")};
    for (const KWGuest *guest : m_guests)
        result.insert(guest->title());
    return toSortedList(result);
}

void KWDocument::debugDump() const
{
    traceLine(QString());
    for (const KWGuest *guest : m_guests)
        traceLine(QStringLiteral("guest "), guest->name());
    for (const KWTable *table : m_tables) {
        traceLine(QStringLiteral("table "), table->name());
        for (int seat = 0; seat < table->seatCount(); ++seat) {
            const KWGuest *guest = table->guest(seat);
            const QString prefix = QStringLiteral("seat ") + QString::number(seat);
            traceLine(prefix, guest ? QStringLiteral(" = assigned ") + guest->name()
                                    : QStringLiteral(" = (empty)"));
        }
    }
    for (const Affinity &pair : affinities()) {
        traceLine(QStringLiteral("affinity %1 for %2 = %3")
                      .arg(pair.first->name(), pair.second->name(), QString::number(pair.value)));
    }
}
