#pragma once

#include <QPoint>
#include <QRectF>
#include <QSize>

#include <vector>

/// Finds free places for new tables on a canvas, in rings around the place wanted. Made for one go:
/// it knows the tables it was told of, and does not follow their moves.
///
/// The areas lie in a grid of cells, so that a place is tested only against what lies near it.
class KWPlaceFinder
{
public:
    explicit KWPlaceFinder(const QSize &canvas);

    /// A table that stands, by KWTableGeometry::area(). May reach beyond the canvas.
    void add(const QRectF &area);
    struct Place
    {
        QPoint centre;
        bool isFree;

        bool operator==(const Place &) const = default;
    };
    /// The place for a table with an area of that size: the one wanted, brought inside the canvas,
    /// or the first in the rings around it that keeps clear of all tables. In a full canvas it is
    /// the place wanted after all, which is not free then.
    Place freePlace(const QPointF &wanted, const QSizeF &size) const;

private:
    /// The cells that a rectangle touches. The outermost cells reach to infinity.
    QRect cellsOf(const QRectF &area) const;
    std::size_t index(int column, int row) const;
    bool isFree(const QRectF &area) const;

    QSizeF m_canvas;
    double m_cellSize;
    int m_columns;
    int m_rows;
    std::vector<std::vector<QRectF>> m_cells;
};
