#include "cli/planjson.h"

#include "cli/scorejson.h"
#include "core/model/kwdocument.h"
#include "core/model/kwplansettings.h"
#include "core/model/kwplantext.h"

#include <QJsonArray>

namespace {
const QString ampersand = QStringLiteral("&");

QJsonValue indexOrNull(int index)
{
    return index < 0 ? QJsonValue() : QJsonValue(index);
}

QJsonValue toJson(int value)
{
    return value;
}
QJsonValue toJson(bool value)
{
    return value;
}
QJsonValue toJson(double value)
{
    // As the file has it, and not with the noise of single precision.
    return KWPlanText::fromReal(value).toDouble();
}
QJsonValue toJson(const QString &value)
{
    return value;
}
QJsonValue toJson(const QDate &value)
{
    return KWPlanText::fromDate(value);
}
QJsonValue toJson(const QFont &value)
{
    return KWPlanText::fromFont(value);
}
QJsonValue toJson(const QColor &value)
{
    return QJsonArray{value.red(), value.green(), value.blue()};
}

/// Beside the numbers of the file, for people and their scripts.
void addWords(QJsonObject &settings, const KWDocument &document)
{
    settings[QStringLiteral("date_iso")] = document.date().toString(Qt::ISODate);
    settings[QStringLiteral("units_name")] =
        document.units() == KWPlanFields::Feet ? QStringLiteral("feet") : QStringLiteral("metres");
}

QString shapeWord(int shape)
{
    switch (shape) {
    case KWTable::Circular:
        return QStringLiteral("circular");
    case KWTable::Rectangular:
        return QStringLiteral("rectangular");
    case KWTable::HeadTop:
        return QStringLiteral("head, seats at the top");
    case KWTable::HeadRight:
        return QStringLiteral("head, seats on the right");
    case KWTable::HeadBottom:
        return QStringLiteral("head, seats at the bottom");
    case KWTable::HeadLeft:
        return QStringLiteral("head, seats on the left");
    default:
        return QStringLiteral("custom");
    }
}

QString kindWord(int kind)
{
    switch (kind) {
    case KWGroup::Single:
        return QStringLiteral("single");
    case KWGroup::Couple:
        return QStringLiteral("couple");
    case KWGroup::Family:
        return QStringLiteral("family");
    default:
        return QStringLiteral("party");
    }
}

QJsonObject settingsToJson(const KWDocument &document, const KWViewSettings &views)
{
    QJsonObject json{{QStringLiteral("version"), document.fileVersion()}};
    for (const KWPlanSetting &setting : planSettings()) {
        std::visit(
            [&](auto member) {
                json[setting.key] = toJson(settingOf(document.fields(), views, member));
            },
            setting.target);
    }
    addWords(json, document);
    return json;
}

QJsonObject guestToJson(const KWDocument &document, const KWGuest &guest)
{
    KWTable *table = nullptr;
    int seat = -1;
    document.findGuest(&guest, &table, &seat);
    QJsonArray names;
    for (int order = 0; order < KWGuest::NameOrderCount; ++order)
        names.append(guest.name(order));
    return {{QStringLiteral("display_name"), guest.displayName()},
            {QStringLiteral("title"), guest.title()},
            {QStringLiteral("first_name"), guest.firstName()},
            {QStringLiteral("last_name"), guest.lastName()},
            {QStringLiteral("meal"), guest.meal()},
            {QStringLiteral("gender"), guest.genderString()},
            {QStringLiteral("age"), guest.ageString()},
            {QStringLiteral("locked"), guest.isLocked()},
            {QStringLiteral("notes"), guest.notes()},
            {QStringLiteral("vip"), guest.isVip()},
            {QStringLiteral("accepted"), guest.isAccepted()},
            {QStringLiteral("group"), indexOrNull(document.indexOfGroup(guest.group()))},
            {QStringLiteral("table"), indexOrNull(document.indexOfTable(table))},
            {QStringLiteral("seat"), indexOrNull(seat)},
            {QStringLiteral("names"), names}};
}

QJsonObject groupToJson(const KWDocument &document, const KWGroup &group)
{
    const KWContact &contact = group.contact();
    QJsonArray members;
    for (int i = 0; i < group.guestCount(); ++i)
        members.append(document.indexOfGuest(group.guestAt(i)));
    return {{QStringLiteral("address1"), contact.address1},
            {QStringLiteral("address2"), contact.address2},
            {QStringLiteral("city"), contact.city},
            {QStringLiteral("state"), contact.state},
            {QStringLiteral("zip"), contact.zip},
            {QStringLiteral("country"), contact.country},
            {QStringLiteral("work_phone"), contact.work_phone},
            {QStringLiteral("home_phone"), contact.home_phone},
            {QStringLiteral("mobile_phone"), contact.mobile_phone},
            {QStringLiteral("email"), contact.email},
            {QStringLiteral("name"), group.name()},
            {QStringLiteral("notes"), group.notes()},
            {QStringLiteral("members"), members},
            {QStringLiteral("address_name"), group.addressName(ampersand)},
            {QStringLiteral("first_names"), group.firstNames(ampersand)},
            {QStringLiteral("kind"), group.kind()},
            {QStringLiteral("kind_name"), kindWord(group.kind())}};
}

QJsonObject tableToJson(const KWDocument &document, const KWTable &table)
{
    QJsonArray seats;
    for (const KWGuest *guest : table.seats())
        seats.append(indexOrNull(document.indexOfGuest(guest)));
    QJsonArray scores;
    QJsonArray points;
    for (const KWSeatScore &seatScore : table.seatScores()) {
        QJsonArray entries;
        for (const int entry : seatScore)
            entries.append(entry);
        scores.append(entries);
        points.append(pointsToJson(seatScore));
    }
    return {{QStringLiteral("name"), table.name()},
            {QStringLiteral("shape"), table.shape()},
            {QStringLiteral("shape_name"), shapeWord(table.shape())},
            {QStringLiteral("seats_across"), table.seatsAcross()},
            {QStringLiteral("seats_down"), table.seatsDown()},
            {QStringLiteral("seats_across_2"), table.seatsAcross2()},
            {QStringLiteral("seats_down_2"), table.seatsDown2()},
            {QStringLiteral("x"), table.position().x()},
            {QStringLiteral("y"), table.position().y()},
            {QStringLiteral("notes"), table.notes()},
            {QStringLiteral("seats"), seats},
            {QStringLiteral("seat_scores"), scores},
            {QStringLiteral("seat_points"), points},
            {QStringLiteral("score"), table.score()}};
}
} // namespace

