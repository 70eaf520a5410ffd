#include "gui/floorplan/kwcanvas.h"

#include "core/model/kwdocument.h"
#include "gui/appearance/kwcolours.h"
#include "gui/floorplan/kwfloorplanitem.h"
#include "gui/floorplan/kwplacefinder.h"
#include "gui/floorplan/kwroomgeometry.h"

#include <QPainter>
#include <QPixmap>
#include <QScopedValueRollback>

namespace {

KWCanvas::Display &sharedDisplay()
{
    static KWCanvas::Display display;
    return display;
}
} // namespace

const KWCanvas::Display &KWCanvas::display()
{
    return sharedDisplay();
}

KWCanvas::KWCanvas(KWDocument *document, QObject *parent)
    : QGraphicsScene(parent)
    , m_document(document)
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
    connect(m_document, &KWDocument::eventNewTable, this, &KWCanvas::updateOnNewTable);
    connect(m_document, &KWDocument::eventEditTable, this, &KWCanvas::updateOnEditTable);
    connect(m_document, &KWDocument::eventBeforeDeleteTable, this, &KWCanvas::updateOnDeleteTable);
    connect(m_document, &KWDocument::eventBeforeDeleteGuest, this, &KWCanvas::updateOnDeleteGuest);
    connect(m_document, &KWDocument::eventEditGuest, this, &KWCanvas::updateOnEditGuest);
    connect(m_document, &KWDocument::eventEditSeat, this, &KWCanvas::updateOnEditSeat);
    // The marks of a group are those of its place in the plan.
    connect(m_document, &KWDocument::eventGuestChangeGroup, this, &KWCanvas::updateOnEditGuest);
    connect(m_document, &KWDocument::eventAfterDeleteGroup, this, &KWCanvas::repaintSeats);
    connect(m_document, &KWDocument::eventRefresh, this, &KWCanvas::updateOnRefresh);
    connect(m_document, &KWDocument::eventSimpleAutoLayout, this, &KWCanvas::updateOnRefresh);
    connect(m_document, &KWDocument::eventClear, this, &KWCanvas::updateOnClear);
    connect(m_document, &KWDocument::eventPrepareAutoLayout, this,
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
    m_tables.insert(table, new KWTableCanvasViewItem(this, m_document, table));
}

void KWCanvas::updateOnNewTable(KWTable *table)
{
    addTableItem(table);
}

void KWCanvas::updateOnEditTable(KWTable *table)
{
    if (KWTableCanvasViewItem *item = itemOfTable(table))
        item->follow();
}

void KWCanvas::updateOnDeleteTable(KWTable *table)
{
    delete m_tables.take(table);
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
    setBackgroundBrush(m_document->floorplanColourOutside());
    for (KWTable *table : m_document->tables())
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
    m_size = KWRoomGeometry::canvasSize(m_document->roomXSize(), m_document->roomYSize(),
                                        m_document->chairSize());
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
}

void KWCanvas::setSelected(QGraphicsItem *item)
{
    if (item == m_selected)
        return;
    for (QGraphicsItem *changed : {std::exchange(m_selected, item), item}) {
        // The others look the same.
        if (dynamic_cast<KWFloorPlanItem *>(changed))
            changed->update();
    }
    emit selectedChanged();
}

QColor KWCanvas::selectionColour() const
{
    const QColor own = m_document->floorplanColourSelected();
    return own.isValid() ? own : KWColours::highlightColour();
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
    return m_document->findGuest(guest, &table, &seat) ? itemOfSeat(table, seat) : nullptr;
}

QGraphicsItem *KWCanvas::itemAtPoint(const QPointF &point) const
{
    return items(point, Qt::IntersectsItemShape, Qt::DescendingOrder).value(0);
}

void KWCanvas::setNameOrder(int order)
{
    m_nameOrder = order;
    repaintSeats();
}

QColor KWCanvas::colourAt(int index)
{
    static constexpr std::array<QColor, 16> colours{
        QColor(255, 0, 0),   QColor(0, 255, 0),     QColor(0, 0, 255),   QColor(255, 255, 0),
        QColor(255, 0, 255), QColor(0, 255, 255),   QColor(192, 192, 0), QColor(192, 0, 192),
        QColor(0, 192, 192), QColor(255, 192, 0),   QColor(192, 0, 0),   QColor(0, 192, 0),
        QColor(0, 0, 192),   QColor(192, 192, 255), QColor(0, 192, 255), QColor(192, 192, 192)};
    return colours.at(static_cast<std::size_t>(index) % colours.size());
}

QColor KWCanvas::outerColour(const KWGroup *group) const
{
    return colourAt(m_document->indexOfGroup(group));
}

QColor KWCanvas::innerColour(const KWGroup *group) const
{
    return colourAt(m_document->indexOfGroup(group) / 16);
}

void KWCanvas::displaySeats(SeatDisplay display)
{
    sharedDisplay().seats = display;
    repaintSeats();
}

void KWCanvas::showGender(bool on)
{
    sharedDisplay().showGender = on;
    repaintSeats();
}

void KWCanvas::showAge(bool on)
{
    sharedDisplay().showAge = on;
    repaintSeats();
}

void KWCanvas::showVIP(bool on)
{
    sharedDisplay().showVIP = on;
    repaintSeats();
}

void KWCanvas::showGroups(bool on)
{
    sharedDisplay().showGroups = on;
    repaintSeats();
}

void KWCanvas::showLocked(bool on)
{
    sharedDisplay().showLocked = on;
    repaintSeats();
}

void KWCanvas::moveToNextTablePos(KWTableCanvasViewItem *item)
{
    KWPlaceFinder finder(m_size);
    for (const KWTableCanvasViewItem *other : std::as_const(m_tables)) {
        if (other != item)
            finder.add(other->area());
    }
    const QPoint place = finder.freePlace(item->pos(), item->area().size());
    item->moveBy(place.x() - item->x(), place.y() - item->y());
    m_document->moveTable(item->table(), place.x(), place.y());
}

QRectF KWCanvas::itemBounds(double margin) const
{
    QRectF bounds;
    for (const QGraphicsItem *item : items()) {
        const auto *planItem = dynamic_cast<const KWFloorPlanItem *>(item);
        if (planItem)
            bounds |= planItem->area();
        else if (item != m_room)
            bounds |= item->sceneBoundingRect();
    }
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
    painter->fillRect(target, m_document->floorplanColourInside());
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
