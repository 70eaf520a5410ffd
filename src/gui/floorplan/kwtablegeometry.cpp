#include "gui/floorplan/kwtablegeometry.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

// Plans were drawn with these, and tables keep their place to the unit only with the same.
constexpr double halfTurn = 3.142;
constexpr double fullTurn = 6.284;

constexpr int unit = KWTableGeometry::seatSize;
constexpr int smallestDiameter = 150;
constexpr int outlineWidth = 2;
/// How far a table's area reaches beyond its body: the outline and a little air.
constexpr double outset = outlineWidth + 2;

KWTable::Sides sidesOf(int shape, int seats, const KWTable::Sides &counts)
{
    switch (shape) {
    case KWTable::Rectangular:
        return {counts[0], counts[1], counts[0], counts[1]};
    case KWTable::HeadTop:
        return {seats, 0, 0, 0};
    case KWTable::HeadRight:
        return {0, seats, 0, 0};
    case KWTable::HeadBottom:
        return {0, 0, seats, 0};
    case KWTable::HeadLeft:
        return {0, 0, 0, seats};
    case KWTable::Custom:
        return counts;
    default:
        return {};
    }
}

/// The diameter at which the circle of seats around the table has room for them all.
int diameter(int seats)
{
    if (seats < 1)
        return smallestDiameter;
    const double inner = unit / std::sin(halfTurn / seats) - unit;
    return qRound(std::max<double>(inner, smallestDiameter));
}

/// From the end of a side to the centre of its first seat; a row shorter than the side stands in
/// the middle of it.
double firstSeat(int length, int seats)
{
    return (length - seats * unit) / 2.0 + unit / 2.0;
}
} // namespace

KWTableGeometry::KWTableGeometry(const KWTable &table)
    : m_shape(table.shape())
    , m_seats(table.seatCount())
    , m_sides(sidesOf(m_shape, m_seats, table.sides()))
{
}

KWTableGeometry::KWTableGeometry(int shape, int count1, int count2, int count3, int count4)
    : m_shape(shape)
    , m_seats(KWTable::seatCountFor(shape, count1, count2, count3, count4))
    , m_sides(sidesOf(shape, m_seats, KWTable::boundedSides({count1, count2, count3, count4})))
{
}

QSize KWTableGeometry::size() const
{
    if (m_shape < 0 || m_shape >= KWTable::ShapeCount)
        return {0, 0};
    if (m_shape == KWTable::Circular)
        return {diameter(m_seats), diameter(m_seats)};
    const auto [top, right, bottom, left] = m_sides;
    return {std::max({top, bottom, 1}) * unit, std::max({right, left, 1}) * unit};
}

std::vector<QPointF> KWTableGeometry::seatCentres(const QPointF &centre) const
{
    return m_shape == KWTable::Circular ? ringOfSeats(centre) : rowsOfSeats(centre);
}

std::vector<QPointF> KWTableGeometry::ringOfSeats(const QPointF &centre) const
{
    const double radius = diameter(m_seats) / 2.0 + unit / 2.0;
    std::vector<QPointF> centres;
    centres.reserve(static_cast<std::size_t>(m_seats));
    for (int seat = 0; seat < m_seats; ++seat) {
        const double angle = seat * fullTurn / m_seats;
        centres.emplace_back(centre.x() + radius * std::sin(angle),
                             centre.y() - radius * std::cos(angle));
    }
    return centres;
}

std::vector<QPointF> KWTableGeometry::rowsOfSeats(const QPointF &centre) const
{
    const auto [top, right, bottom, left] = m_sides;
    const int width = size().width();
    const int height = size().height();
    const QPointF corner = centre - QPointF(width / 2.0, height / 2.0);
    constexpr double half = unit / 2.0;
    std::vector<QPointF> centres;
    const auto add = [&](double x, double y) { centres.push_back(corner + QPointF(x, y)); };
    for (int i = 0; i < top; ++i)
        add(firstSeat(width, top) + i * unit, -half);
    for (int i = 0; i < right; ++i)
        add(width + half, firstSeat(height, right) + i * unit);
    for (int i = bottom - 1; i >= 0; --i)
        add(firstSeat(width, bottom) + i * unit, height + half);
    for (int i = left - 1; i >= 0; --i)
        add(-half, firstSeat(height, left) + i * unit);
    if (centres.size() > static_cast<std::size_t>(m_seats))
        centres.resize(static_cast<std::size_t>(m_seats));
    return centres;
}

QRectF KWTableGeometry::area(const QPointF &centre) const
{
    const QSizeF body = size();
    if (body.isEmpty())
        return {};
    const QPointF half(body.width() / 2 + outset, body.height() / 2 + outset);
    return {centre - half, centre + half};
}

QRectF KWTableGeometry::bounds(const QPointF &centre) const
{
    QRectF bounds = area(centre);
    constexpr double half = unit / 2.0;
    for (const QPointF &seat : seatCentres(centre))
        bounds |= QRectF(seat - QPointF(half, half), seat + QPointF(half, half));
    return bounds;
}

bool KWTableGeometry::isPaintedAt(const QPointF &point) const
{
    if (m_shape != KWTable::Circular)
        return area({}).contains(point);
    const double radius = (diameter(m_seats) + outlineWidth) / 2.0;
    return std::hypot(point.x(), point.y()) <= radius;
}
