#include "cli/commandline.h"
#include "cli/commands.h"
#include "cli/console.h"
#include "cli/planjson.h"
#include "core/model/kwdocument.h"

#include <QJsonDocument>

namespace {
QString counted(int count, const QString &one, const QString &many)
{
    return QStringLiteral("%1 %2").arg(QString::number(count), count == 1 ? one : many);
}

/// A line under a heading of its own, or nothing for an empty text.
QString fact(const QString &label, const QString &text)
{
    return text.trimmed().isEmpty()
               ? QString()
               : QStringLiteral("%1 %2\n").arg(label + u':', -9).arg(printable(text));
}

QString wishes(const KWDocument &document)
{
    const auto count = [&](int value) {
        return QString::number(document.proximityPairs(value).size());
    };
    return QStringLiteral("%1 next to, %2 near to, %3 not next to, %4 not near to")
        .arg(count(KWScore::Loves), count(KWScore::Likes), count(KWScore::Dislikes),
             count(KWScore::Hates));
}

QString tableLine(const KWTable &table)
{
    return QStringLiteral("  %1 of %2 seats taken, score %3: %4\n")
        .arg(QString::number(table.seatedCount()).rightJustified(3),
             QString::number(table.seatCount()).rightJustified(3),
             QString::number(table.score()).rightJustified(5), printable(table.name()));
}

QString summary(const KWDocument &document, bool versionDiffers)
{
    int adults = 0;
    int children = 0;
    int acceptedAdults = 0;
    int acceptedChildren = 0;
    document.countGuests(&adults, &children, &acceptedAdults, &acceptedChildren);
    const qint64 cost = document.fixedCost() + qint64{adults} * document.adultCost() +
                        qint64{children} * document.childCost();

    QString text = fact(QStringLiteral("Event"), document.event());
    text += fact(QStringLiteral("Venue"), document.venue());
    text += fact(QStringLiteral("Date"), document.date().toString(Qt::ISODate));
    text += fact(QStringLiteral("Notes"), document.notes());
    text += fact(QStringLiteral("Cost"),
                 QStringLiteral("%1 for all guests (fixed %2, adult %3, child %4)")
                     .arg(QString::number(cost), QString::number(document.fixedCost()),
                          QString::number(document.adultCost()),
                          QString::number(document.childCost())));
    const int units = document.units();
    text +=
        fact(QStringLiteral("Room"),
             QStringLiteral("%1 x %2 %4, a chair %3 %4")
                 .arg(QString::number(document.roomXSize(units), 'g', 4),
                      QString::number(document.roomYSize(units), 'g', 4),
                      QString::number(document.chairSize(units), 'g', 3),
                      units == KWPlanFields::Feet ? QStringLiteral("ft") : QStringLiteral("m")));
    text += fact(QStringLiteral("Guests"),
                 QStringLiteral("%1 (%2, %3), %4 accepted, %5 seated")
                     .arg(QString::number(document.guestCount()),
                          counted(adults, QStringLiteral("adult"), QStringLiteral("adults")),
                          counted(children, QStringLiteral("child"), QStringLiteral("children")),
                          QString::number(acceptedAdults + acceptedChildren),
                          QString::number(document.seatedGuestCount())));
    text += fact(QStringLiteral("Groups"), QString::number(document.groupCount()));
    text += fact(QStringLiteral("Wishes"), wishes(document));
    text += fact(QStringLiteral("Seats"),
                 QStringLiteral("%1 at %2")
                     .arg(QString::number(document.seatCount()),
                          counted(document.tableCount(), QStringLiteral("table"),
                                  QStringLiteral("tables"))));
    text += fact(QStringLiteral("Score"), QString::number(document.totalScore()));
    if (document.tableCount() > 0)
        text += QStringLiteral("Tables:\n");
    for (const KWTable *table : document.tables())
        text += tableLine(*table);
    if (versionDiffers)
        text += QStringLiteral("This plan was written by a different version of the program.\n");
    return text;
}
} // namespace

int showCommand(const QStringList &arguments)
{
    CommandLine line(QStringLiteral("show"),
                     QStringLiteral("Shows what is in a plan: a summary to read, or all of it."));
    line.addOption({QStringLiteral("json"), QStringLiteral("Print the whole plan as JSON.")});
    if (const auto status = line.parse(arguments))
        return *status;
    KWDocument document;
    KWViewSettings views;
    bool versionDiffers = false;
    if (const int status = loadPlan(document, line.plan(), views, versionDiffers))
        return status;
    if (!line.isSet(QStringLiteral("json")))
        return printText(summary(document, versionDiffers));
    return writeOutput(QStringLiteral("-"), QJsonDocument(planToJson(document, views)).toJson());
}
