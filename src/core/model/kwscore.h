#pragma once

#include <array>

/// The rules of the score as numbers: what a wish, a neighbour and a VIP are worth.
namespace KWScore {

/// What the user may wish for a pair of guests. Neutral is never stored.
enum Proximity { Loves, Likes, Neutral, Dislikes, Hates };

/// Where the points of a seat's score stand.
enum Entry {
    LovesEntry,
    LikesEntry,
    DislikesEntry,
    HatesEntry,
    GenderEntry,
    AloneEntry,
    TotalEntry,
    EntryCount
};

constexpr int alone = -9;
constexpr int genderAlternation = 2;
constexpr double vipWeight = 3.0;
constexpr double plainWeight = 1.0;

/// By proximity value: for neighbours, and for guests at one table who are not neighbours.
constexpr std::array<int, 5> nextTo{20, 5, 0, -10, -40};
constexpr std::array<int, 5> sameTable{10, 2, 0, -5, -20};

/// To the nearest integer, halves away from zero.
constexpr int rounded(double x)
{
    return static_cast<int>(x < 0 ? x - 0.5 : x + 0.5);
}

/// How much the points of a guest's seat count.
constexpr double weight(bool vip)
{
    return vip ? vipWeight : plainWeight;
}

/// The entry for points from pairs of a proximity value; -1 for neutral and unknown values.
constexpr int entryOf(int proximity)
{
    switch (proximity) {
    case Loves:
        return LovesEntry;
    case Likes:
        return LikesEntry;
    case Dislikes:
        return DislikesEntry;
    case Hates:
        return HatesEntry;
    default:
        return -1;
    }
}

} // namespace KWScore

/// The points of one seat, by KWScore::Entry; all zero for an empty seat.
using KWSeatScore = std::array<int, KWScore::EntryCount>;
