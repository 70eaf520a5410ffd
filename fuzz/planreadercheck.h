#pragma once

#include "core/model/kwdocument.h"
#include "core/model/kwplanreader.h"

#include <QBuffer>
#include <QByteArrayList>

#include <algorithm>

/// What must hold of every text that is offered as a plan file. The fuzzer asks this of its
/// inputs and the tests ask it of the fuzzer's corpus and of the broken files.
namespace PlanReaderCheck {

/// A plan as it is read from the bytes of a file.
struct ReadPlan
{
    KWDocument document;
    KWViewSettings views;
    bool isPlan = false;

    explicit ReadPlan(QByteArray bytes)
    {
        QBuffer device(&bytes);
        KWPlanReader reader;
        isPlan = device.open(QIODevice::ReadOnly) && reader.read(device);
        if (!isPlan)
            return;
        reader.build(document, views);
        document.recalculateScores();
    }
};

inline QString faultOfTable(const KWDocument &plan, const KWTable *table)
{
    if (table->shape() < 0 || table->shape() >= KWTable::ShapeCount)
        return QStringLiteral("a table has an unknown shape");
    const auto [across, down, across2, down2] = table->sides();
    const bool sided = table->shape() == KWTable::Rectangular || table->shape() == KWTable::Custom;
    if (sided &&
        table->seatCount() != KWTable::seatCountFor(table->shape(), across, down, across2, down2))
        return QStringLiteral("a table has other seats than its sides say");
    if (table->seatScores().size() != table->seatCount())
        return QStringLiteral("a table has other scores than seats");
    for (int seat = 0; seat < table->seatCount(); ++seat) {
        const KWGuest *guest = table->guest(seat);
        KWTable *tableFound = nullptr;
        int seatFound = -1;
        if (guest && !(plan.findGuest(guest, &tableFound, &seatFound) && tableFound == table &&
                       seatFound == seat))
            return QStringLiteral("a guest sits on two seats");
    }
    return {};
}

inline QString faultOfGuest(const KWDocument &plan, const KWGuest *guest)
{
    if (plan.indexOfGroup(guest->group()) < 0)
        return QStringLiteral("a guest is in no group");
    if (guest->genderString().isEmpty() || guest->ageString().isEmpty())
        return QStringLiteral("a guest has no gender or age");
    return {};
}

/// The first of the plan's own rules that a plan breaks.
inline QString faultOfPlan(const KWDocument &plan)
{
    int members = 0;
    for (const KWGroup *group : plan.groups())
        members += group->guestCount();
    if (plan.groupCount() == 0 || members != plan.guestCount())
        return QStringLiteral("the groups do not hold every guest once");
    for (const KWGuest *guest : plan.guests()) {
        if (const QString fault = faultOfGuest(plan, guest); !fault.isEmpty())
            return fault;
    }
    for (const KWTable *table : plan.tables()) {
        if (const QString fault = faultOfTable(plan, table); !fault.isEmpty())
            return fault;
    }
    for (const KWDocument::Affinity &wish : plan.affinities()) {
        if (plan.indexOfGuest(wish.first) < 0 || plan.indexOfGuest(wish.second) < 0)
            return QStringLiteral("a wish is for a guest who does not exist");
    }
    return {};
}

/// The first line in which two texts differ.
inline QString difference(const QByteArray &text, const QByteArray &again)
{
    const QByteArrayList lines = text.split('\n');
    const QByteArrayList linesAgain = again.split('\n');
    qsizetype i = 0;
    while (i < lines.size() && lines.value(i) == linesAgain.value(i))
        ++i;
    return QStringLiteral("saved as: %1\nloaded and saved again as: %2")
        .arg(QString::fromUtf8(lines.value(i)), QString::fromUtf8(linesAgain.value(i)));
}

/// What is wrong with the way in which these bytes are read; empty if nothing is. They may be no
/// plan. If they are one, it is sound, and saving, loading and saving it again changes nothing.
inline QString faultOf(const QByteArray &bytes)
{
    const ReadPlan plan(bytes);
    if (!plan.isPlan)
        return {};
    if (const QString fault = faultOfPlan(plan.document); !fault.isEmpty())
        return fault;
    const QByteArray text = plan.document.toPlanText(plan.views);
    const auto isAscii = [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); };
    if (!std::all_of(text.begin(), text.end(), isAscii))
        return QStringLiteral("the saved text is not ASCII");

    const ReadPlan again(text);
    if (!again.isPlan)
        return QStringLiteral("the saved text is no plan");
    if (again.document.totalScore() != plan.document.totalScore())
        return QStringLiteral("the saved plan has another score");
    const QByteArray textAgain = again.document.toPlanText(again.views);
    return text == textAgain ? QString() : difference(text, textAgain);
}

} // namespace PlanReaderCheck
