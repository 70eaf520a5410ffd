#include "gui/floorplan/kwcanvasview.h"

#include "core/model/kwdocument.h"
#include "gui/exchange/kwdrag.h"
#include "gui/floorplan/kwfloorplanitem.h"
#include "gui/floorplan/kwfloorplantext.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimer>
#include <QToolTip>

namespace {

KWTableCanvasViewItem *tableItem(QGraphicsItem *item)
{
    return qgraphicsitem_cast<KWTableCanvasViewItem *>(item);
}

KWSeatCanvasViewItem *seatItem(QGraphicsItem *item)
{
    return qgraphicsitem_cast<KWSeatCanvasViewItem *>(item);
}
} // namespace

KWCanvasView::KWCanvasView(QWidget *parent, KWDocument *document)
    : QGraphicsView(parent)
    , KWView(document)
    , m_canvas(document)
{
    setScene(&m_canvas);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    setTransformationAnchor(NoAnchor);
    setAcceptDrops(true);
    // Or a release that went elsewhere would be noticed late.
    viewport()->setMouseTracking(true);
    languageChange();
    scaleBy(startZoom);
    for (const QScrollBar *bar : {horizontalScrollBar(), verticalScrollBar()})
        connect(bar, &QScrollBar::actionTriggered, this, [this] { m_isFitted = false; });
    connect(&m_canvas, &KWCanvas::sceneRectChanged, this, &KWCanvasView::zoomChanged);
    connect(document, &KWDocument::eventClear, this, &KWCanvasView::updateOnClear);
    connect(document, &KWDocument::eventRefresh, this, &KWCanvasView::updateOnRefresh);
    connect(document, &KWDocument::eventSimpleAutoLayout, this, &KWCanvasView::updateOnRefresh);
}

void KWCanvasView::languageChange()
{
    setToolTip(tr("Floor plan pane"));
    setWhatsThis(
        tr("<b>Floor plan pane</b><br/>Displays an aerial view of table, seats and assigned "
           "guests. You can drag tables and drag guests between seats. Guests can be dragged to "
           "seats or tables from the <b>Guests</b> or <b>Groups</b> panes. "));
}

void KWCanvasView::changeEvent(QEvent *event)
{
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        languageChange();
}

void KWCanvasView::updateOnClear()
{
    m_dragStarted = false;
    m_movingTable = false;
}

void KWCanvasView::updateOnRefresh()
{
    updateOnClear();
}

KWTableCanvasViewItem *KWCanvasView::selectedTable() const
{
    return tableItem(m_canvas.selected());
}

KWSeatCanvasViewItem *KWCanvasView::selectedSeat() const
{
    return seatItem(m_canvas.selected());
}

KWGuest *KWCanvasView::selectedGuest() const
{
    const KWSeatCanvasViewItem *seat = selectedSeat();
    return seat ? seat->guest() : nullptr;
}

void KWCanvasView::setThisViewActive()
{
    if (KWMainWindow *window = mainWin())
        window->setActiveView(this);
}

void KWCanvasView::mousePressEvent(QMouseEvent *event)
{
    QGraphicsView::mousePressEvent(event);
    landTable();
    m_dragStarted = false;
    m_lastPoint = mapToScene(event->position().toPoint());
    m_canvas.setSelected(m_canvas.itemAtPoint(m_lastPoint));
    if (const KWTableCanvasViewItem *table = selectedTable())
        m_tableStart = table->pos();
    setThisViewActive();
}

void KWCanvasView::mouseMoveEvent(QMouseEvent *event)
{
    QGraphicsView::mouseMoveEvent(event);
    if (event->buttons() == Qt::NoButton) {
        // The release went elsewhere.
        landTable();
        return;
    }
    if (!(event->buttons() & Qt::LeftButton) || (event->buttons() & Qt::RightButton))
        return;
    const QPointF point = mapToScene(event->position().toPoint());
    if (selectedTable())
        moveTable(point);
    else if (selectedSeat() && !m_dragStarted)
        dragGuest(point);
}

void KWCanvasView::moveTable(const QPointF &point)
{
    if (!sceneRect().contains(point))
        return;
    m_movingTable = true;
    const QPointF way = point - std::exchange(m_lastPoint, point);
    selectedTable()->moveBy(way.x(), way.y());
}

