#pragma once

#include <QPointF>

class KWCanvas;
class KWTableCanvasViewItem;

/// The move of the selected table by the mouse. Nothing goes to the plan before it lands; it ends
/// without that when the table loses the selection. The canvas is not owned.
class KWTableMove
{
public:
    explicit KWTableMove(KWCanvas *canvas);

    /// A button is pressed at a point of the canvas.
    void start(const QPointF &point);
    /// Moves the table with the pointer, unless that is off the canvas.
    void goTo(const QPointF &point);
    /// The plan takes the place over, unless the table is back where it was: one that was squeezed
    /// into the room keeps its place in the plan. There is no undo for it.
    void land();
    /// Puts the table back to where it last landed, and out of the reach of the button that is
    /// still down.
    void putBack();
    void forget() { m_isGoing = false; }
    bool isGoing() const { return m_isGoing; }

private:
    KWTableCanvasViewItem *table() const;

    KWCanvas *m_canvas;
    QPointF m_lastPoint;
    QPointF m_tableStart;
    bool m_isGoing = false;
};
