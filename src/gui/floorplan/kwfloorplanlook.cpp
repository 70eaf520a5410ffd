#include "gui/floorplan/kwfloorplanlook.h"

#include "core/model/kwviewsettings.h"
#include "gui/floorplan/kwfloorplantext.h"

KWFloorPlanLook::SeatDisplay KWFloorPlanLook::seatDisplayOf(int number)
{
    const bool known = number >= CircularName && number <= None;
    return known ? static_cast<SeatDisplay>(number) : CircularName;
}

KWFloorPlanLook KWFloorPlanLook::of(const KWViewSettings &settings)
{
    const int order = settings.floor_plan_name_order;
    const bool known = order >= 0 && order <= KWFloorPlanText::seatNumbers;
    return {.nameOrder = known ? order : 0,
            .seats = {.display = seatDisplayOf(settings.floor_plan_show_seats),
                      .gender = settings.floor_plan_show_gender,
                      .age = settings.floor_plan_show_age,
                      .vip = settings.floor_plan_show_vip,
                      .groups = settings.floor_plan_show_groups,
                      .locked = settings.floor_plan_show_locked}};
}

void KWFloorPlanLook::writeTo(KWViewSettings &settings) const
{
    settings.floor_plan_name_order = nameOrder;
    settings.floor_plan_show_seats = seats.display;
    settings.floor_plan_show_gender = seats.gender;
    settings.floor_plan_show_age = seats.age;
    settings.floor_plan_show_vip = seats.vip;
    settings.floor_plan_show_groups = seats.groups;
    settings.floor_plan_show_locked = seats.locked;
}
