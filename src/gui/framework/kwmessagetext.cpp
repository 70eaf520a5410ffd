#include "gui/framework/kwmessagetext.h"

#include <QStringList>

namespace {

constexpr QChar ellipsis(0x2026);
constexpr QChar zeroWidthSpace(0x200b);

/// Whether what stands at the place belongs to the letter before it.
bool goesOn(const QString &text, qsizetype place)
{
    return text.at(place).isLowSurrogate() || text.at(place).isMark();
}

/// Both ends of a text that is longer than `most`.
QString withoutMiddle(const QString &text, qsizetype most)
{
    if (text.size() <= most)
        return text;
    qsizetype head = most / 2;
    while (head > 0 && goesOn(text, head))
        --head;
    qsizetype tail = text.size() - most / 2;
    while (tail < text.size() && goesOn(text, tail))
        ++tail;
    return text.first(head) + ellipsis + text.sliced(tail);
}

/// The same for lines.
QStringList withoutMiddle(QStringList lines, qsizetype most)
{
    if (lines.size() > most) {
        const qsizetype behind = lines.size() - most / 2;
        lines = lines.first(most / 2) + QStringList{QString(ellipsis)} + lines.sliced(behind);
    }
    return lines;
}

/// The text with places to break in words that are too long for a box, as paths are.
QString breakable(const QString &text)
{
    constexpr int longestWord = 40;
    QString result;
    int length = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        length = text.at(i).isSpace() ? 0 : length + 1;
        if (length > longestWord && !goesOn(text, i)) {
            result.append(zeroWidthSpace);
            length = 1;
        }
        result.append(text.at(i));
    }
    return result;
}
} // namespace

QString messageText(const QString &text)
{
    constexpr int mostLetters = 600;
    constexpr int mostLines = 12;
    QString shown = withoutMiddle(text, mostLetters);
    for (const QChar end :
         {QChar(u'\r'), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)})
        shown.replace(end, u'\n');
    const QStringList lines = shown.split(u'\n');
    return breakable(withoutMiddle(lines, mostLines).join(u'\n'));
}

QString withoutBreaks(QString text)
{
    return text.remove(zeroWidthSpace);
}
