#pragma once

#include <QList>
#include <QRectF>
#include <QSize>

/// The size of the floor plan, and what is laid out in it as a whole. Lengths are canvas units
/// unless they are said to be metres.
namespace KWRoomGeometry {

/// The limits of each side of the canvas. Below the least, no table would have a place inside.
/// Beyond the most, pixels at the highest zoom come near what the painter and the scroll bars can
/// count.
inline constexpr int leastSide = 200;
inline constexpr int mostSide = 200'000;

/// The canvas for a room and a chair in metres. A size that is none, as a file may hold, counts as
/// that of a new plan.
QSize canvasSize(double roomXSize, double roomYSize, double chairSize);

/// The centres of tables brought into a canvas that may be too small for them: on each axis on
/// which one stands too far out, all are squeezed towards the origin.
QList<QPointF> squeezed(const QList<QPointF> &centres, const QSize &canvas);

/// The part of the floor plan that a person has to be able to see: the canvas, and what stands
/// over its edge with a seat of air around it.
QRectF reach(const QSize &canvas, const QRectF &items);

/// Grows a rectangle on all sides by `margin` times its longer side; not at all unless that is
/// above 0.
QRectF withMargin(const QRectF &bounds, double margin);

/// Grows a rectangle in one direction about its centre until width ÷ height is `ratio`. Stays as
/// it is if it is empty in both directions or the ratio is none.
QRectF withAspect(const QRectF &bounds, double ratio);

} // namespace KWRoomGeometry