// Where a move of a table ends, the plan takes it over, unless the table is back where it was: one
// that was squeezed into the room keeps its place in the plan. There is no undo for it.
void KWCanvasView::landTable()
{
    const KWTableCanvasViewItem *item = selectedTable();
    if (std::exchange(m_movingTable, false) && item) {
        const QPoint place = item->pos().toPoint();
        if (place == m_tableStart.toPoint())
            return;
        document()->moveTable(item->table(), place.x(), place.y());
        m_tableStart = item->pos();
        // Once, where the move of each pixel says nothing: it belongs into the next backup.
        document()->announceModified();
    }
}

void KWCanvasView::putTableBack()
{
    KWTableCanvasViewItem *item = selectedTable();
    if (std::exchange(m_movingTable, false) && item) {
        const QPointF way = m_tableStart - item->pos();
        item->moveBy(way.x(), way.y());
        // Nor do further moves of the button that is still down.
        m_canvas.setSelected(nullptr);
        updateCommands();
    }
}

void KWCanvasView::dragGuest(const QPointF &point)
{
    constexpr int tremor = 5;
    const KWSeatCanvasViewItem *seat = selectedSeat();
    const int way = seat->pos().toPoint().manhattanLength() - point.toPoint().manhattanLength();
    KWGuest *guest = seat->guest();
    if (std::abs(way) <= tremor || !guest)
        return;
    // The message, too, comes once for a press.
    m_dragStarted = true;
    if (guest->isLocked())
        errorBox(tr("Guest '%1' is locked").arg(guest->displayName()), tr("&OK"));
    else
        runDrag(new KWDrag(document(), {guest}, viewport()));
}

void KWCanvasView::runDrag(KWDrag *drag)
{
    drag->exec(Qt::MoveAction);
}

void KWCanvasView::mouseReleaseEvent(QMouseEvent *event)
{
    QGraphicsView::mouseReleaseEvent(event);
    m_dragStarted = false;
    if (event->button() == Qt::LeftButton)
        landTable();
    else if (event->button() == Qt::RightButton)
        openContextMenu(QCursor::pos());
}

// Of whichever view is active: a drop seats guests that a list has selected.
void KWCanvasView::updateCommands()
{
    if (KWMainWindow *window = mainWin())
        window->updateActionsOnViewChange();
}

void KWCanvasView::focusInEvent(QFocusEvent *event)
{
    QGraphicsView::focusInEvent(event);
    setThisViewActive();
}

// What comes up meanwhile, such as a dialog, may keep the release for itself.
void KWCanvasView::focusOutEvent(QFocusEvent *event)
{
    landTable();
    QGraphicsView::focusOutEvent(event);
}

void KWCanvasView::openContextMenu(const QPoint &place)
{
    KWMainWindow *window = mainWin();
    if (!window || (!selectedTable() && !selectedSeat()))
        return;
    using Window = KWMainWindow;
    QMenu menu;
    menu.addAction(window->editAction(Window::EditProperties));
    if (selectedTable()) {
        menu.addAction(window->editAction(Window::RotateTable));
        menu.addAction(window->editAction(Window::Lock));
        menu.addSeparator();
        menu.addAction(window->editAction(Window::Delete));
    } else {
        menu.addSeparator();
        menu.addAction(window->editAction(Window::Lock));
        menu.addAction(window->editAction(Window::Unassign));
    }
    menu.exec(place);
}

void KWCanvasView::contextMenuEvent(QContextMenuEvent *event)
{
    // The mouse opens it at the release.
    if (event->reason() != QContextMenuEvent::Keyboard || !m_canvas.selected())
        return;
    setThisViewActive();
    const QPoint place = mapFromScene(m_canvas.selected()->pos());
    const QRect seen = viewport()->rect();
    openContextMenu(viewport()->mapToGlobal(QPoint(qBound(seen.left(), place.x(), seen.right()),
                                                   qBound(seen.top(), place.y(), seen.bottom()))));
}

void KWCanvasView::mouseDoubleClickEvent(QMouseEvent *event)
{
    QGraphicsView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton)
        editProperties();
}

