#include "gui/floorplan/kwcanvaszoom.h"

#include "gui/floorplan/kwcanvas.h"
#include "gui/floorplan/kwroomgeometry.h"
#include "gui/framework/kwmainwindow.h"

#include <QGraphicsView>
#include <QStyle>
#include <QWheelEvent>

#include <algorithm>

namespace {
constexpr double firstScale = 0.3;
constexpr double highestScale = 3;
constexpr double step = 1.3;
constexpr double stepBack = 0.769231;
} // namespace

KWCanvasZoom::KWCanvasZoom(QGraphicsView *view, KWCanvas *canvas)
    : QObject(view)
    , m_view(view)
    , m_canvas(canvas)
{
    connect(m_canvas, &KWCanvas::boundsChanged, this, &KWCanvasZoom::followBounds);
    followBounds();
    setScale(firstScale);
}

double KWCanvasZoom::scale() const
{
    return m_view->transform().m11();
}

void KWCanvasZoom::setScale(double scale)
{
    m_view->setTransform(QTransform::fromScale(scale, scale));
    emit changed();
}

void KWCanvasZoom::followBounds()
{
    m_view->setSceneRect(KWRoomGeometry::reach(m_canvas->canvasSize(), m_canvas->itemBounds(0)));
    emit changed();
}

QPointF KWCanvasZoom::pointAt(const QPointF &place) const
{
    // Not through mapToScene(), which knows whole pixels only.
    return m_view->viewportTransform().inverted().map(place);
}

QPointF KWCanvasZoom::middle() const
{
    const QSizeF seen = m_view->viewport()->size();
    return {seen.width() / 2, seen.height() / 2};
}

void KWCanvasZoom::multiply(double factor, const QPointF &place)
{
    release();
    const QPointF point = pointAt(place);
    setScale(scale() * factor);
    m_view->centerOn(point + (middle() - place) / scale());
    if (KWMainWindow *window = mainWin())
        window->showStatusMessage(tr("Zoom to x%1").arg(scale(), 0, 'f', 2));
}

void KWCanvasZoom::in(const QPointF &place)
{
    multiply(step, place);
}

void KWCanvasZoom::out(const QPointF &place)
{
    multiply(stepBack, place);
}

bool KWCanvasZoom::canGoIn() const
{
    return scale() < highestScale;
}

bool KWCanvasZoom::canGoOut() const
{
    const QSizeF scaled = m_view->sceneRect().size() * scale();
    const QSize room = m_view->maximumViewportSize();
    return scaled.width() > room.width() || scaled.height() > room.height();
}

void KWCanvasZoom::turnWheel(const QWheelEvent &event)
{
    constexpr int notch = QWheelEvent::DefaultDeltasPerStep;
    const int turn = event.angleDelta().y();
    if ((turn < 0) != (m_wheelTurn < 0))
        m_wheelTurn = 0;
    m_wheelTurn += turn;
    // A fine wheel or a touchpad sends parts of a notch.
    for (; m_wheelTurn >= notch; m_wheelTurn -= notch) {
        if (canGoIn())
            in(event.position());
    }
    for (; m_wheelTurn <= -notch; m_wheelTurn += notch) {
        if (canGoOut())
            out(event.position());
    }
}

void KWCanvasZoom::fitAll()
{
    m_isFitted = true;
    m_fittedBounds = m_canvas->itemBounds(0);
    fit();
}

void KWCanvasZoom::followSize()
{
    // Also when the scroll bars that it brings take their room.
    if (m_isFitted && m_canvas->itemBounds(0) == m_fittedBounds)
        fit();
}

void KWCanvasZoom::fit()
{
    const QRectF bounds = m_canvas->itemBounds(0);
    if (bounds.isEmpty()) {
        setScale(firstScale);
        m_view->centerOn(m_canvas->sceneRect().center());
        return;
    }
    const int bar = m_view->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, m_view);
    const QSizeF room = m_view->maximumViewportSize() - QSize(bar, bar);
    if (room.isEmpty())
        return;
    setScale(std::min(room.width() / bounds.width(), room.height() / bounds.height()));
    m_view->centerOn(bounds.center());
}
