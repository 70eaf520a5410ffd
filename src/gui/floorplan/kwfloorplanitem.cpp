#include "gui/floorplan/kwfloorplanitem.h"

#include "core/model/kwdocument.h"
#include "gui/appearance/kwpixmaps.h"
#include "gui/floorplan/kwfloorplantext.h"
#include "gui/floorplan/kwtablegeometry.h"

#include <QFont>
#include <QPaintDevice>
#include <QPainter>
#include <QPixmapCache>
#include <QStyleOptionGraphicsItem>
#include <QSvgRenderer>

#include <algorithm>
#include <utility>

namespace {

constexpr double roomDepth = -1;
constexpr double seatDepth = 1;
constexpr double tableDepth = 2;
constexpr double lineDepth = 100;
constexpr double markedWidth = 2;
constexpr double dropWidth = 3;
constexpr QColor lockedColour(210, 67, 67);

/// The plan's font with its size in canvas units, so that it is the same on every device.
QFont canvasFont(const KWDocument &document)
{
    constexpr double unitsPerPoint = 96.0 / 72;
    constexpr int largest = 1000;
    QFont font = document.floorPlanFont();
    const double points = font.pointSizeF();
    const double units = points > 0 ? points * unitsPerPoint : font.pixelSize();
    font.setPixelSize(qBound(1, qRound(units), largest));
    return font;
}

/// How large a canvas unit is, in pixels as the user knows them.
double scaleOf(const QPainter *painter)
{
    return QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform());
}

/// In canvas units, but where they are smaller than pixels in pixels: a line is always seen. It is
/// as wide on a fine screen, where a pixel has several of the device's.
QPen linePen(const QPainter *painter, const QColor &colour, double width = 1)
{
    if (scaleOf(painter) >= 1)
        return QPen(colour, width);
    QPen pen(colour, width * painter->device()->devicePixelRatioF());
    pen.setCosmetic(true);
    return pen;
}

/// The marks at seats, for any scale.
struct MarkDrawings
{
    QSvgRenderer locked{QStringLiteral(":/marks/locked.svg")};
    QSvgRenderer vip{QStringLiteral(":/marks/vip.svg")};
};

MarkDrawings &markDrawings()
{
    initAppearanceResources();
    // Never deleted: at the time of static destructors there is no application any more.
    static auto &drawings = *new MarkDrawings;
    return drawings;
}

/// On the screen, where many are painted with every move, as a pixmap that is as large as they are
/// there.
void drawMark(QPainter *painter, const QRectF &place, QSvgRenderer &drawing, bool onScreen)
{
    if (!onScreen) {
        drawing.render(painter, place);
        return;
    }
    constexpr int largest = 400;
    const QSize size =
        painter->deviceTransform().mapRect(place).size().toSize().expandedTo({1, 1}).boundedTo(
            {largest, largest});
    const QString key = QStringLiteral("seat mark %1 %2x%3")
                            .arg(quintptr(&drawing))
                            .arg(size.width())
                            .arg(size.height());
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QPixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter pixmapPainter(&pixmap);
        drawing.render(&pixmapPainter);
        QPixmapCache::insert(key, pixmap);
    }
    painter->drawPixmap(place, pixmap, QRectF(pixmap.rect()));
}
} // namespace

KWFloorPlanItem::KWFloorPlanItem(KWDocument *document)
    : m_document(document)
{
}

QPainterPath KWFloorPlanItem::shape() const
{
    QPainterPath path;
    path.addRect(areaPoints());
    return path;
}

KWFloorPlanScene *KWFloorPlanItem::floorPlan() const
{
    return static_cast<KWFloorPlanScene *>(scene());
}

bool KWFloorPlanItem::isMarked() const
{
    return floorPlan()->selected() == this;
}

KWSeatCanvasViewItem::KWSeatCanvasViewItem(KWFloorPlanScene *scene, KWDocument *document,
                                           KWTable *table, int seat, const QPointF &centre)
    : KWFloorPlanItem(document)
    , m_table(table)
    , m_seat(seat)
{
    setZValue(seatDepth);
    setPos(centre);
    scene->addItem(this);
}

KWGuest *KWSeatCanvasViewItem::guest() const
{
    KWGuest *guest = nullptr;
    document()->guestAtSeat(m_table, m_seat, &guest);
    return guest;
}

void KWSeatCanvasViewItem::follow()
{
    if (guest() != m_painted)
        update();
}

void KWSeatCanvasViewItem::setDropMark(DropMark mark)
{
    if (std::exchange(m_dropMark, mark) != mark)
        update();
}

