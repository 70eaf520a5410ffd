#include "gui/framework/kwhelpsafety.h"

#include <QBuffer>
#include <QImageReader>

bool isShowablePage(const QByteArray &html)
{
    constexpr qsizetype longest = 256 * 1024;
    constexpr qsizetype mostTags = 3000;
    // Each table in a table doubles the time. Whether they nest is not looked at: a page can be
    // written so that it seems otherwise.
    constexpr qsizetype mostTables = 14;
    return html.size() <= longest && html.count('<') <= mostTags &&
           html.toLower().count("<table") <= mostTables;
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
