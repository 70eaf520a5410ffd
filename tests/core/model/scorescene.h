#pragma once

#include "support/testplan.h"

#include <QMap>

/// A plan with one table, told in short texts.
///
/// The seats are "Am B* - Cf*": a letter for each guest, then "m" or "f" for a gender and "*" for
/// a VIP, "-" for an empty seat. Guests behind a "|" wait for a seat. The wishes are "AB0 CA4":
/// two guests and a proximity value.
class ScoreScene
{
public:
    KWDocument plan;
    KWTable *table = nullptr;

    ScoreScene(int shape, const char *seats, const char *wishes)
        : ScoreScene(seats)
    {
        table = addTable(plan, "T", shape, static_cast<int>(m_seats.size()));
        fill(wishes);
    }
    /// The table has the counts that its shape asks for, which may be more than seats are told.
    ScoreScene(const KWTable::Sides &sides, int shape, const char *seats, const char *wishes)
        : ScoreScene(seats)
    {
        table = plan.addTable(shape, s("T"), sides[0], sides[1], sides[2], sides[3], {}, {});
        fill(wishes);
    }

    KWGuest *guest(char name) const { return m_guests.value(QLatin1Char(name)); }

    /// The stored entries of each seat that is taken or not all zero: "20 0 0 0 2 0 22, ...".
    QString scores() const
    {
        QStringList result;
        for (int seat = 0; seat < table->seatCount(); ++seat) {
            if (table->guest(seat) || table->seatScores().at(seat) != KWSeatScore{})
                result.append(text(table->seatScores().at(seat)));
        }
        return result.join(s(", "));
    }

    static QString text(const KWSeatScore &score)
    {
        QStringList numbers;
        for (int points : score)
            numbers.append(QString::number(points));
        return numbers.join(u' ');
    }

private:
    explicit ScoreScene(const char *seats)
        : m_seats(s(seats).section(u'|', 0, 0).split(u' ', Qt::SkipEmptyParts))
        , m_waiting(s(seats).section(u'|', 1).split(u' ', Qt::SkipEmptyParts))
    {
    }

    KWGuest *add(const QString &facts)
    {
        const QByteArray name = facts.left(1).toUtf8();
        const int gender = facts.contains(u'm')   ? KWGuest::Male
                           : facts.contains(u'f') ? KWGuest::Female
                                                  : KWGuest::Undefined;
        KWGuest *guest = addGuest(
            plan, {.name = name.constData(), .gender = gender, .vip = facts.contains(u'*')});
        return m_guests[facts.front()] = guest;
    }

    void fill(const char *wishes)
    {
        for (int seat = 0; seat < m_seats.size(); ++seat) {
            if (m_seats.at(seat) != s("-"))
                plan.assignGuest(add(m_seats.at(seat)), table, seat, false);
        }
        for (const QString &facts : std::as_const(m_waiting))
            add(facts);
        for (const QString &wish : s(wishes).split(u' ', Qt::SkipEmptyParts))
            plan.setAffinity(m_guests.value(wish.at(0)), m_guests.value(wish.at(1)),
                             wish.mid(2).toInt(), false);
        plan.recalculateScores();
    }

    QStringList m_seats;
    QStringList m_waiting;
    QMap<QChar, KWGuest *> m_guests;
};
