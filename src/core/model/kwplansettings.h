#pragma once

#include "core/model/kwplanfields.h"
#include "core/model/kwviewsettings.h"

#include <QLatin1StringView>

#include <span>
#include <variant>

/// One setting of a plan file: its key and where its value lives. The kind of the value is that
/// of the member.
struct KWPlanSetting
{
    using Target =
        std::variant<int KWPlanFields::*, bool KWPlanFields::*, double KWPlanFields::*,
                     QString KWPlanFields::*, QDate KWPlanFields::*, QFont KWPlanFields::*,
                     QColor KWPlanFields::*, int KWViewSettings::*, bool KWViewSettings::*>;

    QLatin1StringView key;
    Target target;
};

/// Every setting but the version, in the order of the file. What they are when a file does not
/// say is in absentPlanFields() and in a fresh KWViewSettings; an absent font stays as it is.
std::span<const KWPlanSetting> planSettings();

/// The values of settings that a file does not hold.
KWPlanFields absentPlanFields();

/// The member of the fields or of the view settings that a setting stands for.
template <typename Value>
Value &settingOf(KWPlanFields &fields, KWViewSettings & /*views*/, Value KWPlanFields::*member)
{
    return fields.*member;
}
template <typename Value>
Value &settingOf(KWPlanFields & /*fields*/, KWViewSettings &views, Value KWViewSettings::*member)
{
    return views.*member;
}
template <typename Value>
const Value &settingOf(const KWPlanFields &fields, const KWViewSettings & /*views*/,
                       Value KWPlanFields::*member)
{
    return fields.*member;
}
template <typename Value>
const Value &settingOf(const KWPlanFields & /*fields*/, const KWViewSettings &views,
                       Value KWViewSettings::*member)
{
    return views.*member;
}