QJsonObject planToJson(const KWDocument &document, const KWViewSettings &views)
{
    QJsonArray guests;
    for (const KWGuest *guest : document.guests())
        guests.append(guestToJson(document, *guest));
    QJsonArray groups;
    for (const KWGroup *group : document.groups())
        groups.append(groupToJson(document, *group));
    QJsonArray tables;
    for (const KWTable *table : document.tables())
        tables.append(tableToJson(document, *table));
    QJsonArray affinities;
    for (const KWDocument::Affinity &pair : document.affinities()) {
        affinities.append(
            QJsonObject{{QStringLiteral("guest1"), document.indexOfGuest(pair.first)},
                        {QStringLiteral("guest2"), document.indexOfGuest(pair.second)},
                        {QStringLiteral("value"), pair.value},
                        {QStringLiteral("wish"), wishWord(pair.value)}});
    }
    return {
        {QStringLiteral("version_differs"), document.fileVersion() != KWPlanFields::fileVersion},
        {QStringLiteral("settings"), settingsToJson(document, views)},
        {QStringLiteral("guests"), guests},
        {QStringLiteral("groups"), groups},
        {QStringLiteral("tables"), tables},
        {QStringLiteral("affinities"), affinities},
        {QStringLiteral("guest_count"), document.guestCount()},
        {QStringLiteral("seat_count"), document.seatCount()},
        {QStringLiteral("seated_count"), document.seatedGuestCount()},
        {QStringLiteral("score"), document.totalScore()}};
}