bool KWCanvasView::event(QEvent *event)
{
    // A command that a key gives in the middle of a move, such as to save, finds the plan as it is
    // seen.
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
        landTable();
    const bool known = QGraphicsView::event(event);
    if (event->type() == QEvent::Resize)
        emit zoomChanged();
    return known;
}

void KWCanvasView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_movingTable)
        putTableBack();
    else
        QGraphicsView::keyPressEvent(event);
}

bool KWCanvasView::acceptsDropOn(const QGraphicsItem *item) const
{
    if (!item)
        return true;
    if (const auto *seat = qgraphicsitem_cast<const KWSeatCanvasViewItem *>(item))
        return !document()->seatHoldsLockedGuest(seat->table(), seat->seat());
    if (const auto *table = qgraphicsitem_cast<const KWTableCanvasViewItem *>(item))
        return !document()->allSeatsLocked(table->table());
    return false;
}

void KWCanvasView::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(event->mimeData()->hasFormat(KWDrag::GuestType));
}

void KWCanvasView::dragMoveEvent(QDragMoveEvent *event)
{
    const QPointF point = mapToScene(event->position().toPoint());
    event->setAccepted(event->mimeData()->hasFormat(KWDrag::GuestType) &&
                       acceptsDropOn(m_canvas.itemAtPoint(point)));
}

// The base class knows of no drag, as it was not told of it.
void KWCanvasView::dragLeaveEvent(QDragLeaveEvent *event)
{
    event->accept();
}

void KWCanvasView::dropEvent(QDropEvent *event)
{
    QGraphicsItem *item = m_canvas.itemAtPoint(mapToScene(event->position().toPoint()));
    const QList<KWGuest *> guests = KWDrag::decodeGuests(event->mimeData(), document());
    bool taken = false;
    if (const KWSeatCanvasViewItem *seat = seatItem(item))
        taken = dropOnTable(guests, seat->table(), seat->seat());
    else if (const KWTableCanvasViewItem *table = tableItem(item))
        taken = dropOnTable(guests, table->table(), table->table()->firstSeatOfLargestGap());
    else if (!item)
        taken = dropOutside(guests);
    if (taken) {
        event->acceptProposedAction();
    } else {
        event->setDropAction(Qt::IgnoreAction);
        event->ignore();
    }
}

bool KWCanvasView::dropOnTable(const QList<KWGuest *> &guests, KWTable *table, int start)
{
    const int seats = table->seatCount();
    if (guests.size() > seats) {
        // Not while the one who drags waits for the end of it.
        QTimer::singleShot(0, this, [] { errorBox(tr("Too many guests for table"), tr("&OK")); });
        return false;
    }
    if (guests.isEmpty())
        return false;
    if (KWMainWindow *window = mainWin())
        window->saveUndoState(tr("Drag guest(s)"));
    for (int i = 0; i < guests.size(); ++i)
        document()->assignGuest(guests[i], table, (start + i) % seats, false);
    document()->recalculateScores();
    updateCommands();
    return true;
}

bool KWCanvasView::dropOutside(const QList<KWGuest *> &guests)
{
    if (guests.isEmpty())
        return false;
    if (KWMainWindow *window = mainWin())
        window->saveUndoState(tr("Drag guest(s)"));
    for (KWGuest *guest : guests)
        document()->unassignGuest(guest, false);
    document()->recalculateScores();
    updateCommands();
    return true;
}

bool KWCanvasView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        if (showTip(help->pos(), help->globalPos()))
            return true;
    }
    return QGraphicsView::viewportEvent(event);
}

// A tip stays while the pointer is within half a seat of where it came up.
bool KWCanvasView::showTip(const QPoint &place, const QPoint &screenPlace)
{
    constexpr double halfSeat = 50;
    const auto *item = dynamic_cast<KWFloorPlanItem *>(m_canvas.itemAtPoint(mapToScene(place)));
    const QString text = item ? item->tipText(m_canvas.nameOrder()) : QString();
    if (text.isEmpty())
        return false;
    const int side = qRound(halfSeat * zoom());
    QRect rect(0, 0, side, side);
    rect.moveCenter(place);
    QToolTip::showText(screenPlace, KWFloorPlanText::shortenedTip(text), viewport(), rect);
    return true;
}
