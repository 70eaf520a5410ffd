#include "cli/commandline.h"
#include "cli/commands.h"
#include "cli/console.h"
#include "cli/floorplanpicture.h"
#include "core/model/kwdocument.h"
#include "gui/floorplan/kwcanvas.h"
#include "gui/floorplan/kwfloorplantext.h"

#include <QFileInfo>

#include <algorithm>
#include <optional>

namespace {

/// In the order of KWGuest::NameOrder, and KWFloorPlanText::seatNumbers.
QStringList nameWords()
{
    static_assert(KWFloorPlanText::seatNumbers == 7);
    return {QStringLiteral("display-name"),       QStringLiteral("last-first"),
            QStringLiteral("last-initial"),       QStringLiteral("first-last"),
            QStringLiteral("initial-last"),       QStringLiteral("title-first-last"),
            QStringLiteral("title-initial-last"), QStringLiteral("number")};
}

/// In the order of KWFloorPlanLook::SeatDisplay.
QStringList seatWords()
{
    return {QStringLiteral("circle+name"), QStringLiteral("circle"), QStringLiteral("name"),
            QStringLiteral("none")};
}

bool showsNames(int seats)
{
    return KWFloorPlanLook::Seats{.display = KWFloorPlanLook::seatDisplayOf(seats)}.showsText();
}

/// What may be marked at a seat.
struct Mark
{
    QString word;
    bool KWFloorPlanLook::Seats::*shown;
};

QList<Mark> marks()
{
    using Seats = KWFloorPlanLook::Seats;
    return {{QStringLiteral("gender"), &Seats::gender},
            {QStringLiteral("age"), &Seats::age},
            {QStringLiteral("vip"), &Seats::vip},
            {QStringLiteral("groups"), &Seats::groups},
            {QStringLiteral("locked"), &Seats::locked}};
}

QStringList markWords()
{
    QStringList words;
    for (const Mark &mark : marks())
        words.append(mark.word);
    return words;
}

/// What the command line asks for; what it does not say is as the plan has it.
struct Wanted
{
    QString extension;
    std::optional<qint64> width;
    std::optional<int> nameOrder;
    std::optional<int> seats;
    std::optional<QStringList> marks;
};

void addOptions(CommandLine &line)
{
    const QString kinds = alternatives(FloorPlanPicture::extensions());
    line.addOutputOption(QStringLiteral("The picture to write; its extension says which kind: %1. "
                                        "\"-\" is standard output and needs --format.")
                             .arg(kinds));
    line.addOption(
        {QStringLiteral("format"),
         QStringLiteral("Which kind of picture, if the extension does not say: %1.").arg(kinds),
         QStringLiteral("KIND")});
    line.addOption({QStringLiteral("width"),
                    QStringLiteral("Make it N pixels wide, from 1 to %1. Default: 100 for a seat, "
                                   "or fewer in a large plan.")
                        .arg(FloorPlanPicture::mostPixels),
                    QStringLiteral("N")});
    line.addOption({QStringLiteral("names"),
                    QStringLiteral("What stands in the seats: %1.").arg(alternatives(nameWords())),
                    QStringLiteral("ORDER")});
    line.addOption({QStringLiteral("seats"),
                    QStringLiteral("How seats are drawn: %1.").arg(alternatives(seatWords())),
                    QStringLiteral("DISPLAY")});
    line.addOption({QStringLiteral("show"),
                    QStringLiteral("What is marked at the seats: a list, with commas, of %1; or "
                                   "none. A seat has the colour of the gender where groups are "
                                   "shown, too.")
                        .arg(alternatives(markWords())),
                    QStringLiteral("LIST")});
    line.addOption({QStringLiteral("conflicts"),
                    QStringLiteral("Draw a line for each wish that the seating does not meet.")});
}

std::optional<QStringList> marksOf(const CommandLine &line)
{
    const QString list = line.value(QStringLiteral("show"));
    if (list == QLatin1StringView("none"))
        return QStringList();
    const QStringList words = list.split(u',');
    const QStringList known = markWords();
    if (std::ranges::all_of(words, [&](const QString &word) { return known.contains(word); }))
        return words;
    line.refuse(QStringLiteral("--show takes a list, with commas, of %1; or none, not '%2'.")
                    .arg(alternatives(known), list));
    return std::nullopt;
}

QString extensionOf(const QString &path)
{
    const QString extension = QFileInfo(path).suffix().toLower();
    return extension == QLatin1StringView("jpeg") ? QStringLiteral("jpg") : extension;
}

/// Which kind of picture is asked for; nothing after a complaint.
std::optional<QString> kindOf(const CommandLine &line)
{
    const QStringList kinds = FloorPlanPicture::extensions();
    const QString extension = extensionOf(line.output());
    const bool isKnown = kinds.contains(extension);
    const auto option = QStringLiteral("format");
    if (!line.isSet(option)) {
        if (isKnown)
            return extension;
        if (line.output() == QLatin1StringView("-"))
            line.refuse(QStringLiteral("Which kind of picture? Say %1 with --format.")
                            .arg(alternatives(kinds)));
        else
            line.refuse(QStringLiteral("The picture's name has to end in %1: '%2' does not.")
                            .arg(alternatives(kinds), line.output()));
        return std::nullopt;
    }
    const auto index = line.word(option, kinds);
    if (!index)
        return std::nullopt;
    if (isKnown && extension != kinds.at(*index)) {
        line.refuse(QStringLiteral("--format %1 does not fit the name '%2'.")
                        .arg(kinds.at(*index), line.output()));
        return std::nullopt;
    }
    return kinds.at(*index);
}

/// Nothing after a complaint.
std::optional<Wanted> wantedBy(const CommandLine &line)
{
    const auto kind = kindOf(line);
    if (!kind)
        return std::nullopt;
    Wanted wanted;
    wanted.extension = *kind;
    bool ok = true;
    if (const auto width = QStringLiteral("width"); line.isSet(width))
        ok = (wanted.width = line.number(width, 1, FloorPlanPicture::mostPixels)).has_value();
    if (const auto names = QStringLiteral("names"); ok && line.isSet(names))
        ok = (wanted.nameOrder = line.word(names, nameWords())).has_value();
    if (const auto seats = QStringLiteral("seats"); ok && line.isSet(seats))
        ok = (wanted.seats = line.word(seats, seatWords())).has_value();
    if (ok && line.isSet(QStringLiteral("show")))
        ok = (wanted.marks = marksOf(line)).has_value();
    if (ok && wanted.nameOrder && wanted.seats && !showsNames(*wanted.seats)) {
        line.refuse(QStringLiteral("--names has no effect with --seats %1, which shows no names.")
                        .arg(seatWords().at(*wanted.seats)));
        return std::nullopt;
    }
    return ok ? std::optional(wanted) : std::nullopt;
}

/// What is wanted, and where nothing is said, what was saved with the plan.
KWFloorPlanLook lookOf(const Wanted &wanted, const KWViewSettings &stored)
{
    KWFloorPlanLook look = KWFloorPlanLook::of(stored);
    if (wanted.nameOrder)
        look.nameOrder = *wanted.nameOrder;
    if (wanted.seats)
        look.seats.display = KWFloorPlanLook::seatDisplayOf(*wanted.seats);
    if (wanted.marks) {
        for (const Mark &mark : marks())
            look.seats.*mark.shown = wanted.marks->contains(mark.word);
    }
    return look;
}

/// What other programs show as the title of the picture.
QString titleOf(const KWDocument &document, const QString &path)
{
    if (!document.event().trimmed().isEmpty())
        return printable(document.event());
    const QString name = QFileInfo(path).completeBaseName();
    return name == QLatin1StringView("-") ? QStringLiteral("plan") : name;
}
} // namespace

