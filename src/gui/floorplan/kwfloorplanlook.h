#pragma once

struct KWViewSettings;

/// How the floor plan shows names and seats: what its panel offers and a plan file keeps. A file
/// may have all marks on, which a user cannot choose.
struct KWFloorPlanLook
{
    enum SeatDisplay { CircularName, Circular, NameOnly, None };

    /// What is shown of seats.
    struct Seats
    {
        SeatDisplay display = CircularName;
        bool gender = false;
        bool age = false;
        bool vip = false;
        bool groups = false;
        bool locked = false;

        bool operator==(const Seats &) const = default;

        bool showsCircle() const { return display == CircularName || display == Circular; }
        bool showsText() const { return display == CircularName || display == NameOnly; }
    };

    /// KWGuest::NameOrder, or KWFloorPlanText::seatNumbers.
    int nameOrder = 0;
    Seats seats;

    bool operator==(const KWFloorPlanLook &) const = default;

    /// As a plan file has it; a number that stands for nothing becomes the first choice.
    static KWFloorPlanLook of(const KWViewSettings &settings);
    void writeTo(KWViewSettings &settings) const;

    /// What is none becomes the first.
    static SeatDisplay seatDisplayOf(int number);
};
