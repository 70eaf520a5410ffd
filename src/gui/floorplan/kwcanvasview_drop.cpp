// What is dragged over the floor plan and dropped on it.

#include "core/model/kwdocument.h"
#include "gui/exchange/kwdrag.h"
#include "gui/floorplan/kwcanvasview.h"
#include "gui/floorplan/kwfloorplanitem.h"
#include "gui/framework/kwstatushint.h"

#include <QApplication>
#include <QDropEvent>

KWGuestDrop KWCanvasView::dropAt(const QPoint &place, const QMimeData *dragged) const
{
    const QList<KWGuest *> guests = KWDrag::decodeGuests(dragged, document());
    const QGraphicsItem *item = m_canvas.itemAtPoint(mapToScene(place));
    if (!item)
        return KWGuestDrop::outside(document(), guests);
    if (const auto *seat = qgraphicsitem_cast<const KWSeatCanvasViewItem *>(item))
        return KWGuestDrop::onSeat(document(), guests, seat->table(), seat->seat());
    if (const auto *table = qgraphicsitem_cast<const KWTableCanvasViewItem *>(item))
        return KWGuestDrop::onTable(document(), guests, table->table());
    return {};
}

void KWCanvasView::showDrop(const KWGuestDrop &drop)
{
    m_canvas.markDrop(drop.seats());
    showHint(drop.description());
}

void KWCanvasView::endDragOver()
{
    m_dragData.clear();
    m_edgeScroll.stop();
    qApp->removeEventFilter(this);
    m_canvas.markDrop({});
    showHint({});
}

void KWCanvasView::showHint(const QString &text)
{
    // An empty one would wipe out what others say.
    if (std::exchange(m_hint, text) != text)
        showStatusHint(this, text);
}

void KWCanvasView::dragEnterEvent(QDragEnterEvent *event)
{
    const bool isKnown = event->mimeData()->hasFormat(KWDrag::GuestType);
    event->setAccepted(isKnown);
    if (isKnown)
        qApp->installEventFilter(this);
}

void KWCanvasView::dragMoveEvent(QDragMoveEvent *event)
{
    if (!event->mimeData()->hasFormat(KWDrag::GuestType)) {
        event->ignore();
        return;
    }
    m_dragData = event->mimeData();
    const QPoint place = event->position().toPoint();
    const KWGuestDrop drop = dropAt(place, m_dragData);
    event->setAccepted(drop.isAccepted());
    showDrop(drop);
    m_edgeScroll.dragTo(place);
}

// The base class knows of no drag, as it was not told of it.
void KWCanvasView::dragLeaveEvent(QDragLeaveEvent *event)
{
    endDragOver();
    event->accept();
}

void KWCanvasView::dropEvent(QDropEvent *event)
{
    endDragOver();
    const KWGuestDrop drop = dropAt(event->position().toPoint(), event->mimeData());
    if (!drop.perform(this)) {
        event->setDropAction(Qt::IgnoreAction);
        event->ignore();
        return;
    }
    if (KWSeatCanvasViewItem *seat = m_canvas.itemOfGuest(drop.guests().first()))
        m_canvas.setSelected(seat);
    updateCommands();
    event->acceptProposedAction();
}

bool KWCanvasView::turnWheelInDrag(const QWheelEvent &event)
{
    const QPointF place = viewport()->mapFromGlobal(event.globalPosition());
    if (!viewport()->rect().contains(place.toPoint()))
        return false;
    QWheelEvent here(place, event.globalPosition(), event.pixelDelta(), event.angleDelta(),
                     event.buttons(), event.modifiers(), event.phase(), event.inverted());
    if (here.modifiers() & Qt::ControlModifier)
        wheelEvent(&here);
    else
        // The scroll bars would not be given the event.
        m_edgeScroll.turnWheel(here);
    return true;
}
