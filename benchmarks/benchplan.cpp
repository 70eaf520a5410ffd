#include "benchplan.h"

#include "core/model/kwdocument.h"

namespace {
constexpr int groupSize = 3;
constexpr int tableSize = 10;
constexpr int vipEvery = 40;

void addGuests(KWDocument &plan, int guests)
{
    KWGroup *group = nullptr;
    for (int i = 0; i < guests; ++i) {
        const int member = i % groupSize;
        if (member == 0)
            group = plan.addGroup({}, QStringLiteral("Family %1").arg(i / groupSize), {});
        const QString first = QStringLiteral("First%1").arg(i);
        const QString last = QStringLiteral("Last%1").arg(i / groupSize);
        plan.addGuest({.display_name = first + u' ' + last,
                       .title = QStringLiteral("Mr"),
                       .first_name = first,
                       .last_name = last,
                       .meal = QStringLiteral("Fish"),
                       .gender = member == 0 ? KWGuest::Male : KWGuest::Female,
                       .age = member == 2 ? KWGuest::Child : KWGuest::Adult,
                       .vip = i % vipEvery == 0,
                       .accepted = true},
                      group);
    }
}

void addWishes(KWDocument &plan)
{
    const int guests = plan.guestCount();
    const auto wish = [&](int a, int b, int value) {
        plan.setAffinity(plan.guestAt(a), plan.guestAt(b % guests), value, false);
    };
    for (int i = 0; i + 2 < guests; i += groupSize) {
        wish(i, i + 1, KWScore::Loves);
        wish(i, i + 2, KWScore::Likes);
        wish(i + 1, i + 2, KWScore::Likes);
        if (i % 5 == 0)
            wish(i, i * 7 + 4, KWScore::Likes);
        if (i % 7 == 0)
            wish(i + 1, i * 11 + 5, KWScore::Dislikes);
        if (i % 11 == 0)
            wish(i + 1, i * 13 + 8, KWScore::Hates);
    }
}
} // namespace

void fillBenchPlan(KWDocument &plan, int guests)
{
    addGuests(plan, guests);
    const int tables = guests / tableSize + 1 + guests / 300;
    for (int i = 0; i < tables; ++i) {
        plan.addTable(KWTable::Circular, plan.nextTableName(), tableSize, 0, 0, 0,
                      {400 * (i % 10), 400 * (i / 10)}, {});
    }
    addWishes(plan);
    plan.recalculateScores();
}
