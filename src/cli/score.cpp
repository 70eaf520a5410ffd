#include "cli/commandline.h"
#include "cli/commands.h"
#include "cli/console.h"
#include "cli/scorejson.h"
#include "core/charts/kwwishes.h"
#include "core/model/kwdocument.h"

#include <QJsonDocument>

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
    const QList<KWWish> wishes = KWWish::all(document);
    QString text = QStringLiteral("Wishes not met: %1 of %2\n")
                       .arg(KWWish::unmetCount(wishes))
                       .arg(wishes.size());
    for (const KWWish &wish : wishes) {
        if (!wish.isMet)
            text += QStringLiteral("  ") + wish.sentence(nameOf) + u'\n';
    }
    return text;
}

QString report(const KWDocument &document)
{
    QString text;
    for (const KWTable *table : document.tables())
        text += tableText(document, *table);
    text += unseatedText(document) + unmetText(document);
    return text + QStringLiteral("Score: %1\n").arg(document.totalScore());
}
} // namespace

int scoreCommand(const QStringList &arguments)
{
    CommandLine line(QStringLiteral("score"),
                     QStringLiteral("Shows the score by table and seat, the guests without a "
                                    "seat, and the wishes that are not met."));
    line.addOption({QStringLiteral("json"), QStringLiteral("Print it as JSON, with all wishes, met "
                                                           "or not.")});
    if (const auto status = line.parse(arguments))
        return *status;
    KWDocument document;
    KWViewSettings views;
    bool versionDiffers = false;
    if (const int status = loadPlan(document, line.plan(), views, versionDiffers))
        return status;
    if (!line.isSet(QStringLiteral("json")))
        return printText(report(document));
    return writeOutput(QStringLiteral("-"), QJsonDocument(scoreToJson(document)).toJson());
}
