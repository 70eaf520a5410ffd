#include "kwdocument.h"

namespace {
/// Stores a value if it differs from what an object has; true if it did.
template <typename Object, typename Value>
bool change(Object *object, const Value &now, void (Object::*set)(const Value &),
            const Value &value)
{
    if (now == value)
        return false;
    (object->*set)(value);
    return true;
}

template <typename Object, typename Value>
bool change(Object *object, Value now, void (Object::*set)(Value), Value value)
{
    if (now == value)
        return false;
    (object->*set)(value);
    return true;
}

/// Notes are set through the common base.
bool changeNotes(KWObject *object, const QString &notes)
{
    return change(object, object->notes(), &KWObject::setNotes, notes);
}
} // namespace

void KWDocument::reportModified()
{
    m_modified = true;
    emit eventModified();
}

KWTable *KWDocument::addTable(int shape, const QString &name, int count1, int count2, int count3,
                              int count4, const QPoint &position, const QString &notes)
{
    KWTable *table = m_tables.append(shape, name, count1, count2, count3, count4, position, notes);
    m_modified = true;
    emit eventNewTable(table);
    emit eventModified();
    return table;
}

KWGuest *KWDocument::addGuest(const QString &displayName, const QString &title,
                              const QString &firstName, const QString &lastName,
                              const QString &meal, int gender, int age, bool locked,
                              const QString &notes, bool vip, bool accepted, KWGroup *group)
{
    KWGuest *guest = m_guests.append(displayName, title, firstName, lastName, meal, gender, age,
                                     locked, notes, vip, accepted);
    guest->m_wishId = static_cast<int>(m_guestOfWishId.size());
    m_guestOfWishId.append(guest);
    if (m_groups.contains(group)) {
        group->appendGuest(guest);
        guest->setGroup(group);
    }
    m_modified = true;
    emit eventNewGuest(guest);
    emit eventModified();
    return guest;
}

KWGroup *KWDocument::addGroup(const KWContact &contact, const QString &name, const QString &notes)
{
    KWGroup *group = m_groups.append(contact, name, notes);
    m_modified = true;
    emit eventNewGroup(group);
    emit eventModified();
    return group;
}

void KWDocument::deleteGuest(KWGuest *guest, bool rescore)
{
    if (!m_guests.contains(guest))
        return;
    KWTable *table = nullptr;
    int seat = -1;
    if (findGuest(guest, &table, &seat)) {
        table->setGuest(seat, nullptr);
        emit eventEditSeat(table, seat);
    }
    m_affinities.removeGuest(guest->m_wishId);
    KWGroup *group = guest->group();
    if (group)
        group->removeGuest(guest);
    emit eventBeforeDeleteGuest(guest);
    m_guestOfWishId[guest->m_wishId] = nullptr;
    m_guests.remove(guest);
    m_modified = true;
    if (rescore)
        recalculateScores();
    emit eventAfterDeleteGuest();
    emit eventEditGroup(group);
    emit eventModified();
}

void KWDocument::deleteTable(KWTable *table, bool rescore)
{
    if (!m_tables.contains(table))
        return;
    emit eventBeforeDeleteTable(table);
    for (int seat = 0; seat < table->seatCount(); ++seat) {
        if (KWGuest *guest = table->guest(seat)) {
            table->setGuest(seat, nullptr);
            emit eventEditGuest(guest);
        }
    }
    m_tables.remove(table);
    m_modified = true;
    if (rescore)
        recalculateScores();
    emit eventAfterDeleteTable();
    emit eventModified();
}

void KWDocument::deleteGroup(KWGroup *group, bool rescore)
{
    if (!m_groups.contains(group))
        return;
    emit eventBeforeDeleteGroup(group);
    while (KWGuest *guest = group->guestAt(0))
        deleteGuest(guest, rescore);
    m_groups.remove(group);
    m_modified = true;
    emit eventAfterDeleteGroup();
    emit eventModified();
}

void KWDocument::editGuest(KWGuest *guest, const QString &displayName, const QString &title,
                           const QString &firstName, const QString &lastName, const QString &meal,
                           int gender, int age, bool locked, const QString &notes, bool vip,
                           bool accepted)
{
    if (!m_guests.contains(guest))
        return;
    const bool rescore = guest->gender() != gender || guest->isVip() != vip;
    bool changed = change(guest, guest->displayName(), &KWGuest::setDisplayName, displayName);
    changed |= change(guest, guest->title(), &KWGuest::setTitle, title);
    changed |= change(guest, guest->firstName(), &KWGuest::setFirstName, firstName);
    changed |= change(guest, guest->lastName(), &KWGuest::setLastName, lastName);
    changed |= change(guest, guest->meal(), &KWGuest::setMeal, meal);
    changed |= change(guest, guest->gender(), &KWGuest::setGender, gender);
    changed |= change(guest, guest->age(), &KWGuest::setAge, age);
    changed |= change(guest, guest->isLocked(), &KWGuest::setLocked, locked);
    changed |= changeNotes(guest, notes);
    changed |= change(guest, guest->isVip(), &KWGuest::setVip, vip);
    changed |= change(guest, guest->isAccepted(), &KWGuest::setAccepted, accepted);
    if (!changed)
        return;
    emit eventEditGuest(guest);
    m_modified = true;
    if (rescore)
        recalculateScores();
    emit eventModified();
}

