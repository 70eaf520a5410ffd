#include "cli/scorejson.h"

#include "core/charts/kwwishes.h"
#include "core/model/kwdocument.h"

#include <QJsonArray>

#include <array>

using namespace Qt::StringLiterals;

namespace {
QJsonObject seatToJson(const KWDocument &document, const KWTable &table, int seat)
{
    const KWGuest *guest = table.guest(seat);
    return {{u"seat"_s, seat},
            {u"guest"_s, guest ? QJsonValue(document.indexOfGuest(guest)) : QJsonValue()},
            {u"name"_s, guest ? QJsonValue(guest->name()) : QJsonValue()},
            {u"points"_s, pointsToJson(table.seatScores().at(seat))}};
}

QJsonObject tableToJson(const KWDocument &document, const KWTable &table)
{
    QJsonArray seats;
    for (int seat = 0; seat < table.seatCount(); ++seat)
        seats.append(seatToJson(document, table, seat));
    return {{u"table"_s, document.indexOfTable(&table)},
            {u"name"_s, table.name()},
            {u"seat_count"_s, table.seatCount()},
            {u"seated_count"_s, table.seatedCount()},
            {u"seats"_s, seats},
            {u"score"_s, table.score()}};
}

QString seatingWord(KWWish::Seating seating)
{
    switch (seating) {
    case KWWish::SideBySide:
        return u"side by side"_s;
    case KWWish::AtOneTable:
        return u"one table"_s;
    case KWWish::AtDifferentTables:
        return u"different tables"_s;
    case KWWish::FirstUnseated:
        return u"guest1 has no seat"_s;
    case KWWish::SecondUnseated:
        return u"guest2 has no seat"_s;
    default:
        return u"neither has a seat"_s;
    }
}

QJsonObject wishToJson(const KWDocument &document, const KWWish &wish)
{
    return {{u"guest1"_s, document.indexOfGuest(wish.first)},
            {u"guest2"_s, document.indexOfGuest(wish.second)},
            {u"name1"_s, wish.first->name()},
            {u"name2"_s, wish.second->name()},
            {u"value"_s, wish.value},
            {u"wish"_s, wishWord(wish.value)},
            {u"met"_s, wish.isMet},
            {u"seating"_s, seatingWord(wish.seating)},
            {u"sentence"_s, wish.sentence()},
            {u"points"_s, wish.points}};
}
} // namespace

QJsonObject pointsToJson(const KWSeatScore &score)
{
    static const std::array<QString, KWScore::EntryCount> names{
        u"next_to"_s, u"near_to"_s, u"not_next_to"_s, u"not_near_to"_s,
        u"gender"_s,  u"alone"_s,   u"total"_s};
    QJsonObject json;
    for (std::size_t entry = 0; entry < names.size(); ++entry)
        json[names.at(entry)] = score.at(entry);
    return json;
}

QString wishWord(int value)
{
    switch (value) {
    case KWScore::Loves:
        return u"next to"_s;
    case KWScore::Likes:
        return u"near to"_s;
    case KWScore::Dislikes:
        return u"not next to"_s;
    default:
        return u"not near to"_s;
    }
}

QJsonObject scoreToJson(const KWDocument &document)
{
    QJsonArray tables;
    for (const KWTable *table : document.tables())
        tables.append(tableToJson(document, *table));
    QJsonArray unseated;
    for (const KWGuest *guest : document.unseatedGuests(true))
        unseated.append(
            QJsonObject{{u"guest"_s, document.indexOfGuest(guest)}, {u"name"_s, guest->name()}});
    const QList<KWWish> all = KWWish::all(document);
    QJsonArray wishes;
    for (const KWWish &wish : all)
        wishes.append(wishToJson(document, wish));
    return {{u"guest_count"_s, document.guestCount()},
            {u"seat_count"_s, document.seatCount()},
            {u"seated_count"_s, document.seatedGuestCount()},
            {u"tables"_s, tables},
            {u"unseated"_s, unseated},
            {u"wishes"_s, wishes},
            {u"unmet_count"_s, KWWish::unmetCount(all)},
            {u"score"_s, document.totalScore()}};
}
