#pragma once

#include "gui/floorplan/kwcanvasview.h"
#include "gui/floorplan/kwfloorplanitem.h"
#include "support/gui/fakemainwindow.h"
#include "support/gui/guitest.h"
#include "support/gui/scriptedprompts.h"
#include "support/testplan.h"

/// Writes down the guests of each drag instead of letting it run.
class DraggablePlan : public KWCanvasView
{
    Q_OBJECT

public:
    using KWCanvasView::KWCanvasView;

    /// "Ann" for each drag.
    QStringList drags;

protected:
    void runDrag(KWDrag *drag) override;
};

/// The floor plan on the screen at its first scale, in a room of 20 by 16 seats, under a main
/// window that only writes down what it is told.
class ShownPlan
{
public:
    ShownPlan();

    ScriptedPrompts prompts;
    FakeMainWindow window;
    KWDocument &plan = *window.document();
    DraggablePlan view{nullptr, &plan};
    KWCanvas &canvas = *view.canvas();

    /// A circular table, or one with all seats on a side.
    KWTable *table(const char *name, int shape, int seats, const QPoint &centre);
    /// A new guest on a seat.
    KWGuest *seat(const char *name, KWTable *table, int seat, bool locked = false);
    QString guestAt(const KWTable *table, int seat) const;

    QPoint placeOf(const KWTable *table) const;
    QPoint placeOf(const KWTable *table, int seat) const;
    QPoint placeOf(const QPointF &canvasPoint) const { return view.mapFromScene(canvasPoint); }

    void press(Qt::MouseButton button, const QPoint &place);
    void moveTo(const QPoint &place, Qt::MouseButtons buttons = Qt::LeftButton);
    void release(Qt::MouseButton button, const QPoint &place);
    void click(const QPoint &place);

    /// Whether a drag of these guests may be dropped there.
    bool takes(const QList<KWGuest *> &guests, const QPoint &place);
    /// Drags guests there and drops them; whether they were taken.
    bool drop(const QList<KWGuest *> &guests, const QPoint &place);

private:
    bool dragOver(const QMimeData *data, const QPoint &place);
};
