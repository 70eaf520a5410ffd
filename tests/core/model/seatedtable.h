#pragma once

#include "support/testplan.h"

#include <map>
#include <memory>

/// A table seated after a pattern such as "A--b": a guest for each letter, locked if it is small.
class Seated
{
public:
    KWTable table;

    Seated(int shape, const QString &pattern, const KWTable::Sides &counts)
        : table(shape, s("T"), counts[0], counts[1], counts[2], counts[3], {}, {})
    {
        for (int seat = 0; seat < pattern.size(); ++seat)
            place(seat, pattern.at(seat));
    }
    explicit Seated(const QString &pattern, int shape = KWTable::Circular)
        : Seated(shape, pattern, {static_cast<int>(pattern.size())})
    {
    }

    QString pattern() const { return seating(table).remove(u' '); }
    void deleteGuest(char name) { m_guests.erase(QLatin1Char(name)); }

private:
    void place(int seat, QChar name)
    {
        if (name == u'-')
            return;
        auto guest = std::make_unique<KWGuest>(
            KWGuestValues{.display_name = name, .locked = name.isLower()});
        table.setGuest(seat, guest.get());
        m_guests[name] = std::move(guest);
    }

    std::map<QChar, std::unique_ptr<KWGuest>> m_guests;
};
