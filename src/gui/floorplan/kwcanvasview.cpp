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
#include <QToolTip>

#include <algorithm>
#include <array>

namespace {

KWTableCanvasViewItem *tableItem(QGraphicsItem *item)
{
    return qgraphicsitem_cast<KWTableCanvasViewItem *>(item);
}

KWSeatCanvasViewItem *seatItem(QGraphicsItem *item)
{
    return qgraphicsitem_cast<KWSeatCanvasViewItem *>(item);
}

/// Escape takes the move back, and those that are held with others do nothing yet.
bool givesCommand(int key)
{
    static constexpr std::array others{Qt::Key_Escape, Qt::Key_Shift, Qt::Key_Control,
                                       Qt::Key_Alt,    Qt::Key_AltGr, Qt::Key_Meta};
    return std::find(others.begin(), others.end(), key) == others.end();
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
    for (const QScrollBar *bar : {horizontalScrollBar(), verticalScrollBar()})
        connect(bar, &QScrollBar::actionTriggered, &m_zoom, &KWCanvasZoom::release);
    connect(&m_zoom, &KWCanvasZoom::changed, this, &KWCanvasView::zoomChanged);
    connect(&m_edgeScroll, &KWEdgeScroll::scrolled, this, &KWCanvasView::scrolledUnder);
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
    m_move.forget();
    m_edgeScroll.stop();
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
    m_pressPlace = event->position().toPoint();
    landTable();
    if (event->button() == Qt::MiddleButton) {
        m_panPlace = m_pressPlace;
        viewport()->setCursor(Qt::ClosedHandCursor);
        setThisViewActive();
        return;
    }
    QGraphicsView::mousePressEvent(event);
    m_dragStarted = false;
    const QPointF point = mapToScene(m_pressPlace);
    m_canvas.setSelected(m_canvas.itemAtPoint(point));
    m_move.start(point);
    // A window that is closed meanwhile finds the plan as it is seen.
    window()->installEventFilter(this);
    setThisViewActive();
}

void KWCanvasView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint place = event->position().toPoint();
    if (m_panPlace) {
        if (event->buttons() & Qt::MiddleButton)
            pan(place);
        else
            endPan();
        return;
    }
    QGraphicsView::mouseMoveEvent(event);
    if (event->buttons() == Qt::NoButton) {
        // The release went elsewhere.
        landTable();
        return;
    }
    if (!(event->buttons() & Qt::LeftButton) || (event->buttons() & Qt::RightButton))
        return;
    if (selectedTable())
        moveTable(place);
    else if (selectedSeat() && !m_dragStarted)
        dragGuest(place);
}

void KWCanvasView::pan(const QPoint &place)
{
    m_zoom.release();
    m_edgeScroll.scrollBy(*m_panPlace - place);
    m_panPlace = place;
}

void KWCanvasView::endPan()
{
    m_panPlace.reset();
    viewport()->unsetCursor();
}

bool KWCanvasView::isTremor(const QPoint &place) const
{
    return (place - m_pressPlace).manhattanLength() <= QApplication::startDragDistance();
}

void KWCanvasView::moveTable(const QPoint &place)
{
    m_move.goTo(mapToScene(place));
    // A click near the edge scrolls nothing.
    if (!isTremor(place))
        m_edgeScroll.dragTo(place);
}

void KWCanvasView::landTable()
{
    m_edgeScroll.stop();
    m_move.land();
}

void KWCanvasView::putTableBack()
{
    m_edgeScroll.stop();
    m_move.putBack();
    updateCommands();
}

/// Goes on with what is dragged, where the pointer is over something else now.
void KWCanvasView::scrolledUnder(const QPoint &place)
{
    m_zoom.release();
    if (m_move.isGoing())
        m_move.goTo(mapToScene(place));
    else if (m_dragData)
        showDrop(dropAt(place, m_dragData));
}

void KWCanvasView::dragGuest(const QPoint &place)
{
    constexpr int tremor = 5;
    const KWSeatCanvasViewItem *seat = selectedSeat();
    const int way =
        seat->pos().toPoint().manhattanLength() - mapToScene(place).toPoint().manhattanLength();
    KWGuest *guest = seat->guest();
    if (std::abs(way) <= tremor || isTremor(place) || !guest)
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
    if (event->button() == Qt::MiddleButton) {
        endPan();
        return;
    }
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
    // A pane may be squeezed until it shows nothing.
    const auto within = [](int coordinate, int length) {
        return std::max(0, std::min(coordinate, length - 1));
    };
    openContextMenu(viewport()->mapToGlobal(
        QPoint(within(place.x(), viewport()->width()), within(place.y(), viewport()->height()))));
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
        givesCommand(static_cast<QKeyEvent *>(event)->key()))
        landTable();
    const bool known = QGraphicsView::event(event);
    if (event->type() == QEvent::Resize)
        emit zoomChanged();
    return known;
}

bool KWCanvasView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Close && watched == window())
        landTable();
    // Whoever carries a drag on keeps the wheel from everybody else.
    if (event->type() == QEvent::Wheel && m_dragData && watched->isWindowType() &&
        turnWheelInDrag(*static_cast<QWheelEvent *>(event)))
        return true;
    return QGraphicsView::eventFilter(watched, event);
}

void KWCanvasView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_move.isGoing())
        putTableBack();
    else
        QGraphicsView::keyPressEvent(event);
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
