#pragma once

#include <QObject>
#include <QPointF>
#include <QRectF>

class KWCanvas;
class QGraphicsView;
class QWheelEvent;

/// How large and how much of the canvas a view shows. Keeps the view's scene rectangle so large
/// that all tables can be seen, also those that stand over the edge of the room. Neither the view
/// nor the canvas is owned.
class KWCanvasZoom : public QObject
{
    Q_OBJECT

public:
    KWCanvasZoom(QGraphicsView *view, KWCanvas *canvas);

    /// The same in both directions.
    double scale() const;
    /// What lies at a place of the viewport, which need not be a whole pixel, in canvas units.
    QPointF pointAt(const QPointF &place) const;
    QPointF middle() const;

    /// Changes the scale by a factor, so that what lies at a place of the viewport stays there.
    void multiply(double factor, const QPointF &place);
    void in(const QPointF &place);
    void out(const QPointF &place);
    bool canGoIn() const;
    bool canGoOut() const;
    /// Zooms about the pointer, a step for each notch.
    void turnWheel(const QWheelEvent &event);
    /// Turns of the wheel so far count no more.
    void forgetWheel() { m_wheelTurn = 0; }

    /// As large as shows all tables, and so it stays when the view is resized, until release() or
    /// until the tables take another place.
    void fitAll();
    void release() { m_isFitted = false; }
    void followSize();

signals:
    /// What canGoIn() and canGoOut() answer may have changed.
    void changed();

private:
    void setScale(double scale);
    void fit();
    void followBounds();

    QGraphicsView *m_view;
    KWCanvas *m_canvas;
    bool m_isFitted = false;
    /// What the tables covered when all was fitted.
    QRectF m_fittedBounds;
    /// What the wheel has turned towards the next step, in eighths of a degree.
    int m_wheelTurn = 0;
};
