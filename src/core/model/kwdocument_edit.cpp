#include "core/model/kwchange.h"
#include "core/model/kwdocument.h"

void KWDocument::reportModified()
{
    m_modified = true;
    emit eventModified();
}

KWGuest *KWDocument::addGuest(const KWGuestValues &values, KWGroup *group)
{
    const auto wishId = m_guestOfWishId.size();
    m_guestOfWishId.append(nullptr);
    KWGuest *guest = m_guests.append(values);
    guest->m_wishId = static_cast<int>(wishId);
    m_guestOfWishId[wishId] = guest;
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

void KWDocument::deleteGroup(KWGroup *group, bool rescore)
{
    if (!m_groups.contains(group))
        return;
    emit eventBeforeDeleteGroup(group);
    // Whoever listens may delete or move members in between.
    while (KWGuest *guest = group->guestAt(0)) {
        if (m_guests.contains(guest))
            deleteGuest(guest, rescore);
        else
            group->removeGuest(guest);
    }
    m_groups.remove(group);
    m_modified = true;
    emit eventAfterDeleteGroup();
    emit eventModified();
}

void KWDocument::editGuest(KWGuest *guest, const KWGuestValues &values)
{
    if (!m_guests.contains(guest))
        return;
    const KWGuestValues before = guest->values();
    if (values == before)
        return;
    guest->setValues(values);
    emit eventEditGuest(guest);
    m_modified = true;
    if (values.gender != before.gender || values.vip != before.vip)
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