void KWDocument::editGroup(KWGroup *group, const KWContact &contact, const QString &name,
                           const QString &notes)
{
    if (!m_groups.contains(group))
        return;
    bool changed = change(group, group->contact(), &KWGroup::setContact, contact);
    changed |= change(group, group->name(), &KWGroup::setName, name);
    changed |= changeNotes(group, notes);
    if (!changed)
        return;
    emit eventEditGroup(group);
    reportModified();
}

void KWDocument::moveGuestToGroup(KWGroup *group, KWGuest *guest)
{
    if (!m_groups.contains(group) || !m_guests.contains(guest) ||
        group->guestAt(group->guestCount() - 1) == guest)
        return;
    if (guest->group())
        guest->group()->removeGuest(guest);
    group->appendGuest(guest);
    guest->setGroup(group);
    emit eventGuestChangeGroup(guest);
    reportModified();
}

void KWDocument::setGuestLocked(KWGuest *guest, bool locked)
{
    if (!m_guests.contains(guest) || !change(guest, guest->isLocked(), &KWGuest::setLocked, locked))
        return;
    emit eventEditGuest(guest);
    reportModified();
}

void KWDocument::setGuestAccepted(KWGuest *guest, bool accepted)
{
    if (!m_guests.contains(guest) ||
        !change(guest, guest->isAccepted(), &KWGuest::setAccepted, accepted))
        return;
    emit eventEditGuest(guest);
    reportModified();
}

void KWDocument::setGuestVip(KWGuest *guest, bool vip)
{
    if (!m_guests.contains(guest) || !change(guest, guest->isVip(), &KWGuest::setVip, vip))
        return;
    recalculateScores();
    emit eventEditGuest(guest);
    reportModified();
}

void KWDocument::editTable(KWTable *table, const QString &name, int shape, int count1, int count2,
                           int count3, int count4, const QString &notes)
{
    if (!m_tables.contains(table))
        return;
    bool changed = change(table, table->name(), &KWTable::setName, name);
    changed |= changeNotes(table, notes);
    const bool reshaped = change(table, table->shape(), &KWTable::setShape, shape);
    const bool resized = fitToShape(table, count1, count2, count3, count4);
    changed = changed || reshaped || resized;

    if (changed) {
        emit eventEditTable(table);
        reportModified();
    }
    if (reshaped || resized)
        recalculateScores();
}

bool KWDocument::fitToShape(KWTable *table, int count1, int count2, int count3, int count4)
{
    const bool custom = table->shape() == KWTable::Custom;
    const bool sided = custom || table->shape() == KWTable::Rectangular;
    // Counts that the shape does not use are 0, whatever the table was before.
    const KWTable::Sides sides = KWTable::boundedSides(
        {sided ? count1 : 0, sided ? count2 : 0, custom ? count3 : 0, custom ? count4 : 0});
    const int seats = sided ? KWTable::seatCountFor(table->shape(), count1, count2, count3, count4)
                            : KWTable::boundedCount(count1);
    // A table that changed its shape may have other seats than its counts say.
    if (table->sides() == sides && table->seatCount() == seats)
        return false;
    if (custom) {
        resizeCustom(table, count1, count2, count3, count4, false);
    } else if (sided) {
        resizeRectangular(table, count1, count2, false);
    } else {
        table->setSides(sides);
        resizeTable(table, count1, false);
    }
    return true;
}

void KWDocument::setTableName(KWTable *table, const QString &name)
{
    if (!m_tables.contains(table) || !change(table, table->name(), &KWTable::setName, name))
        return;
    emit eventEditTable(table);
    reportModified();
}

void KWDocument::setTableShape(KWTable *table, int shape)
{
    if (!m_tables.contains(table) || !change(table, table->shape(), &KWTable::setShape, shape))
        return;
    emit eventEditTable(table);
    reportModified();
}

void KWDocument::setTableLocked(KWTable *table, bool locked)
{
    if (!m_tables.contains(table))
        return;
    bool changed = false;
    for (int seat = 0; seat < table->seatCount(); ++seat) {
        KWGuest *guest = table->guest(seat);
        if (guest && change(guest, guest->isLocked(), &KWGuest::setLocked, locked)) {
            changed = true;
            emit eventEditGuest(guest);
        }
    }
    if (changed)
        reportModified();
}

