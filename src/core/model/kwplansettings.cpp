#include "core/model/kwplansettings.h"

#include "core/model/kwmodelhooks.h"

#include <array>

// A key and the member of the same name.
#define FIELD(name)                                                                                \
    KWPlanSetting                                                                                  \
    {                                                                                              \
        QLatin1StringView(#name), &KWPlanFields::name                                              \
    }
#define VIEW(name)                                                                                 \
    KWPlanSetting                                                                                  \
    {                                                                                              \
        QLatin1StringView(#name), &KWViewSettings::name                                            \
    }

std::span<const KWPlanSetting> planSettings()
{
    static constexpr std::array settings{
        FIELD(event),
        FIELD(venue),
        FIELD(date),
        FIELD(fixed_cost),
        FIELD(adult_cost),
        FIELD(child_cost),
        FIELD(notes),
        FIELD(room_x_size),
        FIELD(room_y_size),
        FIELD(chair_size),
        FIELD(show_grid),
        FIELD(units),
        VIEW(table_chart_cols),
        VIEW(table_chart_show_notes),
        VIEW(table_chart_show_meal),
        VIEW(table_chart_show_seat_numbers),
        VIEW(table_chart_name_order),
        VIEW(guest_chart_cols),
        VIEW(guest_chart_show_notes),
        VIEW(guest_chart_show_meal),
        VIEW(guest_chart_show_seat_numbers),
        VIEW(guest_chart_name_order),
        VIEW(affinity_name_order),
        VIEW(schematic_name_order),
        VIEW(schematic_show_score),
        VIEW(floor_plan_name_order),
        VIEW(floor_plan_show_seats),
        VIEW(floor_plan_show_gender),
        VIEW(floor_plan_show_age),
        VIEW(floor_plan_show_vip),
        VIEW(floor_plan_show_groups),
        VIEW(floor_plan_show_locked),
        VIEW(guests_show_display_name),
        VIEW(guests_show_last_name),
        VIEW(guests_show_vip),
        VIEW(guests_show_title),
        VIEW(guests_show_assigned),
        VIEW(guests_show_accepted),
        VIEW(guests_show_first_name),
        VIEW(guests_show_locked),
        VIEW(guests_show_notes),
        VIEW(guests_show_meal),
        VIEW(groups_show_display_name),
        VIEW(groups_show_last_name),
        VIEW(groups_show_vip),
        VIEW(groups_show_title),
        VIEW(groups_show_assigned),
        VIEW(groups_show_accepted),
        VIEW(groups_show_first_name),
        VIEW(groups_show_meal),
        VIEW(groups_show_locked),
        VIEW(groups_show_notes),
        FIELD(print_header_text),
        FIELD(print_header_font),
        FIELD(print_header_colour),
        FIELD(print_footer_text),
        FIELD(print_footer_font),
        FIELD(print_footer_colour),
        FIELD(print_margin),
        FIELD(print_orientation),
        FIELD(header_position),
        FIELD(footer_position),
        FIELD(floorplan_colour_seats),
        FIELD(floorplan_colour_seats_edge),
        FIELD(floorplan_colour_tables),
        FIELD(floorplan_colour_tables_edge),
        FIELD(floorplan_colour_inside),
        FIELD(floorplan_colour_outside),
        FIELD(floorplan_colour_seats_text),
        FIELD(floorplan_colour_table_text),
        FIELD(floor_plan_font),
        FIELD(floorplan_colour_selected),
        FIELD(table_chart_font),
        FIELD(table_chart_colour_text),
        FIELD(table_chart_colour_background),
        FIELD(guest_chart_font),
        FIELD(guest_chart_colour_text),
        FIELD(guest_chart_colour_background),
    };
    return settings;
}

#undef FIELD
#undef VIEW

KWPlanFields absentPlanFields()
{
    KWPlanFields fields;
    fields.print_header_colour = Qt::black;
    fields.print_footer_colour = Qt::black;
    fields.print_footer_text = modelHooks().printFooter();
    fields.floorplan_colour_selected = modelHooks().selectionColour();
    return fields;
}
