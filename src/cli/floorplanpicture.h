#pragma once

#include <QByteArray>
#include <QRectF>
#include <QSize>
#include <QStringList>

#include <optional>

class KWCanvas;

/// The floor plan as a picture for a file, drawn as the window draws it.
namespace FloorPlanPicture {

/// The longest side of a picture, in pixels.
inline constexpr int mostPixels = 10000;

/// The extensions of the formats that can be drawn.
QStringList extensions();

/// What a picture shows, in canvas units: all tables with some air around them or, without a
/// table, the floor of the room.
QRectF bounds(const KWCanvas &canvas);
/// A pixel for a canvas unit, or fewer if the longer side would have too many.
QSize defaultSize(const QRectF &bounds);
/// With the given width; the height may come out beyond `mostPixels`.
QSize sizeForWidth(const QRectF &bounds, int width);

/// The content of a file of one of the extensions; svg and pdf are drawings of lines and text, to
/// which the size is nominal, at 96 pixels an inch. Throws std::bad_alloc if there is not enough
/// memory.
QByteArray draw(KWCanvas &canvas, const QRectF &bounds, const QSize &size, const QString &extension,
                const QString &title);

} // namespace FloorPlanPicture