void KWDocument::resizeTable(KWTable *table, int count, bool rescore)
{
    const int seats = KWTable::boundedCount(count);
    if (m_tables.contains(table) && table->seatCount() != seats)
        resizeSeats(table, seats, rescore);
}

void KWDocument::resizeRectangular(KWTable *table, int across, int down, bool rescore)
{
    resizeSides(table, {across, down, 0, 0},
                KWTable::seatCountFor(KWTable::Rectangular, across, down, 0, 0), rescore);
}

void KWDocument::resizeCustom(KWTable *table, int across, int down, int across2, int down2,
                              bool rescore)
{
    resizeSides(table, {across, down, across2, down2},
                KWTable::seatCountFor(KWTable::Custom, across, down, across2, down2), rescore);
}

void KWDocument::resizeSides(KWTable *table, const KWTable::Sides &sides, int seats, bool rescore)
{
    if (!m_tables.contains(table) ||
        (table->sides() == KWTable::boundedSides(sides) && table->seatCount() == seats))
        return;
    table->setSides(sides);
    resizeSeats(table, seats, rescore);
    reportModified();
}

void KWDocument::resizeSeats(KWTable *table, int count, bool rescore)
{
    QList<KWGuest *> changed;
    if (count < table->seatCount() && table->compactSeats(count)) {
        for (int seat = 0; seat < count; ++seat) {
            if (KWGuest *guest = table->guest(seat))
                changed.append(guest);
        }
    }
    for (int seat = table->seatCount() - 1; seat >= count; --seat) {
        if (KWGuest *guest = table->guest(seat))
            changed.append(guest);
    }
    table->setSeatCount(count);
    emit eventEditTable(table);
    m_modified = true;
    if (rescore)
        recalculateScores();
    for (KWGuest *guest : std::as_const(changed))
        emit eventEditGuest(guest);
    emit eventModified();
}

void KWDocument::rotateTable(KWTable *table)
{
    if (!m_tables.contains(table))
        return;
    table->rotate();
    emit eventEditTable(table);
    for (int seat = 0; seat < table->seatCount(); ++seat) {
        if (KWGuest *guest = table->guest(seat))
            emit eventEditGuest(guest);
    }
    reportModified();
}

void KWDocument::moveTable(KWTable *table, int x, int y)
{
    if (!m_tables.contains(table) || table->position() == QPoint(x, y))
        return;
    table->setPosition({x, y});
    m_modified = true;
}

void KWDocument::moveTableBefore(KWTable *table, KWTable *other)
{
    const int from = m_tables.indexOf(table);
    const int before = m_tables.indexOf(other);
    const int to = from < before ? before - 1 : before;
    if (from < 0 || before < 0 || from == before || from == to)
        return;
    m_tables.move(from, to);
    emit eventReorderTables(table, other);
    reportModified();
}

void KWDocument::assignGuest(KWGuest *guest, KWTable *table, int seat, bool rescore)
{
    if (!m_guests.contains(guest) || !m_tables.contains(table) || seat < 0 ||
        seat >= table->seatCount())
        return;
    KWGuest *occupant = table->guest(seat);
    KWTable *oldTable = nullptr;
    int oldSeat = -1;
    const bool wasSeated = findGuest(guest, &oldTable, &oldSeat);

    if (wasSeated && !occupant) {
        oldTable->setGuest(oldSeat, nullptr);
        emit eventEditSeat(oldTable, oldSeat);
    }
    table->setGuest(seat, guest);
    if (wasSeated && occupant)
        oldTable->setGuest(oldSeat, occupant);

    emit eventEditGuest(guest);
    emit eventEditTable(table);
    emit eventEditSeat(table, seat);
    if (occupant) {
        emit eventEditGuest(occupant);
        if (wasSeated) {
            emit eventEditTable(oldTable);
            emit eventEditSeat(oldTable, oldSeat);
        }
    }
    m_modified = true;
    if (rescore)
        recalculateScores();
    emit eventModified();
}

void KWDocument::unassignGuest(KWGuest *guest, bool rescore)
{
    KWTable *table = nullptr;
    int seat = -1;
    if (!findGuest(guest, &table, &seat))
        return;
    table->setGuest(seat, nullptr);
    emit eventEditGuest(guest);
    emit eventEditTable(table);
    emit eventEditSeat(table, seat);
    m_modified = true;
    if (rescore)
        recalculateScores();
    emit eventModified();
}

void KWDocument::setAffinity(KWGuest *a, KWGuest *b, int value, bool rescore)
{
    if (!m_guests.contains(a) || !m_guests.contains(b))
        return;
    if (!m_affinities.set(a->m_wishId, b->m_wishId, value))
        return;
    a->outdateScores();
    b->outdateScores();
    m_modified = true;
    if (rescore)
        recalculateScores();
    emit eventEditAffinity(a, b);
    emit eventModified();
}
