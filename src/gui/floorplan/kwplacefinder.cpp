#include "gui/floorplan/kwplacefinder.h"

#include <algorithm>
#include <cmath>

namespace {

/// What stays free between the centre of a table and each edge of the canvas.
constexpr double edge = 100;
/// What stays free around a new table: its own seats, and those of a neighbour.
constexpr double clearance = 200;
// Tables keep their places to the unit only with just this number.
constexpr double fullTurn = 6.284;
/// The search ends that many times the canvas away.
constexpr double reach = 1.5;

/// About as large as a table of a few seats.
constexpr double smallestCell = 500;
constexpr int mostCells = 64;

/// The upper limit counts last, since a small canvas may have none between the two.
double clamped(double value, double length)
{
    return std::min(std::max(edge, value), length - edge);
}
} // namespace

KWPlaceFinder::KWPlaceFinder(const QSize &canvas)
    : m_canvas(canvas)
    , m_cellSize(std::max(smallestCell, std::max(m_canvas.width(), m_canvas.height()) / mostCells))
    , m_columns(std::max(1, static_cast<int>(std::ceil(m_canvas.width() / m_cellSize))))
    , m_rows(std::max(1, static_cast<int>(std::ceil(m_canvas.height() / m_cellSize))))
    , m_cells(static_cast<std::size_t>(m_columns) * static_cast<std::size_t>(m_rows))
{
}

void KWPlaceFinder::add(const QRectF &area)
{
    const QRect cells = cellsOf(area);
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        for (int column = cells.left(); column <= cells.right(); ++column) {
            auto &areas = m_cells[index(column, row)];
            // In a full canvas, new tables pile up on one place, and one of them will do.
            const auto covers = [&](const QRectF &other) { return other.contains(area); };
            if (std::none_of(areas.begin(), areas.end(), covers))
                areas.push_back(area);
        }
    }
}

KWPlaceFinder::Place KWPlaceFinder::freePlace(const QPointF &wanted, const QSizeF &size) const
{
    const QPointF start(clamped(wanted.x(), m_canvas.width()),
                        clamped(wanted.y(), m_canvas.height()));
    QRectF area(QPointF(), size.expandedTo({0, 0}) + QSizeF(2 * clearance, 2 * clearance));
    area.moveCenter(start);
    const double side = std::min(area.width(), area.height());
    const QRectF canvas(QPointF(), m_canvas);
    for (int ring = 0;; ++ring) {
        const double radius = ring * side;
        const int steps = std::max(1, static_cast<int>(radius * fullTurn / side));
        for (int i = 0; i < steps; ++i) {
            const double angle = i * fullTurn / steps;
            const QPointF offset(std::cos(angle) * radius, std::sin(angle) * radius);
            if (!canvas.contains(start + offset)) {
                if (radius > reach * m_canvas.width() || radius > reach * m_canvas.height())
                    return {start.toPoint(), false};
                continue;
            }
            if (isFree(area.translated(offset.toPoint())))
                return {(start + offset).toPoint(), true};
        }
    }
}

QRect KWPlaceFinder::cellsOf(const QRectF &area) const
{
    const auto at = [this](double coordinate, int count) {
        return static_cast<int>(std::clamp<double>(coordinate / m_cellSize, 0, count - 1));
    };
    return {QPoint(at(area.left(), m_columns), at(area.top(), m_rows)),
            QPoint(at(area.right(), m_columns), at(area.bottom(), m_rows))};
}

std::size_t KWPlaceFinder::index(int column, int row) const
{
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
           static_cast<std::size_t>(column);
}

bool KWPlaceFinder::isFree(const QRectF &area) const
{
    const QRect cells = cellsOf(area);
    const auto overlaps = [&](const QRectF &other) { return other.intersects(area); };
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        for (int column = cells.left(); column <= cells.right(); ++column) {
            const auto &areas = m_cells[index(column, row)];
            if (std::any_of(areas.begin(), areas.end(), overlaps))
                return false;
        }
    }
    return true;
}
