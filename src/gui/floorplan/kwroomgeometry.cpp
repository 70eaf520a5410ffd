#include "gui/floorplan/kwroomgeometry.h"

#include "core/model/kwplanfields.h"
#include "gui/floorplan/kwtablegeometry.h"

#include <algorithm>
#include <cmath>

namespace {

bool isLength(double value)
{
    return std::isfinite(value) && value > 0;
}

int canvasSide(double room, double chair)
{
    const double side = room * (KWTableGeometry::seatSize / chair);
    // A tiny chair makes it infinite, which no integer can hold.
    return qRound(std::clamp<double>(side, KWRoomGeometry::leastSide, KWRoomGeometry::mostSide));
}

/// Squeezes one coordinate of all points into 0..`side`.
void squeeze(QList<QPointF> &points, double &(QPointF::*coordinate)(), double side)
{
    double largest = 0;
    for (QPointF &point : points)
        largest = std::max(largest, (point.*coordinate)());
    if (largest <= side)
        return;
    const double ratio = side / largest;
    for (QPointF &point : points)
        (point.*coordinate)() -= (point.*coordinate)() * (1.0 - ratio);
}
} // namespace

QSize KWRoomGeometry::canvasSize(double roomXSize, double roomYSize, double chairSize)
{
    const auto room = [](double size) {
        return isLength(size) ? size : KWPlanFields::defaultRoomSize;
    };
    const double chair = isLength(chairSize) ? chairSize : KWPlanFields::defaultChairSize;
    return {canvasSide(room(roomXSize), chair), canvasSide(room(roomYSize), chair)};
}

QList<QPointF> KWRoomGeometry::squeezed(const QList<QPointF> &centres, const QSize &canvas)
{
    QList<QPointF> result = centres;
    squeeze(result, &QPointF::rx, canvas.width());
    squeeze(result, &QPointF::ry, canvas.height());
    return result;
}

QRectF KWRoomGeometry::reach(const QSize &canvas, const QRectF &items)
{
    constexpr double air = KWTableGeometry::seatSize;
    QRectF result(QPointF(), canvas);
    if (items.left() < result.left())
        result.setLeft(items.left() - air);
    if (items.top() < result.top())
        result.setTop(items.top() - air);
    if (items.right() > result.right())
        result.setRight(items.right() + air);
    if (items.bottom() > result.bottom())
        result.setBottom(items.bottom() + air);
    return result;
}

QRectF KWRoomGeometry::withMargin(const QRectF &bounds, double margin)
{
    if (!isLength(margin))
        return bounds;
    const double added = std::round(margin * std::max(bounds.width(), bounds.height()));
    return bounds.adjusted(-added, -added, added, added);
}

QRectF KWRoomGeometry::withAspect(const QRectF &bounds, double ratio)
{
    if (!isLength(ratio) || bounds.isNull())
        return bounds;
    QSizeF size = bounds.size();
    if (size.width() < size.height() * ratio)
        size.setWidth(size.height() * ratio);
    else
        size.setHeight(size.width() / ratio);
    QRectF result(QPointF(), size);
    result.moveCenter(bounds.center());
    return result;
}
