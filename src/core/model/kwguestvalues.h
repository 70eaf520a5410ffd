#pragma once

#include <QString>

/// What a person can say of a guest: all but the group, the seat and the wishes. A plain value,
/// whose fields bear the names that they have in a plan file.
struct KWGuestValues
{
    /// The name as the user wants it shown; it does not follow the other names.
    QString display_name{};
    QString title{};
    QString first_name{};
    QString last_name{};
    QString meal{};
    /// KWGuest::Gender and KWGuest::Age.
    int gender = 0;
    int age = 0;
    /// The guest may not be moved off their seat, or on to one.
    bool locked = false;
    QString notes{};
    bool vip = false;
    /// The guest has accepted the invitation.
    bool accepted = false;

    bool operator==(const KWGuestValues &) const = default;
};
