#pragma once

#include "gui/exchange/kwguestdrop.h"
#include "gui/exchange/kwprintable.h"
#include "gui/floorplan/kwfloorplanscene.h"

#include <QFont>
#include <QHash>

class KWGuest;
class KWRoomCanvasViewItem;
class KWSeatCanvasViewItem;
class KWTable;
class KWTableCanvasViewItem;

/// The scene of the floor plan: the room and, for each table of the plan, an item with its seats
/// under it. It follows the plan at all times, shown or not. Canvas units are scene units.
class KWCanvas : public KWFloorPlanScene, public KWPrintable
{
    Q_OBJECT

public:
    using SeatDisplay = KWFloorPlanLook::SeatDisplay;
    using enum KWFloorPlanLook::SeatDisplay;

    /// `document` is not owned and outlives the canvas.
    explicit KWCanvas(KWDocument *document, QObject *parent = nullptr);
    ~KWCanvas() override;

    /// The whole canvas: the room, from the origin.
    QSize canvasSize() const { return m_size; }
    /// Takes the size of the plan's room. Tables that stand beyond it are squeezed towards the
    /// origin, here but not in the plan.
    void resizeToRoom();

    /// Null if there is none; a guest without a seat has none.
    KWTableCanvasViewItem *itemOfTable(const KWTable *table) const;
    KWSeatCanvasViewItem *itemOfSeat(const KWTable *table, int seat) const;
    KWSeatCanvasViewItem *itemOfGuest(const KWGuest *guest) const;
    /// What is on top at a point: a line, a table, a seat or the room; null beyond the room. A
    /// table is hit in all of its rectangle, except where a round one leaves a seat to be seen.
    QGraphicsItem *itemAtPoint(const QPointF &point) const;
    /// Outlines the seats that a drop would take, and no others.
    void markDrop(const QList<KWGuestDrop::Seat> &seats);

    /// How it is shown; the seats are shown so in all canvases.
    KWFloorPlanLook look() const { return {nameOrder(), display()}; }
    void setLook(const KWFloorPlanLook &look);
    void setNameOrder(int order);

    /// A font that is kept and nothing else: seats and tables are painted with the plan's.
    QFont seatFont() const { return m_seatFont; }
    void setSeatFont(const QFont &font) { m_seatFont = font; }

    /// What all tables and seats cover, with `margin` times the longer side around it.
    QRectF itemBounds(double margin) const;
    /// The same, widened or heightened to a ratio of width to height.
    QRectF boundsForAspect(double margin, double ratio) const;
    /// Draws what lies in `bounds` into `target`, on the colour of the room and without the
    /// selection.
    void paint(QPainter *painter, const QRectF &target, const QRectF &bounds);
    /// Draws the items with that margin on the colour of the room. Where there is no memory for
    /// it, at half the size, and so on; null if there is not even for a hundredth.
    QPixmap renderToPixmap(double margin);

    /// The colour of the room.
    QColor backgroundColour() const override;
    /// The header stands `headerPosition` above the upper edge of the page, the footer's lower edge
    /// `footerPosition` above the lower one. A plan without tables prints nothing.
    void print(QPainter *painter, int width, int height, double margin, const QString &header,
               const QFont &headerFont, const QColor &headerColour, int headerPosition,
               const QString &footer, const QFont &footerFont, const QColor &footerColour,
               int footerPosition) override;

public slots:
    void updateOnNewTable(KWTable *table);
    void updateOnEditTable(KWTable *table);
    void updateOnDeleteTable(KWTable *table);
    void updateOnDeleteGuest(KWGuest *guest);
    void updateOnEditGuest(KWGuest *guest);
    void updateOnEditSeat(KWTable *table, int seat);
    void updateOnRefresh();
    void updateOnClear();
    void updatePrepareAutoLayout();
    void showLovesAffinity();
    void showLikesAffinity();
    void showDislikesAffinity();
    void showHatesAffinity();
    void showAllAffinity();
    /// Lines for the wishes that the seating does not meet.
    void showConflicts();
    /// Takes all lines away.
    void hideAffinity();
    void displaySeats(KWCanvas::SeatDisplay display);
    void showGender(bool on);
    void showAge(bool on);
    void showVIP(bool on);
    void showGroups(bool on);
    void showLocked(bool on);
    /// Finds a free place for a table's item, and stores it in the plan. False if the room is full
    /// and the table stands on others.
    bool moveToNextTablePos(KWTableCanvasViewItem *item);

signals:
    /// The room or what itemBounds() tells may have changed. A table that is moved by its item says
    /// nothing.
    void boundsChanged();

protected:
    void drawBackground(QPainter *painter, const QRectF &rect) override;
    /// Null if there is no memory for it.
    virtual QImage newImage(const QSize &size);

private:
    using GuestPair = QPair<KWGuest *, KWGuest *>;

    void connectDocument();
    void clearItems();
    void addTableItem(KWTable *table);
    void repaintSeats();
    void repaintSeat(KWSeatCanvasViewItem *item);
    void addLines(int value);
    void addLine(const GuestPair &pair, int value);
    bool isConflict(const GuestPair &pair, int value) const;

    QSize m_size;
    QFont m_seatFont;
    KWRoomCanvasViewItem *m_room = nullptr;
    QHash<const KWTable *, KWTableCanvasViewItem *> m_tables;
    QList<QGraphicsLineItem *> m_lines;
};
