#include "gui/floorplan/kwfloorplantext.h"

#include "core/model/kwdocument.h"
#include "core/model/kwgroup.h"
#include "core/model/kwtable.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QtMath>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct FloorPlanTip
{
    Q_DECLARE_TR_FUNCTIONS(KWFloorPlanTip)
};

QString genderText(int gender)
{
    switch (gender) {
    case KWGuest::Undefined:
        return FloorPlanTip::tr("Undefined");
    case KWGuest::Male:
        return FloorPlanTip::tr("Male");
    case KWGuest::Female:
        return FloorPlanTip::tr("Female");
    default:
        return {};
    }
}

QString yesOrNo(bool value)
{
    return value ? FloorPlanTip::tr("Yes") : FloorPlanTip::tr("No");
}

/// A piece of a tip with a text of the plan in it.
QString piece(const QString &pattern, const QString &text)
{
    return pattern.arg(text.toHtmlEscaped());
}

QString pieceUnlessBlank(const QString &pattern, const QString &text)
{
    return text.trimmed().isEmpty() ? QString() : piece(pattern, text);
}

/// A piece of rich text that must not be cut: a tag, an escape, or a character.
struct Token
{
    qsizetype size;
    qsizetype characters;
};

Token tokenAt(const QString &text, qsizetype at)
{
    const bool isTag = text.at(at) == u'<';
    if (isTag || text.at(at) == u'&') {
        const qsizetype end = text.indexOf(isTag ? u'>' : u';', at);
        if (end >= 0)
            return {end + 1 - at, isTag ? end + 1 - at : 1};
    }
    const bool isPair = text.at(at).isHighSurrogate() && at + 1 < text.size();
    return isPair ? Token{2, 2} : Token{1, 1};
}

/// An escape counts as the one character it stands for, so that a tip does not lose its end to
/// its being escaped.
QString cut(const QString &tip)
{
    constexpr qsizetype longest = 200;
    qsizetype characters = 0;
    for (qsizetype at = 0; at < tip.size();) {
        const Token token = tokenAt(tip, at);
        characters += token.characters;
        if (characters > longest)
            return tip.first(at) + u"..."_s;
        at += token.size;
    }
    return tip;
}
} // namespace

QString KWFloorPlanText::seatText(const KWTable &table, int seat, int nameOrder)
{
    if (seat < 0 || seat >= table.seatCount())
        return {};
    if (nameOrder == seatNumbers)
        return QString::number(seat + 1);
    const KWGuest *guest = table.guest(seat);
    return guest ? guest->name(nameOrder) : QString();
}

QString KWFloorPlanText::wrapped(const QString &name)
{
    constexpr qsizetype longestLine = 6;
    QString text = name.simplified();
    if (text.size() <= longestLine)
        return text;
    const qsizetype middle = text.size() / 2;
    const qsizetype before = text.lastIndexOf(u' ', middle);
    const qsizetype behind = text.indexOf(u' ', middle + 1);
    for (const qsizetype blank : {before, behind}) {
        if (blank >= 0)
            text[blank] = u'\n';
    }
    return text;
}

QFont KWFloorPlanText::fittedFont(const QFont &font, const QString &text, const QSizeF &box)
{
    constexpr double smallest = 2.0 / 3;
    const auto sizeIn = [&text](const QFont &f) { return QFontMetricsF(f).size(0, text); };
    const auto fits = [&box](const QSizeF &size) {
        return size.width() <= box.width() && size.height() <= box.height();
    };
    const QSizeF size = sizeIn(font);
    if (fits(size))
        return font;
    const double share = std::min(box.width() / size.width(), box.height() / size.height());
    const int least = qCeil(font.pixelSize() * smallest);
    QFont fitted = font;
    fitted.setPixelSize(std::max(least, qFloor(font.pixelSize() * share)));
    // Letters do not grow evenly.
    while (fitted.pixelSize() > least && !fits(sizeIn(fitted)))
        fitted.setPixelSize(fitted.pixelSize() - 1);
    return fitted;
}

QString KWFloorPlanText::tableTip(const KWTable &table)
{
    return piece(FloorPlanTip::tr("<b>Name:</b> %1"), table.name()) +
           pieceUnlessBlank(FloorPlanTip::tr("<br/><b>Notes:</b> %1"), table.notes());
}

QString KWFloorPlanText::seatTip(const KWTable &table, int seat, int nameOrder)
{
    const KWGuest *guest = table.guest(seat);
    if (!guest)
        return {};
    const KWGroup *group = guest->group();
    const int order = nameOrder == seatNumbers ? KWGuest::DisplayName : nameOrder;
    return piece(FloorPlanTip::tr("<b>Name:</b> %1"), guest->name(order)) +
           piece(FloorPlanTip::tr("<br/><b>Group:</b> %1"), group ? group->name() : QString()) +
           piece(FloorPlanTip::tr("<br/><b>Gender:</b> %1"), genderText(guest->gender())) +
           piece(FloorPlanTip::tr("<br/><b>Age:</b> %1"), guest->ageString()) +
           pieceUnlessBlank(FloorPlanTip::tr("\n<b>Meal:</b> %1"), guest->meal()) +
           piece(FloorPlanTip::tr("<br/><b>Accepted:</b> %1"), yesOrNo(guest->isAccepted())) +
           piece(FloorPlanTip::tr("<br/><b>VIP:</b> %1"), yesOrNo(guest->isVip())) +
           piece(FloorPlanTip::tr("<br/><b>Locked:</b> %1"), yesOrNo(guest->isLocked())) +
           pieceUnlessBlank(FloorPlanTip::tr("\n<b>Notes:</b> %1"), guest->notes());
}

QString KWFloorPlanText::shortenedTip(const QString &tip)
{
    constexpr qsizetype longestLine = 80;
    const auto lineBreak = "<br/>"_L1;
    QString text = cut(tip);
    qsizetype lineStart = 0;
    for (qsizetype at = text.indexOf(lineBreak); at >= 0; at = text.indexOf(lineBreak, at + 2)) {
        if (at - lineStart < longestLine)
            continue;
        text.insert(at, u'\n');
        lineStart = at + 1;
    }
    return text;
}