QString KWSeatCanvasViewItem::tipText(int nameOrder) const
{
    return KWFloorPlanText::seatTip(*m_table, m_seat, nameOrder);
}

QRectF KWSeatCanvasViewItem::areaPoints() const
{
    constexpr double half = KWTableGeometry::seatSize / 2.0;
    return {-half, -half, 2 * half, 2 * half};
}

void KWSeatCanvasViewItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *,
                                 QWidget *widget)
{
    constexpr double childFactor = 0.67;
    const KWGuest *occupant = guest();
    m_painted = occupant;
    double diameter = KWTableGeometry::seatSize;
    if (KWFloorPlanScene::display().age && occupant && occupant->age() == KWGuest::Child)
        diameter *= childFactor;
    paintCircle(painter, occupant, diameter);
    if (occupant)
        paintMarks(painter, occupant, diameter, widget != nullptr);
    if (KWFloorPlanScene::display().showsText())
        paintText(painter, diameter);
    if (m_dropMark != NotTaken && !floorPlan()->paintsPicture())
        paintDropMark(painter);
}

// Inside the seat, also where a pixel is many canvas units.
void KWSeatCanvasViewItem::paintDropMark(QPainter *painter) const
{
    const bool locked = m_dropMark == TakenFromLocked;
    QPen pen = linePen(painter, locked ? lockedColour : floorPlan()->selectionColour(), dropWidth);
    // Told apart by its form as well.
    if (locked)
        pen.setStyle(Qt::DashLine);
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    const double width = dropWidth / std::min(1.0, scaleOf(painter));
    const double radius = (KWTableGeometry::seatSize - width) / 2;
    painter->drawEllipse(QPointF(), radius, radius);
}

QColor KWSeatCanvasViewItem::fillColour(const KWGuest *guest) const
{
    const KWFloorPlanLook::Seats &display = KWFloorPlanScene::display();
    if (guest && display.gender) {
        if (guest->gender() == KWGuest::Male)
            return {96, 192, 255};
        if (guest->gender() == KWGuest::Female)
            return {255, 160, 255};
    } else if (guest && display.groups && guest->group()) {
        return floorPlan()->outerColour(guest->group());
    }
    return display.showsCircle() ? document()->floorplanColourSeats()
                                 : document()->floorplanColourInside();
}

void KWSeatCanvasViewItem::paintCircle(QPainter *painter, const KWGuest *guest,
                                       double diameter) const
{
    const bool circle = KWFloorPlanScene::display().showsCircle();
    QPen pen = linePen(painter, circle ? document()->floorplanColourSeatsEdge()
                                       : document()->floorplanColourInside());
    if (circle && isMarked())
        pen = linePen(painter, floorPlan()->selectionColour(), markedWidth);
    painter->setPen(pen);
    painter->setBrush(fillColour(guest));
    painter->drawEllipse(QPointF(), diameter / 2, diameter / 2);
}

void KWSeatCanvasViewItem::paintMarks(QPainter *painter, const KWGuest *guest, double diameter,
                                      bool onScreen) const
{
    const KWFloorPlanLook::Seats &display = KWFloorPlanScene::display();
    if (display.groups && guest->group()) {
        const QColor inner = floorPlan()->innerColour(guest->group());
        painter->setPen(inner);
        painter->setBrush(inner);
        painter->drawEllipse(QPointF(), diameter / 4, diameter / 4);
    }
    const QRectF place(-diameter / 2 + 2, -diameter / 2 - 3, diameter - 4, diameter);
    if (display.locked && guest->isLocked())
        drawMark(painter, place, markDrawings().locked, onScreen);
    if (display.vip && guest->isVip())
        drawMark(painter, place, markDrawings().vip, onScreen);
}

void KWSeatCanvasViewItem::paintText(QPainter *painter, double diameter)
{
    const QString text = KWFloorPlanText::wrapped(
        KWFloorPlanText::seatText(*m_table, m_seat, floorPlan()->nameOrder()));
    if (text.isEmpty())
        return;
    constexpr double width = KWTableGeometry::seatSize;
    const QFont font = canvasFont(*document());
    // To measure takes as long as to paint.
    if (m_text.text != text || m_text.height != diameter || m_text.font != font)
        m_text = {text, diameter, font, KWFloorPlanText::fittedFont(font, text, {width, diameter})};
    painter->setPen(isMarked() ? floorPlan()->selectionColour()
                               : document()->floorplanColourSeatsText());
    painter->setFont(m_text.fitted);
    painter->drawText(QRectF(-width / 2, -diameter / 2, width, diameter), Qt::AlignCenter, text);
}

