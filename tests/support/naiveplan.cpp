#include "support/naiveplan.h"

#include <algorithm>

namespace {
QString text(const KWGuest *guest)
{
    return guest->displayName();
}
QString text(const KWGroup *group)
{
    return group ? group->name() : s("null");
}
QString text(const KWTable *table)
{
    return table->name();
}
QString text(int number)
{
    return QString::number(number);
}

/// An event as EventLog writes it, in a list of its own.
template <typename... Args>
QStringList event(const char *name, Args... args)
{
    return {s(name) + u'(' + QStringList{text(args)...}.join(u',') + u')'};
}

QStringList edits(const QList<KWGuest *> &guests)
{
    QStringList result;
    for (const KWGuest *guest : guests) {
        if (guest)
            result += event("eventEditGuest", guest);
    }
    return result;
}

QStringList modified()
{
    return {s("modified")};
}

QStringList reported()
{
    return modified() + event("eventModified");
}
} // namespace

bool NaivePlan::find(const KWGuest *guest, KWTable **table, int *seat) const
{
    for (KWTable *candidate : tables) {
        const qsizetype place = seats[candidate].indexOf(guest);
        if (place < 0)
            continue;
        *table = candidate;
        *seat = static_cast<int>(place);
        return true;
    }
    return false;
}

KWGroup *NaivePlan::groupOf(const KWGuest *guest) const
{
    for (KWGroup *group : groups) {
        if (members[group].contains(guest))
            return group;
    }
    return nullptr;
}

int NaivePlan::wish(KWGuest *a, KWGuest *b) const
{
    return wishes.value({a, b}, wishes.value({b, a}, KWScore::Neutral));
}

QStringList NaivePlan::scores(bool rescored) const
{
    if (!rescored)
        return {};
    QStringList result;
    for (const KWTable *table : tables)
        result += event("eventScoreChange", table);
    return result + event("eventScoreChange");
}

QStringList NaivePlan::addGuest(KWGuest *guest, KWGroup *group)
{
    guests.append(guest);
    if (group)
        members[group].append(guest);
    return modified() + event("eventNewGuest", guest) + event("eventModified");
}

QStringList NaivePlan::addGroup(KWGroup *group)
{
    groups.append(group);
    return modified() + event("eventNewGroup", group) + event("eventModified");
}

QStringList NaivePlan::addTable(KWTable *table)
{
    tables.append(table);
    seats[table] = QList<KWGuest *>(table->seatCount(), nullptr);
    return modified() + event("eventNewTable", table) + event("eventModified");
}

QStringList NaivePlan::deleteGuest(KWGuest *guest, bool rescore)
{
    QStringList result;
    KWTable *table = nullptr;
    int seat = -1;
    if (find(guest, &table, &seat)) {
        seats[table][seat] = nullptr;
        result += event("eventEditSeat", table, seat);
    }
    const KWGroup *group = groupOf(guest);
    if (group)
        members[group].removeOne(guest);
    wishes.removeIf([guest](const auto &wish) {
        return wish.key().first == guest || wish.key().second == guest;
    });
    guests.removeOne(guest);
    return result + event("eventBeforeDeleteGuest", guest) + modified() + scores(rescore) +
           event("eventAfterDeleteGuest") + event("eventEditGroup", group) + event("eventModified");
}

QStringList NaivePlan::deleteGroup(KWGroup *group, bool rescore)
{
    QStringList result = event("eventBeforeDeleteGroup", group);
    const QList<KWGuest *> leaving = members.value(group);
    for (KWGuest *guest : leaving)
        result += deleteGuest(guest, rescore);
    members.remove(group);
    groups.removeOne(group);
    result += modified() + event("eventAfterDeleteGroup") + event("eventModified");
    // The flag goes up once.
    const qsizetype first = result.indexOf(s("modified"));
    result.removeAll(s("modified"));
    result.insert(first, s("modified"));
    return result;
}

QStringList NaivePlan::deleteTable(KWTable *table, bool rescore)
{
    const QStringList unseated = edits(seats.take(table));
    tables.removeOne(table);
    return event("eventBeforeDeleteTable", table) + unseated + modified() + scores(rescore) +
           event("eventAfterDeleteTable") + event("eventModified");
}

QStringList NaivePlan::assign(KWGuest *guest, KWTable *table, int seat, bool rescore)
{
    QStringList result;
    KWGuest *occupant = seats[table][seat];
    KWTable *oldTable = nullptr;
    int oldSeat = -1;
    const bool wasSeated = find(guest, &oldTable, &oldSeat);
    if (wasSeated)
        seats[oldTable][oldSeat] = occupant;
    seats[table][seat] = guest;
    if (wasSeated && !occupant)
        result += event("eventEditSeat", oldTable, oldSeat);
    result += event("eventEditGuest", guest) + event("eventEditTable", table) +
              event("eventEditSeat", table, seat);
    if (occupant)
        result += event("eventEditGuest", occupant);
    if (occupant && wasSeated)
        result += event("eventEditTable", oldTable) + event("eventEditSeat", oldTable, oldSeat);
    return result + modified() + scores(rescore) + event("eventModified");
}

