#pragma once

#include "gui/floorplan/kwcanvas.h"
#include "gui/floorplan/kwfloorplanitem.h"
#include "support/testplan.h"

#include <QPainter>

/// The colours of the lines on show: "#ff0000 #ff00ff".
inline QString lineColours(const KWCanvas &canvas)
{
    QStringList all;
    for (const QGraphicsItem *item : canvas.items()) {
        const auto *line = qgraphicsitem_cast<const QGraphicsLineItem *>(item);
        if (line)
            all.append(line->pen().color().name());
    }
    all.sort();
    return all.join(u' ');
}

/// What is shown of seats is that of the process: this is how it is at the start.
inline void resetSeats(KWCanvas &canvas)
{
    canvas.setLook({});
}

/// A plan with its canvas; the room is 10 by 8 metres of chairs of half a metre.
struct CanvasPlan
{
    KWDocument plan;
    KWCanvas canvas{&plan};

    CanvasPlan()
    {
        plan.setRoomXSize(10);
        plan.setRoomYSize(8);
        plan.setChairSize(0.5);
        canvas.resizeToRoom();
    }

    ~CanvasPlan() { resetSeats(canvas); }

    KWTable *table(const char *name, int shape, int seats, const QPoint &place)
    {
        return plan.addTable(shape, s(name), seats, 0, 0, 0, place, {});
    }

    /// A guest on a seat.
    KWGuest *seat(const TestGuest &guest, KWTable *table, int seat, KWGroup *group = nullptr)
    {
        KWGuest *added = addGuest(plan, guest, group);
        plan.assignGuest(added, table, seat, false);
        return added;
    }

    QString lines() const { return lineColours(canvas); }

    /// The colour that is painted at a point.
    QColor painted(const QPointF &point)
    {
        QImage image(3, 3, QImage::Format_RGB32);
        QPainter painter(&image);
        canvas.render(&painter, QRectF(0, 0, 3, 3),
                      QRectF(point - QPointF(1.5, 1.5), QSizeF(3, 3)));
        painter.end();
        return image.pixelColor(1, 1);
    }
};
