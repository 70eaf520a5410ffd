#pragma once

#include "../drawnplan.h"
#include "core/autolayout/kwmutations.h"

#include <QtTest>

#include <functional>

// What the solver's moves can make of a plan, found by trying many seeds.

using Move = std::function<bool(KWDocument &)>;

/// What a move must leave alone, as a text.
inline QString untouchedBy(const KWDocument &child)
{
    QStringList lines = lockedSeats(child);
    for (const KWTable *table : child.tables())
        lines.append(s("score %1").arg(table->score()));
    return lines.join(u'\n');
}

/// The seating after a move that succeeded or "failed". Whatever a move must never do is told
/// behind a colon: change the seats on failure, move the locked, rescore, or leave another history
/// than the plan's with the mark.
inline QString outcome(const KWDocument &plan, const Move &move, const QString &mark)
{
    KWDocument child(plan);
    // No table scores this by itself, so that a rescore would show.
    for (KWTable *table : child.tables()) {
        table->setScores(table->seatScores(), 12345);
        table->outdateScores();
    }
    const QString before = untouchedBy(child);
    const bool success = move(child);

    QString result = success ? seatingLine(child) : s("failed");
    if (!success && seating(child) != seating(plan))
        result += s(": seats changed to ") + seatingLine(child);
    if (untouchedBy(child) != before)
        result += s(": touched ") + untouchedBy(child);
    if (child.history() != plan.history() + (success ? mark : QString()))
        result += s(": history ") + child.history();
    if (!seatsAgreeWithGuests(child))
        result += s(": seats and guests disagree");
    return result;
}

/// Every outcome that turns up over so many seeds, once each, in order.
inline QStringList outcomes(const KWDocument &plan, const Move &move, const QString &mark,
                            unsigned seeds = 600)
{
    QStringList result;
    for (unsigned i = 1; i <= seeds; ++i) {
        const FixedSeed seed(i);
        const QString found = outcome(plan, move, mark);
        if (!result.contains(found))
            result.append(found);
    }
    result.sort();
    return result;
}

/// Starts a table of drawings and of all the outcomes that a move may have on them; returns what
/// adds a row.
inline auto outcomeRows()
{
    QTest::addColumn<QString>("drawing");
    QTest::addColumn<QStringList>("expected");
    return [](const char *name, const char *drawing, const QList<const char *> &expected) {
        QStringList texts;
        for (const char *text : expected)
            texts.append(s(text));
        texts.sort();
        QTest::newRow(name) << s(drawing) << texts;
    };
}
