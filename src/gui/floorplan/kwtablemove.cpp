#include "gui/floorplan/kwtablemove.h"

#include "core/model/kwdocument.h"
#include "gui/floorplan/kwcanvas.h"
#include "gui/floorplan/kwfloorplanitem.h"

#include <utility>

KWTableMove::KWTableMove(KWCanvas *canvas)
    : m_canvas(canvas)
{
}

KWTableCanvasViewItem *KWTableMove::table() const
{
    return qgraphicsitem_cast<KWTableCanvasViewItem *>(m_canvas->selected());
}

void KWTableMove::start(const QPointF &point)
{
    m_lastPoint = point;
    if (const KWTableCanvasViewItem *item = table())
        m_tableStart = item->pos();
}

void KWTableMove::goTo(const QPointF &point)
{
    KWTableCanvasViewItem *item = table();
    if (!item || !m_canvas->sceneRect().contains(point))
        return;
    m_isGoing = true;
    const QPointF way = point - std::exchange(m_lastPoint, point);
    item->moveBy(way.x(), way.y());
}

void KWTableMove::land()
{
    const KWTableCanvasViewItem *item = table();
    if (!std::exchange(m_isGoing, false) || !item)
        return;
    const QPoint place = item->pos().toPoint();
    if (place == m_tableStart.toPoint())
        return;
    KWDocument *plan = m_canvas->document();
    plan->moveTable(item->table(), place.x(), place.y());
    m_tableStart = item->pos();
    emit m_canvas->boundsChanged();
    // Once, where the move of each pixel says nothing: it belongs into the next backup.
    plan->announceModified();
}

void KWTableMove::putBack()
{
    KWTableCanvasViewItem *item = table();
    if (!std::exchange(m_isGoing, false) || !item)
        return;
    const QPointF way = m_tableStart - item->pos();
    item->moveBy(way.x(), way.y());
    m_canvas->setSelected(nullptr);
}
