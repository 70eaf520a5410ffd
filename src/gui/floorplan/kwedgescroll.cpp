#include "gui/floorplan/kwedgescroll.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QScrollBar>
#include <QTimerEvent>
#include <QWheelEvent>

#include <algorithm>

namespace {

/// How near an edge is near.
constexpr int reach = 24;

int stepOf(int depth)
{
    return 1 + std::min(depth, reach) / 2;
}

/// How far a step goes on an axis at a place of it: nowhere unless an edge is near.
int stepAt(int place, int length)
{
    const int before = reach - place;
    const int behind = place - (length - 1 - reach);
    if (before > 0)
        return -stepOf(before);
    return behind > 0 ? stepOf(behind) : 0;
}
} // namespace

KWEdgeScroll::KWEdgeScroll(QAbstractScrollArea *area)
    : QObject(area)
    , m_area(area)
{
}

QPoint KWEdgeScroll::wayAt(const QPoint &place) const
{
    const QSize size = m_area->viewport()->size();
    return {stepAt(place.x(), size.width()), stepAt(place.y(), size.height())};
}

void KWEdgeScroll::dragTo(const QPoint &place)
{
    constexpr int pause = 25;
    m_place = place;
    if (wayAt(place).isNull())
        stop();
    else if (!m_timer.isActive())
        m_timer.start(pause, this);
}

void KWEdgeScroll::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_timer.timerId())
        scrollBy(wayAt(m_place));
    else
        QObject::timerEvent(event);
}

void KWEdgeScroll::scrollBy(const QPoint &way)
{
    QScrollBar *across = m_area->horizontalScrollBar();
    QScrollBar *down = m_area->verticalScrollBar();
    const QPoint before(across->value(), down->value());
    across->setValue(before.x() + way.x());
    down->setValue(before.y() + way.y());
    if (QPoint(across->value(), down->value()) != before)
        emit scrolled(m_place);
}

void KWEdgeScroll::turnWheel(const QWheelEvent &event)
{
    const auto way = [lines = QApplication::wheelScrollLines()](int turn, const QScrollBar *bar) {
        return -turn * lines * bar->singleStep() / QWheelEvent::DefaultDeltasPerStep;
    };
    m_place = m_area->viewport()->mapFromGlobal(event.globalPosition()).toPoint();
    scrollBy({way(event.angleDelta().x(), m_area->horizontalScrollBar()),
              way(event.angleDelta().y(), m_area->verticalScrollBar())});
}
