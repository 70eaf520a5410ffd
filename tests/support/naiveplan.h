#pragma once

#include "support/testplan.h"

#include <QHash>

/// What a plan should hold, kept by plain lists: a guest's seat is found by looking at all of them.
/// Each operation returns the steps that a plan should make of it: its events as EventLog writes
/// them, with "modified" where the plan's flag goes up. What a plan adds is handed in afterwards,
/// all else is to be asked before the plan is changed.
struct NaivePlan
{
    using Pair = KWDocument::GuestPair;

    QList<KWGuest *> guests;
    QList<KWGroup *> groups;
    QList<KWTable *> tables;
    QHash<const KWGroup *, QList<KWGuest *>> members;
    QHash<const KWTable *, QList<KWGuest *>> seats;
    /// By the pair in stored order.
    QHash<Pair, int> wishes;

    bool find(const KWGuest *guest, KWTable **table, int *seat) const;
    KWGroup *groupOf(const KWGuest *guest) const;
    int wish(KWGuest *a, KWGuest *b) const;

    QStringList addGuest(KWGuest *guest, KWGroup *group);
    QStringList addGroup(KWGroup *group);
    QStringList addTable(KWTable *table);
    QStringList deleteGuest(KWGuest *guest, bool rescore);
    QStringList deleteGroup(KWGroup *group, bool rescore);
    QStringList deleteTable(KWTable *table, bool rescore);
    QStringList assign(KWGuest *guest, KWTable *table, int seat, bool rescore);
    QStringList unassign(KWGuest *guest, bool rescore);
    QStringList setWish(KWGuest *a, KWGuest *b, int value, bool rescore);
    QStringList moveToGroup(KWGroup *group, KWGuest *guest);
    QStringList resize(KWTable *table, int count, bool rescore);
    QStringList rotate(KWTable *table);
    QStringList moveBefore(KWTable *table, KWTable *other);
    QStringList setVip(KWGuest *guest, bool vip) const;
    QStringList setLocked(KWGuest *guest, bool locked) const;
    QStringList setShape(KWTable *table, int shape) const;

    /// The same of the objects that stand at the same positions in another plan.
    NaivePlan translatedTo(const KWDocument &plan) const;

private:
    QStringList scores(bool rescored) const;
};
