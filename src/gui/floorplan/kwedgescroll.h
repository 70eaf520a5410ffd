#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPoint>

class QAbstractScrollArea;
class QWheelEvent;

/// Scrolls an area while something is dragged near its edge, the faster the nearer. The area, which
/// is not owned, tells where the pointer is.
class KWEdgeScroll : public QObject
{
    Q_OBJECT

public:
    explicit KWEdgeScroll(QAbstractScrollArea *area);

    /// What is dragged has come to a place of the viewport, or beyond it. While it stays near an
    /// edge, the area scrolls, until stop().
    void dragTo(const QPoint &place);
    void stop() { m_timer.stop(); }
    bool isActive() const { return m_timer.isActive(); }

    /// Scrolls as the wheel does when nothing is dragged.
    void turnWheel(const QWheelEvent &event);
    void scrollBy(const QPoint &way);

signals:
    /// The area has scrolled, so that something else lies under the pointer at that place.
    void scrolled(const QPoint &place);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    QPoint wayAt(const QPoint &place) const;

    QAbstractScrollArea *m_area;
    QPoint m_place;
    QBasicTimer m_timer;
};
