#include "core/model/kwchange.h"
#include "core/model/kwdocument.h"

KWTable *KWDocument::addTable(int shape, const QString &name, int count1, int count2, int count3,
                              int count4, const QPoint &position, const QString &notes)
{
    KWTable *table = m_tables.append(shape, name, count1, count2, count3, count4, position, notes);
    m_modified = true;
    emit eventNewTable(table);
    emit eventModified();
    return table;
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