QStringList NaivePlan::unassign(KWGuest *guest, bool rescore)
{
    KWTable *table = nullptr;
    int seat = -1;
    if (!find(guest, &table, &seat))
        return {};
    seats[table][seat] = nullptr;
    return event("eventEditGuest", guest) + event("eventEditTable", table) +
           event("eventEditSeat", table, seat) + modified() + scores(rescore) +
           event("eventModified");
}

QStringList NaivePlan::setWish(KWGuest *a, KWGuest *b, int value, bool rescore)
{
    const QHash<Pair, int> before = wishes;
    wishes.remove({a, b});
    wishes.remove({b, a});
    if (value != KWScore::Neutral)
        wishes[{a, b}] = value;
    if (wishes == before)
        return {};
    return modified() + scores(rescore) + event("eventEditAffinity", a, b) + event("eventModified");
}

QStringList NaivePlan::moveToGroup(KWGroup *group, KWGuest *guest)
{
    const auto before = members;
    if (const KWGroup *old = groupOf(guest))
        members[old].removeOne(guest);
    members[group].append(guest);
    if (members == before)
        return {};
    return event("eventGuestChangeGroup", guest) + reported();
}

QStringList NaivePlan::resize(KWTable *table, int count, bool rescore)
{
    QList<KWGuest *> &row = seats[table];
    if (row.size() == count)
        return {};
    const QList<KWGuest *> before = row;
    const qsizetype target = std::max<qsizetype>(count, row.size() - row.count(nullptr));
    const auto lastGuest = [&row] {
        qsizetype last = row.size() - 1;
        while (last >= 0 && !row.at(last))
            --last;
        return last;
    };
    for (qsizetype last = lastGuest(); last >= target; last = lastGuest()) {
        row.removeOne(nullptr);
        row.insert(last, nullptr);
    }
    QList<KWGuest *> changed;
    if (row != before)
        changed = row.mid(0, count);
    while (row.size() > count) {
        KWGuest *guest = row.takeLast();
        if (!changed.contains(guest))
            changed.append(guest);
    }
    row.resize(count);
    return event("eventEditTable", table) + modified() + scores(rescore) + edits(changed) +
           event("eventModified");
}

QStringList NaivePlan::rotate(KWTable *table)
{
    const QList<KWGuest *> before = seats.value(table);
    const int by = table->shape() == KWTable::Circular      ? 1
                   : table->shape() == KWTable::Rectangular ? table->seatsDown()
                   : table->shape() == KWTable::Custom      ? table->seatsDown2()
                                                            : 0;
    for (qsizetype seat = 0; seat < before.size(); ++seat)
        seats[table][(seat + by) % before.size()] = before.at(seat);
    return event("eventEditTable", table) + edits(seats.value(table)) + reported();
}

QStringList NaivePlan::moveBefore(KWTable *table, KWTable *other)
{
    const QList<KWTable *> before = tables;
    if (table != other) {
        tables.removeOne(table);
        tables.insert(tables.indexOf(other), table);
    }
    if (tables == before)
        return {};
    return event("eventReorderTables", table, other) + reported();
}

QStringList NaivePlan::setVip(KWGuest *guest, bool vip) const
{
    if (guest->isVip() == vip)
        return {};
    return scores(true) + event("eventEditGuest", guest) + reported();
}

QStringList NaivePlan::setLocked(KWGuest *guest, bool locked) const
{
    if (guest->isLocked() == locked)
        return {};
    return event("eventEditGuest", guest) + reported();
}

QStringList NaivePlan::setShape(KWTable *table, int shape) const
{
    if (table->shape() == shape)
        return {};
    return event("eventEditTable", table) + reported();
}

NaivePlan NaivePlan::translatedTo(const KWDocument &plan) const
{
    const auto now = [&](KWGuest *guest) {
        return guest ? plan.guestAt(static_cast<int>(guests.indexOf(guest))) : nullptr;
    };
    const auto allNow = [&](QList<KWGuest *> list) {
        std::transform(list.begin(), list.end(), list.begin(), now);
        return list;
    };
    NaivePlan result;
    result.guests = plan.guests();
    result.groups = plan.groups();
    result.tables = plan.tables();
    for (qsizetype i = 0; i < groups.size(); ++i)
        result.members[result.groups.at(i)] = allNow(members[groups.at(i)]);
    for (qsizetype i = 0; i < tables.size(); ++i)
        result.seats[result.tables.at(i)] = allNow(seats[tables.at(i)]);
    for (auto wish = wishes.cbegin(); wish != wishes.cend(); ++wish)
        result.wishes[{now(wish.key().first), now(wish.key().second)}] = wish.value();
    return result;
}
