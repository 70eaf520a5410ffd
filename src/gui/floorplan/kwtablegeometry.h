#pragma once

#include "core/model/kwtable.h"

#include <QRectF>
#include <QSize>

#include <vector>

/// How large a table is on the floor plan and where its seats stand, in canvas units.
///
/// A value: it does not follow later changes of the table. A table of unknown shape has no size
/// and no seats.
class KWTableGeometry
{
public:
    /// A seat is the unit of the floor plan, whatever the real size of a chair.
    static constexpr int seatSize = 100;

    explicit KWTableGeometry(const KWTable &table);
    /// The counts mean what they mean to KWTable's constructor, and are bounded as there.
    KWTableGeometry(int shape, int count1, int count2, int count3, int count4);

    bool operator==(const KWTableGeometry &) const = default;

    /// The body of the table, without its seats.
    QSize size() const;
    /// The centres of the seats of a table that stands at `centre`, in seat order. There are
    /// fewer than the table has seats if its sides have no place for all, as after a bare change
    /// of its shape, and never more.
    std::vector<QPointF> seatCentres(const QPointF &centre) const;
    /// What the table covers at `centre`, seats aside: the body and its outline when selected.
    QRectF area(const QPointF &centre) const;
    /// What table and seats cover together.
    QRectF bounds(const QPointF &centre) const;
    /// Whether the table is painted at a point of its area, seen from its centre: in the corners of
    /// a circular table's there are seats and floor.
    bool isPaintedAt(const QPointF &point) const;

private:
    std::vector<QPointF> ringOfSeats(const QPointF &centre) const;
    std::vector<QPointF> rowsOfSeats(const QPointF &centre) const;

    int m_shape;
    int m_seats;
    /// Seats at the top, right, bottom and left; none at a circular table.
    KWTable::Sides m_sides;
};
