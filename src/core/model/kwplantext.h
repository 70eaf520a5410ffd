#pragma once

#include <QColor>
#include <QDate>
#include <QFont>
#include <QLatin1StringView>
#include <QString>

#include <array>
#include <string_view>

/// How values stand in a plan file, and the names of its elements and attributes.
namespace KWPlanText {

constexpr QLatin1StringView documentType{"ambrelune"};

/// The attributes that a reader looks for; whatever else an element has means nothing.
inline constexpr std::array<std::string_view, 12> guestAttributes{
    "display_name", "title",  "first_name", "last_name", "meal",     "gender",
    "age",          "locked", "notes",      "vip",       "accepted", "group"};
inline constexpr std::array<std::string_view, 12> groupAttributes{
    "address1",   "address2",   "city",         "state", "zip",  "country",
    "work_phone", "home_phone", "mobile_phone", "email", "name", "notes"};
inline constexpr std::array<std::string_view, 10> tableAttributes{
    "table",        "shape", "seats_across", "seats_down", "seats_across_2",
    "seats_down_2", "notes", "assigned",     "X",          "Y"};
inline constexpr std::array<std::string_view, 3> affinityAttributes{"guest1", "guest2", "value"};

/// An attribute's text: pure ASCII, everything but letters, digits and ! ( ) * - . / _ as percent
/// escapes of its UTF-8 bytes.
QString escaped(const QString &text);
/// The reverse. A "%" without two hex digits stands for itself; null characters are dropped.
QString unescaped(QByteArrayView utf8);

QString fromInt(int value);
QString fromBool(bool value);
QString fromReal(double value);
QString fromDate(const QDate &date);
/// Ten fields with the weight on the old scale of 0 to 99: "Helvetica,12,-1,5,50,0,0,0,0,0".
QString fromFont(const QFont &font);
QString fromColour(const QColor &colour);

/// A text that is no number gives 0.
int toInt(const QString &text);
bool toBool(const QString &text);
/// In single precision, as plan files hold sizes; `fallback` unless finite and above 0.
double toSize(const QString &text, double fallback);
/// Today if the text is no date.
QDate toDate(const QString &text);
/// Ten fields, the toolkit's present 11 to 17, or just a family with or without a point size;
/// anything else is a default font.
QFont toFont(const QString &text);
/// White unless there are three parts; each is brought into 0..255.
QColor toColour(const QString &text);

} // namespace KWPlanText
