#include "support/testplan.h"

#include <QStringList>

#include <random>

KWGuest *addGuest(KWDocument &plan, const TestGuest &guest, KWGroup *group)
{
    return plan.addGuest({.display_name = s(guest.name),
                          .gender = guest.gender,
                          .age = guest.age,
                          .locked = guest.locked,
                          .vip = guest.vip},
                         group);
}

QList<KWGuest *> addGuests(KWDocument &plan, int count)
{
    KWGroup *group = plan.addGroup({}, s("group"), {});
    QList<KWGuest *> guests;
    for (int i = 0; i < count; ++i) {
        const QByteArray name = 'G' + QByteArray::number(i);
        guests.append(addGuest(plan, {.name = name.constData()}, group));
    }
    return guests;
}

KWTable *addTable(KWDocument &plan, const char *name, int shape, int seats)
{
    return plan.addTable(shape, s(name), seats, 0, 0, 0, {}, {});
}

KWTable *addRectangular(KWDocument &plan, const char *name, int across, int down)
{
    return plan.addTable(KWTable::Rectangular, s(name), across, down, 0, 0, {}, {});
}

KWTable *addCustom(KWDocument &plan, const char *name, int across, int down, int across2, int down2)
{
    return plan.addTable(KWTable::Custom, s(name), across, down, across2, down2, {}, {});
}

QString seating(const KWTable &table)
{
    QStringList names;
    for (const KWGuest *guest : table.seats())
        names.append(guest ? guest->displayName() : s("-"));
    return names.join(u' ');
}

QString seating(const KWDocument &plan)
{
    QStringList lines;
    for (const KWTable *table : plan.tables())
        lines.append(seating(*table));
    return lines.join(u'\n');
}

void fillRandomly(KWDocument &plan, const RandomPlan &shape)
{
    std::mt19937 engine(shape.seed);
    const auto draw = [&](int n) { return static_cast<int>(engine() % static_cast<unsigned>(n)); };

    KWGroup *group = nullptr;
    for (int i = 0; i < shape.guests; ++i) {
        if (!group || draw(3) == 0)
            group = plan.addGroup({}, s("group"), {});
        const QByteArray name = 'G' + QByteArray::number(i);
        addGuest(plan,
                 {.name = name.constData(),
                  .gender = draw(3),
                  .vip = draw(10) == 0,
                  .age = draw(8) == 0 ? 1 : 0},
                 group);
    }
    for (int left = shape.seats; left > 0;) {
        const int seats = std::min(left, 6 + 2 * draw(4));
        const int kind = draw(KWTable::ShapeCount);
        if (kind == KWTable::Rectangular && seats % 2 == 0)
            addRectangular(plan, "rectangular", seats / 2 - 1, 1);
        else if (kind == KWTable::Custom)
            addCustom(plan, "custom", seats - 3, 1, 1, 1);
        else
            addTable(plan, "table", kind == KWTable::Rectangular ? 0 : kind, seats);
        left -= seats;
    }
    for (int i = 0; i < shape.locked; ++i) {
        KWGuest *guest = plan.guestAt(draw(shape.guests));
        KWTable *table = plan.tableAt(draw(plan.tableCount()));
        const int seat = draw(std::max(table->seatCount(), 1));
        if (plan.findGuest(guest) || table->guest(seat))
            continue;
        plan.assignGuest(guest, table, seat, false);
        plan.setGuestLocked(guest, true);
    }
    for (int i = 0; i < shape.wishes; ++i) {
        const int a = draw(shape.guests);
        const int b = (a + 1 + draw(shape.guests - 1)) % shape.guests;
        constexpr std::array values{KWScore::Loves, KWScore::Likes, KWScore::Dislikes,
                                    KWScore::Hates};
        plan.setAffinity(plan.guestAt(a), plan.guestAt(b),
                         values[static_cast<std::size_t>(draw(4))], false);
    }
    plan.recalculateScores();
    plan.setModified(false);
}
