#include "kwhelpsafety.h"

#include <QBuffer>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

bool isShowablePage(const QByteArray &html)
{
    constexpr qsizetype longest = 256 * 1024;
    constexpr int deepest = 50;
    if (html.size() > longest)
        return false;
    // What need not be closed does not nest.
    static const QSet<QString> flat{u"br"_s, u"hr"_s,   u"img"_s,  u"input"_s, u"p"_s,  u"li"_s,
                                    u"dt"_s, u"link"_s, u"meta"_s, u"col"_s,   u"dd"_s, u"base"_s};
    static const QRegularExpression tag(u"<(/?)([a-zA-Z][a-zA-Z0-9]*)"_s);
    int depth = 0;
    for (const auto &match : tag.globalMatch(QString::fromLatin1(html))) {
        if (flat.contains(match.captured(2).toLower()))
            continue;
        depth = match.capturedLength(1) > 0 ? qMax(0, depth - 1) : depth + 1;
        if (depth > deepest)
            return false;
    }
    return true;
}

QImage plainPicture(const QByteArray &bytes)
{
    for (const char *format : {"png", "jpg", "gif"}) {
        QBuffer buffer;
        buffer.setData(bytes);
        QImageReader reader(&buffer, format);
        reader.setAutoDetectImageFormat(false);
        if (const QImage picture = reader.read(); !picture.isNull())
            return picture;
    }
    return {};
}
