#pragma once

#include "gui/floorplan/kwfloorplanscene.h"
#include "gui/floorplan/kwtablegeometry.h"

#include <QFont>
#include <QGraphicsItem>

class KWDocument;
class KWGuest;
class KWTable;

/// A table or a seat of the floor plan. It holds nothing of the plan: it looks there each time it
/// paints, so a change asks for a repaint only. It is hit anywhere in its area. Owned by its
/// scene.
class KWFloorPlanItem : public QGraphicsItem
{
public:
    /// The document is not owned and outlives the item.
    explicit KWFloorPlanItem(KWDocument *document);

    /// What is known of it, as rich text, with names in a name order; empty if there is nothing.
    virtual QString tipText(int nameOrder) const = 0;

    /// Where it is hit, in canvas units.
    QRectF area() const { return areaPoints().translated(pos()); }

    /// The area with room for the line around a selected seat.
    QRectF boundingRect() const override { return areaPoints().adjusted(-1, -1, 1, 1); }
    QPainterPath shape() const override;

protected:
    /// The area in the item's own coordinates, whose origin is its centre.
    virtual QRectF areaPoints() const = 0;

    KWDocument *document() const { return m_document; }
    KWFloorPlanScene *floorPlan() const;
    bool isMarked() const;

private:
    KWDocument *m_document;
};

/// A seat, which shows its guest as the scene's display settings say.
class KWSeatCanvasViewItem : public KWFloorPlanItem
{
public:
    enum { Type = KWFloorPlanScene::SeatType };

    /// What a drop would do to the seat: nothing, take it, or take it from a locked guest.
    enum DropMark { NotTaken, Taken, TakenFromLocked };

    /// `centre` in canvas units.
    KWSeatCanvasViewItem(KWFloorPlanScene *scene, KWDocument *document, KWTable *table, int seat,
                         const QPointF &centre);

    KWTable *table() const { return m_table; }
    int seat() const { return m_seat; }
    /// Null for an empty seat.
    KWGuest *guest() const;
    /// Repaints the seat if somebody else sits there than was painted last.
    void follow();
    DropMark dropMark() const { return m_dropMark; }
    void setDropMark(DropMark mark);

    int type() const override { return Type; }
    QString tipText(int nameOrder) const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    QRectF areaPoints() const override;

private:
    void paintCircle(QPainter *painter, const KWGuest *guest, double diameter) const;
    void paintMarks(QPainter *painter, const KWGuest *guest, double diameter, bool onScreen) const;
    void paintText(QPainter *painter, double diameter);
    void paintDropMark(QPainter *painter) const;
    QColor fillColour(const KWGuest *guest) const;

    KWTable *m_table;
    int m_seat;
    DropMark m_dropMark = NotTaken;
    /// Only to be compared: the guest may be gone.
    const KWGuest *m_painted = nullptr;
    /// What was painted last, and the font in which it fits.
    struct FittedText
    {
        QString text;
        double height = 0;
        QFont font;
        QFont fitted;
    };
    FittedText m_text;
};

/// A table, which takes its seats along where it is moved.
class KWTableCanvasViewItem : public KWFloorPlanItem
{
public:
    enum { Type = KWFloorPlanScene::TableType };

    /// Stands where the table does, with its seats around it.
    KWTableCanvasViewItem(KWFloorPlanScene *scene, KWDocument *document, KWTable *table);
    /// Deletes its seats, and lets the scene forget it if it was selected.
    ~KWTableCanvasViewItem() override;

    KWTable *table() const { return m_table; }
    /// Null for a seat that does not exist.
    KWSeatCanvasViewItem *seatItem(int seat) const;
    const std::vector<KWSeatCanvasViewItem *> &seatItems() const { return m_seats; }
    /// What it covers with its seats, in canvas units.
    QRectF bounds() const { return m_bounds.translated(pos()); }
    /// Whether the table itself is painted at a point of the canvas in its area.
    bool isPaintedAt(const QPointF &point) const { return m_geometry.isPaintedAt(point - pos()); }
    /// Makes all seats anew. The centre of the table stays, and so does a selected seat if there
    /// still is one of its number.
    void rebuildSeats();
    /// Rebuilds the seats of a table that has another shape or other seats now; of any other,
    /// repaints what is not as it was.
    void follow();
    /// Moves the item and its seats, not the table of the plan.
    void moveBy(double dx, double dy);

    int type() const override { return Type; }
    QString tipText(int nameOrder) const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    QRectF areaPoints() const override;

private:
    void deleteSeats();

    KWTable *m_table;
    KWTableGeometry m_geometry;
    QRectF m_area;
    QRectF m_bounds;
    QString m_paintedName;
    std::vector<KWSeatCanvasViewItem *> m_seats;
};

/// The floor of the room, from the origin.
class KWRoomCanvasViewItem : public QGraphicsRectItem
{
public:
    enum { Type = KWFloorPlanScene::RoomType };

    explicit KWRoomCanvasViewItem(KWFloorPlanScene *scene);

    int type() const override { return Type; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    KWFloorPlanScene *m_scene;
};

/// A line between two seats, over everything.
class KWLineCanvasViewItem : public QGraphicsLineItem
{
public:
    /// The line in canvas units.
    KWLineCanvasViewItem(KWFloorPlanScene *scene, const QLineF &line, const QColor &colour);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
};
