#include "cli/commandline.h"
#include "cli/commands.h"
#include "cli/console.h"
#include "core/model/kwdocument.h"

namespace {
constexpr int numberWidth = 9;

QString nameOf(const KWGuest &guest)
{
    return printable(guest.name());
}

QString tableText(const KWDocument &document, const KWTable &table)
{
    QString text = QStringLiteral("%1: %2 of %3 seats taken, score %4\n")
                       .arg(printable(table.name()), QString::number(table.seatedCount()),
                            QString::number(table.seatCount()), QString::number(table.score()));
    text += QStringLiteral("                    near not next not near\n"
                           "  seat  next to       to       to       to   gender    alone    total"
                           "  guest\n");
    for (int seat = 0; seat < table.seatCount(); ++seat) {
        text += QString::number(seat + 1).rightJustified(6);
        const KWGuest *guest = table.guest(seat);
        if (!guest) {
            text += QStringLiteral("  (empty)\n");
            continue;
        }
        for (int entry = 0; entry < KWScore::EntryCount; ++entry) {
            const int points = document.seatScore(&table, seat, entry);
            text += QString::number(points).rightJustified(numberWidth);
        }
        text += QStringLiteral("  ") + nameOf(*guest) + u'\n';
    }
    return text + u'\n';
}

/// Why two guests who should sit together do not.
QString apartText(const KWDocument &document, const KWDocument::Affinity &wish)
{
    const bool firstSeated = document.findGuest(wish.first);
    const bool secondSeated = document.findGuest(wish.second);
    if (!firstSeated && !secondSeated)
        return QStringLiteral("neither has a seat");
    if (!firstSeated || !secondSeated)
        return nameOf(firstSeated ? *wish.second : *wish.first) + QStringLiteral(" has no seat");
    return document.atSameTable(wish.first, wish.second)
               ? QStringLiteral("they are at one table, not side by side")
               : QStringLiteral("they are at different tables");
}

/// What is wrong with the seating for a wish, as a sentence; empty if it is met.
QString complaintOf(const KWDocument &document, const KWDocument::Affinity &wish)
{
    const bool together = document.atSameTable(wish.first, wish.second);
    const bool neighbours = document.isNextTo(wish.first, wish.second);
    const auto sentence = [&](const QString &wanted, const QString &found) {
        return QStringLiteral("  %1 %2 %3, but %4\n")
            .arg(nameOf(*wish.first), wanted, nameOf(*wish.second), found);
    };
    switch (wish.value) {
    case KWScore::Loves:
        return neighbours
                   ? QString()
                   : sentence(QStringLiteral("should sit next to"), apartText(document, wish));
    case KWScore::Likes:
        return together ? QString()
                        : sentence(QStringLiteral("should sit near"), apartText(document, wish));
    case KWScore::Dislikes:
        return neighbours ? sentence(QStringLiteral("should not sit next to"),
                                     QStringLiteral("they sit side by side"))
                          : QString();
    default:
        return together ? sentence(QStringLiteral("should not sit near"),
                                   QStringLiteral("they are at one table"))
                        : QString();
    }
}

QString unseatedText(const KWDocument &document)
{
    const QList<KWGuest *> guests = document.unseatedGuests(true);
    QString text = QStringLiteral("Guests without a seat: %1\n").arg(guests.size());
    for (const KWGuest *guest : guests)
        text += QStringLiteral("  ") + nameOf(*guest) + u'\n';
    return text;
}

QString unmetText(const KWDocument &document)
{
    QString lines;
    int unmet = 0;
    const QList<KWDocument::Affinity> wishes = document.affinities();
    for (const KWDocument::Affinity &wish : wishes) {
        // A file may hold a wish of a guest about themself, which no seating can meet.
        const QString complaint =
            wish.first == wish.second ? QString() : complaintOf(document, wish);
        if (complaint.isEmpty())
            continue;
        ++unmet;
        lines += complaint;
    }
    return QStringLiteral("Wishes not met: %1 of %2\n").arg(unmet).arg(wishes.size()) + lines;
}
} // namespace

int scoreCommand(const QStringList &arguments)
{
    CommandLine line(QStringLiteral("score"),
                     QStringLiteral("Shows the score by table and seat, the guests without a "
                                    "seat, and the wishes that are not met."));
    if (const auto status = line.parse(arguments))
        return *status;
    KWDocument document;
    KWViewSettings views;
    bool versionDiffers = false;
    if (const int status = loadPlan(document, line.plan(), views, versionDiffers))
        return status;
    QString text;
    for (const KWTable *table : document.tables())
        text += tableText(document, *table);
    text += unseatedText(document) + unmetText(document);
    text += QStringLiteral("Score: %1\n").arg(document.totalScore());
    return printText(text);
}