int floorplanCommand(const QStringList &arguments)
{
    CommandLine line(QStringLiteral("floorplan"),
                     QStringLiteral("Draws the floor plan as a picture, with all tables. Svg and "
                                    "pdf are drawings that\nstay sharp at every size. What no "
                                    "option says is as it was saved with the plan."));
    addOptions(line);
    if (const auto status = line.parse(arguments))
        return *status;
    const auto wanted = wantedBy(line);
    if (!wanted)
        return ExitUsage;
    KWDocument document;
    KWViewSettings views;
    bool versionDiffers = false;
    if (const int status = loadPlan(document, line.plan(), views, versionDiffers))
        return status;

    KWCanvas canvas(&document);
    canvas.setLook(lookOf(*wanted, views));
    if (line.isSet(QStringLiteral("conflicts")))
        canvas.showConflicts();
    const QRectF bounds = FloorPlanPicture::bounds(canvas);
    const QSize size =
        wanted->width ? FloorPlanPicture::sizeForWidth(bounds, static_cast<int>(*wanted->width))
                      : FloorPlanPicture::defaultSize(bounds);
    if (size.height() > FloorPlanPicture::mostPixels)
        return line.refuse(QStringLiteral("With --width %1 the picture would be %2 pixels high; "
                                          "the most is %3.")
                               .arg(size.width())
                               .arg(size.height())
                               .arg(FloorPlanPicture::mostPixels));
    if (document.tableCount() == 0)
        complain(QStringLiteral("There are no tables: the picture shows the empty floor."));
    return writeOutput(line.output(),
                       FloorPlanPicture::draw(canvas, bounds, size, wanted->extension,
                                              titleOf(document, line.plan())));
}
