#pragma once

#include "gui/floorplan/kwcanvas.h"
#include "gui/framework/kwview.h"

#include <QGraphicsView>

class KWDrag;
class KWMainWindow;
class QPrinter;

/// The floor plan pane: selects what is clicked, moves tables, drags guests, takes drops and zooms.
/// Owns its canvas. What is dragged over it is looked at where the pointer is, topmost first.
class KWCanvasView : public QGraphicsView, public KWView
{
    Q_OBJECT

public:
    /// `document` is not owned and outlives the view.
    KWCanvasView(QWidget *parent, KWDocument *document);

    KWCanvas *canvas() { return &m_canvas; }

    /// The scale, the same in both directions.
    double zoom() const { return transform().m11(); }
    /// What is in the middle of the view, in canvas units.
    QPointF centre() const;
    /// Changes the scale by a factor about the middle of the view.
    void setZoom(double factor);
    void zoomIn();
    void zoomOut();
    /// As large as shows all tables, and so it stays when the view is resized, until the user zooms
    /// or scrolls or the tables take another place.
    void zoomCentre();
    bool canZoomIn() const;
    bool canZoomOut() const;

    /// KWGuest::NameOrder, or KWFloorPlanText::seatNumbers.
    void setNameOrder(int order);
    /// As of the canvas.
    void setSeatFont(const QFont &font);
    /// Finds a free place for a table that has just been made, near where it stands.
    void placeNewTable(KWTable *table);
    /// Selects the table and takes the focus.
    void showTable(KWTable *table);
    /// Asks for the choices that go with printing, and prints the floor plan as the plan's print
    /// settings have it.
    void printOn(QPrinter &printer, KWMainWindow &window);
    /// Selects the guest's seat, if there is one, and brings it into the middle.
    void selectGuest(KWGuest *guest);

    void deleteSelection() override;
    void editProperties() override;
    void unassign() override;
    void print() override;
    void copy() override;
    void rotate() override;
    void setAffinity(int) override {}
    bool canDelete() override;
    bool canEditProperties() override;
    bool canUnassign() override;
    void setLocked(bool locked) override;
    bool canSetLocked() override;
    bool isLocked() override;
    void setAccepted(bool) override {}
    bool canSetAccepted() override { return false; }
    bool hasAccepted() override { return false; }
    bool canPrint() override { return true; }
    bool canCopy() override { return true; }
    bool canSetAffinity() override { return false; }
    bool canRotate() override;
    void showGuest(KWGuest *guest) override { selectGuest(guest); }
    bool showsSeats() const override { return true; }

public slots:
    void updateOnClear();
    void updateOnRefresh();

signals:
    /// What canZoomIn() and canZoomOut() answer may have changed: the scale, the canvas or the size
    /// of the view did.
    void zoomChanged();

protected:
    /// Starts a drag, which Qt deletes, and waits for its end.
    virtual void runDrag(KWDrag *drag);

    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    KWTableCanvasViewItem *selectedTable() const;
    KWSeatCanvasViewItem *selectedSeat() const;
    /// The guest on the selected seat, or null.
    KWGuest *selectedGuest() const;
    void languageChange();
    void setThisViewActive();
    void moveTable(const QPointF &point);
    void putTableBack();
    void landTable();
    void dragGuest(const QPointF &point);
    void openContextMenu(const QPoint &place);
    void updateCommands();
    bool acceptsDropOn(const QGraphicsItem *item) const;
    bool dropOnTable(const QList<KWGuest *> &guests, KWTable *table, int start);
    bool dropOutside(const QList<KWGuest *> &guests);
    bool showTip(const QPoint &place, const QPoint &screenPlace);
    void scaleBy(double factor);
    void fit();

    static constexpr double startZoom = 0.3;

    KWCanvas m_canvas;
    /// In canvas units.
    QPointF m_lastPoint;
    /// Where Escape puts the table back whose move is going on.
    QPointF m_tableStart;
    bool m_movingTable = false;
    bool m_dragStarted = false;
    /// As zoomCentre() left it, when the tables took this place.
    bool m_isFitted = false;
    QRectF m_fittedBounds;
    /// What Ctrl and the wheel have turned towards the next step of the zoom, in eighths of a
    /// degree.
    int m_wheelTurn = 0;
};
