#pragma once

#include "core/model/kwdocument.h"

/// A short text for a test.
inline QString s(const char *text)
{
    return QString::fromUtf8(text);
}

/// A guest as most tests want one: an adult with a display name and nothing else.
struct TestGuest
{
    const char *name = "";
    int gender = KWGuest::Undefined;
    bool locked = false;
    bool vip = false;
    int age = KWGuest::Adult;
};

KWGuest *addGuest(KWDocument &plan, const TestGuest &guest, KWGroup *group = nullptr);
/// Guests named "G0", "G1", ... in a group of their own.
QList<KWGuest *> addGuests(KWDocument &plan, int count);
/// A table without sides: circular or a head table.
KWTable *addTable(KWDocument &plan, const char *name, int shape, int seats);
KWTable *addRectangular(KWDocument &plan, const char *name, int across, int down);
KWTable *addCustom(KWDocument &plan, const char *name, int across, int down, int across2,
                   int down2);
/// The display name on each seat, "-" for an empty one, joined with blanks: "Ann - Bob".
QString seating(const KWTable &table);
/// The seating of all tables of a plan, one line each.
QString seating(const KWDocument &plan);

/// A plan made by chance, the same for the same seed: guests in groups, some locked and seated,
/// some VIPs, tables of all shapes, wishes of all values.
struct RandomPlan
{
    int guests = 40;
    int seats = 44;
    int wishes = 80;
    int locked = 4;
    unsigned seed = 1;
};
void fillRandomly(KWDocument &plan, const RandomPlan &shape);
