#include "gui/floorplan/kwcanvas.h"

#include "core/model/kwdocument.h"
#include "gui/floorplan/kwfloorplanitem.h"
#include "gui/floorplan/kwplacefinder.h"
#include "gui/floorplan/kwroomgeometry.h"

#include <QPainter>
#include <QPixmap>
#include <QScopedValueRollback>

KWCanvas::KWCanvas(KWDocument *document, QObject *parent)
    : KWFloorPlanScene(document, parent)
{
    connectDocument();
    updateOnRefresh();
}

KWCanvas::~KWCanvas()
{
    // Whoever listens would ask a view that is half gone.
    blockSignals(true);
    clearItems();
}

void KWCanvas::connectDocument()
{
    connect(document(), &KWDocument::eventNewTable, this, &KWCanvas::updateOnNewTable);
    connect(document(), &KWDocument::eventEditTable, this, &KWCanvas::updateOnEditTable);
    connect(document(), &KWDocument::eventBeforeDeleteTable, this, &KWCanvas::updateOnDeleteTable);
    connect(document(), &KWDocument::eventBeforeDeleteGuest, this, &KWCanvas::updateOnDeleteGuest);
    connect(document(), &KWDocument::eventEditGuest, this, &KWCanvas::updateOnEditGuest);
    connect(document(), &KWDocument::eventEditSeat, this, &KWCanvas::updateOnEditSeat);
    // The marks of a group are those of its place in the plan.
    connect(document(), &KWDocument::eventGuestChangeGroup, this, &KWCanvas::updateOnEditGuest);
    connect(document(), &KWDocument::eventAfterDeleteGroup, this, &KWCanvas::repaintSeats);
    connect(document(), &KWDocument::eventRefresh, this, &KWCanvas::updateOnRefresh);
    connect(document(), &KWDocument::eventSimpleAutoLayout, this, &KWCanvas::updateOnRefresh);
    connect(document(), &KWDocument::eventClear, this, &KWCanvas::updateOnClear);
    connect(document(), &KWDocument::eventPrepareAutoLayout, this,
            &KWCanvas::updatePrepareAutoLayout);
}

void KWCanvas::clearItems()
{
    const bool wasSelected = std::exchange(m_selected, nullptr);
    m_lines.clear();
    m_room = nullptr;
    // Each takes its seats along, which the scene would otherwise delete by itself.
    qDeleteAll(std::exchange(m_tables, {}));
    clear();
    if (wasSelected)
        emit selectedChanged();
}

void KWCanvas::addTableItem(KWTable *table)
{
    m_tables.insert(table, new KWTableCanvasViewItem(this, document(), table));
}

void KWCanvas::updateOnNewTable(KWTable *table)
{
    addTableItem(table);
    emit boundsChanged();
}

void KWCanvas::updateOnEditTable(KWTable *table)
{
    KWTableCanvasViewItem *item = itemOfTable(table);
    if (!item)
        return;
    const QRectF before = item->bounds();
    item->follow();
    if (item->bounds() != before)
        emit boundsChanged();
}

void KWCanvas::updateOnDeleteTable(KWTable *table)
{
    delete m_tables.take(table);
    emit boundsChanged();
}

void KWCanvas::updateOnDeleteGuest(KWGuest *guest)
{
    repaintSeat(itemOfGuest(guest));
}

void KWCanvas::updateOnEditGuest(KWGuest *guest)
{
    repaintSeat(itemOfGuest(guest));
}

void KWCanvas::updateOnEditSeat(KWTable *table, int seat)
{
    repaintSeat(itemOfSeat(table, seat));
}

void KWCanvas::updateOnRefresh()
{
    clearItems();
    setBackgroundBrush(document()->floorplanColourOutside());
    for (KWTable *table : document()->tables())
        addTableItem(table);
    resizeToRoom();
}

void KWCanvas::updateOnClear()
{
    clearItems();
}

void KWCanvas::updatePrepareAutoLayout()
{
    clearItems();
}

void KWCanvas::repaintSeat(KWSeatCanvasViewItem *item)
{
    if (item)
        item->update();
}

void KWCanvas::repaintSeats()
{
    for (KWTableCanvasViewItem *table : std::as_const(m_tables)) {
        for (KWSeatCanvasViewItem *seat : table->seatItems())
            seat->update();
    }
}

void KWCanvas::resizeToRoom()
{
    m_size = KWRoomGeometry::canvasSize(document()->roomXSize(), document()->roomYSize(),
                                        document()->chairSize());
    setSceneRect(QRectF(QPointF(), m_size));
    QList<QPointF> centres;
    const QList<KWTableCanvasViewItem *> items = m_tables.values();
    for (const KWTableCanvasViewItem *item : items)
        centres.append(item->pos());
    const QList<QPointF> squeezed = KWRoomGeometry::squeezed(centres, m_size);
    for (int i = 0; i < items.size(); ++i) {
        QPointF way = squeezed[i] - centres[i];
        // A table wholly before the origin, where a file may have it, could never be reached.
        const QPointF end = items[i]->area().bottomRight() + way;
        if (end.x() < 0)
            way.setX(-centres[i].x());
        if (end.y() < 0)
            way.setY(-centres[i].y());
        items[i]->moveBy(way.x(), way.y());
    }
    if (!m_room)
        m_room = new KWRoomCanvasViewItem(this);
    m_room->setRect(QRectF(QPointF(), m_size));
    update();
    emit boundsChanged();
}

KWTableCanvasViewItem *KWCanvas::itemOfTable(const KWTable *table) const
{
    return m_tables.value(table);
}