KWTableCanvasViewItem::KWTableCanvasViewItem(KWFloorPlanScene *scene, KWDocument *document,
                                             KWTable *table)
    : KWFloorPlanItem(document)
    , m_table(table)
    , m_geometry(*table)
{
    setZValue(tableDepth);
    setPos(table->position());
    scene->addItem(this);
    rebuildSeats();
}

KWTableCanvasViewItem::~KWTableCanvasViewItem()
{
    deleteSeats();
    if (floorPlan() && isMarked())
        floorPlan()->setSelected(nullptr);
}

KWSeatCanvasViewItem *KWTableCanvasViewItem::seatItem(int seat) const
{
    const auto index = static_cast<std::size_t>(seat);
    return seat >= 0 && index < m_seats.size() ? m_seats[index] : nullptr;
}

void KWTableCanvasViewItem::deleteSeats()
{
    for (KWSeatCanvasViewItem *seat : m_seats) {
        if (floorPlan() && floorPlan()->selected() == seat)
            floorPlan()->setSelected(nullptr);
        delete seat;
    }
    m_seats.clear();
}

void KWTableCanvasViewItem::follow()
{
    if (KWTableGeometry(*m_table) != m_geometry) {
        rebuildSeats();
        return;
    }
    for (KWSeatCanvasViewItem *seat : m_seats)
        seat->follow();
    if (m_table->name() != m_paintedName)
        update();
}

void KWTableCanvasViewItem::rebuildSeats()
{
    const auto *selected = qgraphicsitem_cast<KWSeatCanvasViewItem *>(floorPlan()->selected());
    const int selectedSeat = selected && selected->table() == m_table ? selected->seat() : -1;
    deleteSeats();
    prepareGeometryChange();
    m_geometry = KWTableGeometry(*m_table);
    m_area = m_geometry.area({});
    m_bounds = m_geometry.bounds({});
    int seat = 0;
    for (const QPointF &centre : m_geometry.seatCentres(pos()))
        m_seats.push_back(
            new KWSeatCanvasViewItem(floorPlan(), document(), m_table, seat++, centre));
    if (seatItem(selectedSeat))
        floorPlan()->setSelected(seatItem(selectedSeat));
    update();
}

void KWTableCanvasViewItem::moveBy(double dx, double dy)
{
    for (KWSeatCanvasViewItem *seat : m_seats)
        seat->moveBy(dx, dy);
    QGraphicsItem::moveBy(dx, dy);
}

QString KWTableCanvasViewItem::tipText(int) const
{
    return KWFloorPlanText::tableTip(*m_table);
}

QRectF KWTableCanvasViewItem::areaPoints() const
{
    return m_area;
}

void KWTableCanvasViewItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const QSizeF size = m_geometry.size();
    m_paintedName = m_table->name();
    if (size.isEmpty())
        return;
    const KWDocument &plan = *document();
    painter->setBrush(plan.floorplanColourTables());
    painter->setPen(isMarked() ? linePen(painter, floorPlan()->selectionColour(), markedWidth)
                               : linePen(painter, plan.floorplanColourTablesEdge()));
    const QRectF body(QPointF(-size.width() / 2, -size.height() / 2), size);
    if (m_table->shape() == KWTable::Circular)
        painter->drawEllipse(body);
    else
        painter->drawRect(body);
    painter->setFont(canvasFont(plan));
    painter->setPen(isMarked() ? floorPlan()->selectionColour() : plan.floorplanColourTableText());
    painter->drawText(body, Qt::AlignCenter, KWFloorPlanText::wrapped(m_paintedName));
}

KWRoomCanvasViewItem::KWRoomCanvasViewItem(KWFloorPlanScene *scene)
    : m_scene(scene)
{
    setZValue(roomDepth);
    setPen(Qt::NoPen);
    scene->addItem(this);
}

void KWRoomCanvasViewItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->fillRect(rect(), m_scene->document()->floorplanColourInside());
}

KWLineCanvasViewItem::KWLineCanvasViewItem(KWFloorPlanScene *scene, const QLineF &line,
                                           const QColor &colour)
    : QGraphicsLineItem(line)
{
    setZValue(lineDepth);
    setPen(QPen(colour, 1));
    scene->addItem(this);
}

void KWLineCanvasViewItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setPen(linePen(painter, pen().color(), pen().widthF()));
    painter->drawLine(line());
}
