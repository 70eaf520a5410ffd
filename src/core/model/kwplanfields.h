#pragma once

#include <QColor>
#include <QDate>
#include <QFont>
#include <QString>

/// What belongs to the one event: a new plan starts it afresh.
struct KWPlanFacts
{
    static constexpr double defaultRoomSize = 20.0;
    /// Plan files hold sizes in single precision, and so does this.
    static constexpr double defaultChairSize = static_cast<double>(0.6F);
    static constexpr int defaultPrintMargin = 10;

    QString event;
    QString venue;
    QDate date = QDate::currentDate();
    int fixed_cost = 0;
    int adult_cost = 0;
    int child_cost = 0;
    QString notes;
    double room_x_size = defaultRoomSize;
    double room_y_size = defaultRoomSize;
    double chair_size = defaultChairSize;
    QString print_header_text;
    QFont print_header_font;
    QColor print_header_colour;
    QString print_footer_text;
    QFont print_footer_font;
    QColor print_footer_colour;
    int print_margin = defaultPrintMargin;
    bool print_orientation = true;
    int header_position = 0;
    int footer_position = 0;
};

/// How plans are shown and measured: a new plan keeps it while the program runs.
struct KWPlanLooks
{
    enum Units { Metres, Feet };

    bool show_grid = false;
    int units = Metres;
    QColor floorplan_colour_seats = Qt::white;
    QColor floorplan_colour_seats_edge = Qt::black;
    QColor floorplan_colour_tables = Qt::white;
    QColor floorplan_colour_tables_edge = Qt::black;
    QColor floorplan_colour_inside = Qt::white;
    QColor floorplan_colour_outside = Qt::gray;
    QColor floorplan_colour_seats_text = Qt::black;
    QColor floorplan_colour_table_text = Qt::black;
    QFont floor_plan_font;
    /// Invalid while the plan has no colour of its own for selected things.
    QColor floorplan_colour_selected;
    QFont table_chart_font;
    QColor table_chart_colour_text = Qt::black;
    QColor table_chart_colour_background = Qt::white;
    QFont guest_chart_font;
    QColor guest_chart_colour_text = Qt::black;
    QColor guest_chart_colour_background = Qt::white;
};

/// What a plan holds beside its guests, groups, tables and wishes. The fields bear the names that
/// they have in a plan file.
struct KWPlanFields : KWPlanFacts, KWPlanLooks
{
    /// The version of the plan files that this program writes.
    static constexpr int fileVersion = 2;
};