KWSeatCanvasViewItem *KWCanvas::itemOfSeat(const KWTable *table, int seat) const
{
    const KWTableCanvasViewItem *item = itemOfTable(table);
    return item ? item->seatItem(seat) : nullptr;
}

KWSeatCanvasViewItem *KWCanvas::itemOfGuest(const KWGuest *guest) const
{
    KWTable *table = nullptr;
    int seat = 0;
    return document()->findGuest(guest, &table, &seat) ? itemOfSeat(table, seat) : nullptr;
}

QGraphicsItem *KWCanvas::itemAtPoint(const QPointF &point) const
{
    QGraphicsItem *bareTable = nullptr;
    for (QGraphicsItem *item : items(point, Qt::IntersectsItemShape, Qt::DescendingOrder)) {
        const auto *table = qgraphicsitem_cast<KWTableCanvasViewItem *>(item);
        if (table && !table->isPaintedAt(point))
            bareTable = bareTable ? bareTable : item;
        else
            return !bareTable || item->type() == KWSeatCanvasViewItem::Type ? item : bareTable;
    }
    return bareTable;
}

void KWCanvas::markDrop(const QList<KWGuestDrop::Seat> &seats)
{
    using Item = KWSeatCanvasViewItem;
    QHash<const Item *, Item::DropMark> marks;
    for (const KWGuestDrop::Seat &seat : seats)
        marks.insert(itemOfSeat(seat.table, seat.seat),
                     seat.losesLocked ? Item::TakenFromLocked : Item::Taken);
    for (const KWTableCanvasViewItem *table : std::as_const(m_tables)) {
        for (Item *seat : table->seatItems())
            seat->setDropMark(marks.value(seat, Item::NotTaken));
    }
}

void KWCanvas::setLook(const KWFloorPlanLook &look)
{
    m_nameOrder = look.nameOrder;
    sharedDisplay() = look.seats;
    repaintSeats();
}

void KWCanvas::setNameOrder(int order)
{
    m_nameOrder = order;
    repaintSeats();
}

void KWCanvas::displaySeats(SeatDisplay display)
{
    sharedDisplay().display = display;
    repaintSeats();
}

void KWCanvas::showGender(bool on)
{
    sharedDisplay().gender = on;
    repaintSeats();
}

void KWCanvas::showAge(bool on)
{
    sharedDisplay().age = on;
    repaintSeats();
}

void KWCanvas::showVIP(bool on)
{
    sharedDisplay().vip = on;
    repaintSeats();
}

void KWCanvas::showGroups(bool on)
{
    sharedDisplay().groups = on;
    repaintSeats();
}

void KWCanvas::showLocked(bool on)
{
    sharedDisplay().locked = on;
    repaintSeats();
}

bool KWCanvas::moveToNextTablePos(KWTableCanvasViewItem *item)
{
    KWPlaceFinder finder(m_size);
    for (const KWTableCanvasViewItem *other : std::as_const(m_tables)) {
        if (other != item)
            finder.add(other->area());
    }
    const auto [centre, isFree] = finder.freePlace(item->pos(), item->area().size());
    item->moveBy(centre.x() - item->x(), centre.y() - item->y());
    document()->moveTable(item->table(), centre.x(), centre.y());
    emit boundsChanged();
    return isFree;
}

// Lines end in the middle of seats.
QRectF KWCanvas::itemBounds(double margin) const
{
    QRectF bounds;
    for (const KWTableCanvasViewItem *table : m_tables)
        bounds |= table->bounds();
    return KWRoomGeometry::withMargin(bounds, margin);
}

QRectF KWCanvas::boundsForAspect(double margin, double ratio) const
{
    return KWRoomGeometry::withAspect(itemBounds(margin), ratio);
}

void KWCanvas::paint(QPainter *painter, const QRectF &target, const QRectF &bounds)
{
    const QScopedValueRollback picture(m_paintsPicture, true);
    const QScopedValueRollback<QGraphicsItem *> selected(m_selected, nullptr);
    painter->fillRect(target, document()->floorplanColourInside());
    painter->setRenderHint(QPainter::Antialiasing);
    render(painter, target, bounds, Qt::IgnoreAspectRatio);
}

void KWCanvas::drawBackground(QPainter *painter, const QRectF &rect)
{
    // The colour around the room has no place in a picture.
    if (!m_paintsPicture)
        QGraphicsScene::drawBackground(painter, rect);
}

QPixmap KWCanvas::renderToPixmap(double margin)
{
    constexpr double leastScale = 0.01;
    const QRectF bounds = itemBounds(margin);
    if (bounds.isEmpty())
        return {};
    double scale = 1;
    // A pixmap would not say that it got no memory.
    QImage image = newImage(bounds.size().toSize());
    while (image.isNull() && scale >= leastScale) {
        scale /= 2;
        image = newImage((bounds.size() * scale).toSize());
    }
    if (image.isNull())
        return {};
    QPainter painter(&image);
    paint(&painter, QRectF(QPointF(), QSizeF(image.size())), bounds);
    painter.end();
    return QPixmap::fromImage(std::move(image));
}

QImage KWCanvas::newImage(const QSize &size)
{
    // What the system promises it may not have, and it ends the program that comes for it.
    constexpr qint64 mostPixels = 1 << 28;
    // Beyond, the toolkit does not paint.
    constexpr int longestSide = 32767;
    if (std::max(size.width(), size.height()) > longestSide ||
        qint64{size.width()} * size.height() > mostPixels)
        return {};
    return QImage(size, QImage::Format_ARGB32_Premultiplied);
}
