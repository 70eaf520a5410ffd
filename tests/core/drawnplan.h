#pragma once

#include "core/model/kwmodelhooks.h"
#include "core/model/kwrandom.h"
#include "support/testplan.h"

#include <QHash>
#include <QMetaType>
#include <QStringList>

// Helpers of the tests around the layout: plans drawn in one line of text, a repeatable random
// source and the trace.

Q_DECLARE_METATYPE(RandomPlan)

inline QStringList wordsOf(const QString &text)
{
    return text.split(u' ', Qt::SkipEmptyParts);
}

/// The guest with this display name; null if there is none.
inline KWGuest *guestNamed(const KWDocument &plan, const QString &name)
{
    for (KWGuest *guest : plan.guests()) {
        if (guest->displayName() == name)
            return guest;
    }
    return nullptr;
}

/// Adds a guest from a drawing: "A", locked "A!", VIP "A*".
inline KWGuest *addDrawnGuest(KWDocument &plan, QString word)
{
    const bool locked = word.endsWith(u'!');
    const bool vip = word.endsWith(u'*');
    if (locked || vip)
        word.chop(1);
    const QByteArray name = word.toUtf8();
    return addGuest(plan, {.name = name.constData(), .locked = locked, .vip = vip});
}

inline void addDrawnTable(KWDocument &plan, int shape, const QStringList &seats)
{
    KWTable *table = addTable(plan, "table", shape, static_cast<int>(seats.size()));
    for (int seat = 0; seat < table->seatCount(); ++seat) {
        if (seats.at(seat) != u'-')
            plan.assignGuest(addDrawnGuest(plan, seats.at(seat)), table, seat, false);
    }
}

/// Adds one part of a drawing, of which `kind` is the first word.
inline void addDrawnPart(KWDocument &plan, const QString &kind, const QStringList &words)
{
    static const QHash<QString, int> wishes{{s("loves"), KWScore::Loves},
                                            {s("likes"), KWScore::Likes},
                                            {s("dislikes"), KWScore::Dislikes},
                                            {s("hates"), KWScore::Hates}};
    if (kind == u"ring") {
        addDrawnTable(plan, KWTable::Circular, words);
    } else if (kind == u"head") {
        addDrawnTable(plan, KWTable::HeadTop, words);
    } else if (kind == u"wait") {
        for (const QString &word : words)
            addDrawnGuest(plan, word);
    } else if (kind == u"group") {
        KWGroup *group = plan.addGroup({}, s("group"), {});
        for (const QString &word : words)
            plan.moveGuestToGroup(group, guestNamed(plan, word));
    } else if (wishes.contains(kind)) {
        plan.setAffinity(guestNamed(plan, words.at(0)), guestNamed(plan, words.at(1)),
                         wishes.value(kind), false);
    } else {
        qFatal("a drawing has no part \"%s\"", qUtf8Printable(kind));
    }
}

/// A scored plan from a drawing, as in "ring A B! - | head C* | wait D | group A C | loves A B":
/// tables with a guest or "-" on each seat, guests without a seat, groups of guests already drawn,
/// and a proximity value for two of them.
inline KWDocument drawnPlan(const QString &drawing)
{
    KWDocument plan;
    for (const QString &part : drawing.split(u'|', Qt::SkipEmptyParts)) {
        QStringList words = wordsOf(part);
        const QString kind = words.takeFirst();
        addDrawnPart(plan, kind, words);
    }
    plan.recalculateScores();
    plan.setModified(false);
    return plan;
}

inline KWDocument drawnPlan(const char *drawing)
{
    return drawnPlan(s(drawing));
}

/// The seating of all tables in one line: "A B - | C".
inline QString seatingLine(const KWDocument &plan)
{
    return seating(plan).replace(u'\n', s(" | "));
}

/// Seats guests anew as in "A - B | C"; whoever is not named is unseated. Rescores.
inline void reseat(KWDocument &plan, const QString &seats)
{
    for (KWGuest *guest : plan.guests())
        plan.unassignGuest(guest, false);
    const QStringList tables = seats.split(u'|');
    for (int i = 0; i < tables.size(); ++i) {
        const QStringList names = wordsOf(tables.at(i));
        for (int seat = 0; seat < names.size(); ++seat)
            plan.assignGuest(guestNamed(plan, names.at(seat)), plan.tableAt(i), seat, false);
    }
    plan.recalculateScores();
}

/// The score as it should stand, added up from the seats without what is stored.
inline int scoreFromSeats(const KWDocument &plan)
{
    int score = 0;
    for (const KWTable *table : plan.tables()) {
        for (int seat = 0; seat < table->seatCount(); ++seat) {
            if (const KWGuest *guest = table->guest(seat))
                score += plan.seatContribution(table, seat, guest)[KWScore::TotalEntry];
        }
    }
    return score;
}

/// Where the locked guests are: table and seat of each, "-" for one without a seat.
inline QStringList lockedSeats(const KWDocument &plan)
{
    QStringList places;
    for (const KWGuest *guest : plan.guests()) {
        if (!guest->isLocked())
            continue;
        KWTable *table = nullptr;
        int seat = -1;
        const bool seated = plan.findGuest(guest, &table, &seat);
        places.append(guest->displayName() + u' ' +
                      (seated ? s("%1.%2").arg(plan.indexOfTable(table)).arg(seat) : s("-")));
    }
    return places;
}

/// True if every guest on a seat is found there and nowhere else.
inline bool seatsAgreeWithGuests(const KWDocument &plan)
{
    for (const KWTable *table : plan.tables()) {
        for (int seat = 0; seat < table->seatCount(); ++seat) {
            const KWGuest *guest = table->guest(seat);
            KWTable *foundTable = nullptr;
            int foundSeat = -1;
            if (guest && (!plan.findGuest(guest, &foundTable, &foundSeat) || foundTable != table ||
                          foundSeat != seat))
                return false;
        }
    }
    return plan.seatedGuests().size() == plan.seatedGuestCount();
}

/// While it lives, the random source starts from one seed, now and at every later seeding.
class FixedSeed
{
public:
    explicit FixedSeed(unsigned seed)
    {
        setFixedRandomSeed(seed);
        seedRandomNumbers();
    }
    ~FixedSeed() { setFixedRandomSeed({}); }
    FixedSeed(const FixedSeed &) = delete;
    FixedSeed &operator=(const FixedSeed &) = delete;
};

/// Writes down the trace while it lives.
class TraceLog
{
public:
    TraceLog()
    {
        modelHooks().trace = [this](const QString &line) { m_lines.append(line); };
    }
    ~TraceLog() { modelHooks().trace = nullptr; }
    TraceLog(const TraceLog &) = delete;
    TraceLog &operator=(const TraceLog &) = delete;

    const QStringList &lines() const { return m_lines; }
    /// The lines since the last call.
    QStringList take() { return std::exchange(m_lines, {}); }

private:
    QStringList m_lines;
};
