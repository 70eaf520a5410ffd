#pragma once

#include <QColor>
#include <QDate>
#include <QFont>
#include <QLatin1StringView>
#include <QString>

#include <array>

/// How values stand in a plan file, and the names of its elements and attributes.
namespace KWPlanText {

constexpr QLatin1StringView documentType{"ambrelune"};

inline constexpr std::array guestAttributes{
    QLatin1StringView("display_name"), QLatin1StringView("title"),
    QLatin1StringView("first_name"),   QLatin1StringView("last_name"),
    QLatin1StringView("meal"),         QLatin1StringView("gender"),
    QLatin1StringView("age"),          QLatin1StringView("locked"),
    QLatin1StringView("notes"),        QLatin1StringView("vip"),
    QLatin1StringView("accepted"),     QLatin1StringView("group")};
inline constexpr std::array groupAttributes{
    QLatin1StringView("address1"),     QLatin1StringView("address2"),
    QLatin1StringView("city"),         QLatin1StringView("state"),
    QLatin1StringView("zip"),          QLatin1StringView("country"),
    QLatin1StringView("work_phone"),   QLatin1StringView("home_phone"),
    QLatin1StringView("mobile_phone"), QLatin1StringView("email"),
    QLatin1StringView("name"),         QLatin1StringView("notes")};
inline constexpr std::array tableAttributes{QLatin1StringView("table"),
                                            QLatin1StringView("shape"),
                                            QLatin1StringView("seats_across"),
                                            QLatin1StringView("seats_down"),
                                            QLatin1StringView("seats_across_2"),
                                            QLatin1StringView("seats_down_2"),
                                            QLatin1StringView("notes"),
                                            QLatin1StringView("assigned"),
                                            QLatin1StringView("X"),
                                            QLatin1StringView("Y")};
inline constexpr std::array affinityAttributes{
    QLatin1StringView("guest1"), QLatin1StringView("guest2"), QLatin1StringView("value")};

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
