// The floor plan on a page.

#include "core/model/kwdocument.h"
#include "gui/floorplan/kwcanvas.h"

#include <QPainter>

namespace {

struct PageText
{
    const QString &text;
    const QFont &font;
    const QColor &colour;
};

/// A little larger than the text, in the middle of a line of that width at the top.
QRectF boxOf(const PageText &text, int lineWidth, QPainter *painter)
{
    constexpr double air = 1.1;
    painter->setFont(text.font);
    const QSizeF size = QSizeF(painter->fontMetrics().size(0, text.text)) * air;
    return {QPointF((lineWidth - size.width()) / 2, 0), size};
}

void draw(const PageText &text, const QRectF &box, QPainter *painter)
{
    painter->setFont(text.font);
    painter->setPen(text.colour);
    painter->drawText(box, Qt::AlignCenter, text.text);
}
} // namespace

QColor KWCanvas::backgroundColour() const
{
    return document()->floorplanColourInside();
}

void KWCanvas::print(QPainter *painter, int width, int height, double margin, const QString &header,
                     const QFont &headerFont, const QColor &headerColour, int headerPosition,
                     const QString &footer, const QFont &footerFont, const QColor &footerColour,
                     int footerPosition)
{
    const QRectF bounds = itemBounds(margin);
    if (bounds.isEmpty() || width <= 0 || height <= 0)
        return;
    painter->save();
    QSizeF size = bounds.size();
    size.scale(width, height, Qt::KeepAspectRatio);
    paint(painter, {QPointF((width - size.width()) / 2, (height - size.height()) / 2), size},
          bounds);
    const PageText head{header, headerFont, headerColour};
    QRectF box = boxOf(head, width, painter);
    box.moveTop(-headerPosition);
    draw(head, box, painter);
    const PageText foot{footer, footerFont, footerColour};
    box = boxOf(foot, width, painter);
    box.moveTop(height - box.height() - footerPosition);
    draw(foot, box, painter);
    painter->restore();
}
