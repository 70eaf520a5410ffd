#pragma once

/// How a plan's panes show it: filled by the main window before a plan is saved and handed to the
/// panes after one is loaded. The fields bear the names that they have in a plan file.
struct KWViewSettings
{
    int table_chart_cols = 1;
    bool table_chart_show_notes = false;
    bool table_chart_show_meal = false;
    bool table_chart_show_seat_numbers = false;
    int table_chart_name_order = 0;
    int guest_chart_cols = 1;
    bool guest_chart_show_notes = false;
    bool guest_chart_show_meal = false;
    bool guest_chart_show_seat_numbers = false;
    int guest_chart_name_order = 0;
    int affinity_name_order = 1;
    int schematic_name_order = 0;
    bool schematic_show_score = false;
    int floor_plan_name_order = 0;
    int floor_plan_show_seats = 0;
    bool floor_plan_show_gender = false;
    bool floor_plan_show_age = false;
    bool floor_plan_show_vip = false;
    bool floor_plan_show_groups = false;
    bool floor_plan_show_locked = false;
    bool guests_show_display_name = true;
    bool guests_show_last_name = true;
    bool guests_show_vip = true;
    bool guests_show_title = true;
    bool guests_show_assigned = true;
    bool guests_show_accepted = true;
    bool guests_show_first_name = true;
    bool guests_show_locked = true;
    bool guests_show_notes = true;
    bool guests_show_meal = true;
    bool groups_show_display_name = true;
    bool groups_show_last_name = true;
    bool groups_show_vip = true;
    bool groups_show_title = true;
    bool groups_show_assigned = true;
    bool groups_show_accepted = true;
    bool groups_show_first_name = true;
    bool groups_show_meal = true;
    bool groups_show_locked = true;
    bool groups_show_notes = true;
};
