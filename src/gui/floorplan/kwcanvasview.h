#pragma once

#include "gui/floorplan/kwcanvas.h"
#include "gui/floorplan/kwcanvaszoom.h"
#include "gui/floorplan/kwedgescroll.h"
#include "gui/floorplan/kwtablemove.h"
#include "gui/framework/kwview.h"

#include <QGraphicsView>
#include <QMimeData>
#include <QPointer>

#include <optional>

class KWDrag;
class KWMainWindow;
class QPrinter;

/// The floor plan pane: selects what is clicked, moves tables, drags guests, shows what a drop
/// would do and takes it. Owns its canvas. What is dragged over it is looked at where the pointer
/// is, topmost first.
class KWCanvasView : public QGraphicsView, public KWView
{
    Q_OBJECT

public:
    /// `document` is not owned and outlives the view.
    KWCanvasView(QWidget *parent, KWDocument *document);

    KWCanvas *canvas() { return &m_canvas; }

    /// The scale, the same in both directions.
    double zoom() const { return m_zoom.scale(); }
    /// What is in the middle of the view, in canvas units.
    QPointF centre() const { return m_zoom.pointAt(m_zoom.middle()); }
    /// Changes the scale by a factor about the middle of the view.
    void setZoom(double factor);
    void zoomIn();
    void zoomOut();
    /// As large as shows all tables, and so it stays when the view is resized, until the user zooms
    /// or scrolls or the tables take another place.
    void zoomCentre();
    bool canZoomIn() const { return m_zoom.canGoIn(); }
    bool canZoomOut() const { return m_zoom.canGoOut(); }

    /// KWGuest::NameOrder, or KWFloorPlanText::seatNumbers.
    void setNameOrder(int order);
    /// As of the canvas.
    void setSeatFont(const QFont &font);
    /// Finds a free place for a table that has just been made, near where it stands.
    void placeNewTable(KWTable *table);
    /// Selects the table and takes the focus. Says how many of the new tables found no free place.
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
    /// What canZoomIn() and canZoomOut() answer may have changed: the scale, the canvas, its tables
    /// or the size of the view did.
    void zoomChanged();

protected:
    /// Starts a drag, which Qt deletes, and waits for its end.
    virtual void runDrag(KWDrag *drag);

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
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
    void moveTable(const QPoint &place);
    void putTableBack();
    void landTable();
    void dragGuest(const QPoint &place);
    bool isTremor(const QPoint &place) const;
    void pan(const QPoint &place);
    void endPan();
    void scrolledUnder(const QPoint &place);
    void openContextMenu(const QPoint &place);
    void updateCommands();
    KWGuestDrop dropAt(const QPoint &place, const QMimeData *dragged) const;
    void showDrop(const KWGuestDrop &drop);
    void endDragOver();
    void showHint(const QString &text);
    bool turnWheelInDrag(const QWheelEvent &event);
    bool showTip(const QPoint &place, const QPoint &screenPlace);

    KWCanvas m_canvas;
    KWCanvasZoom m_zoom{this, &m_canvas};
    KWTableMove m_move{&m_canvas};
    KWEdgeScroll m_edgeScroll{this};
    /// Where a button was pressed, on the viewport.
    QPoint m_pressPlace;
    bool m_dragStarted = false;
    /// Where the middle button has brought the view so far.
    std::optional<QPoint> m_panPlace;
    /// What is dragged over the view; null if nothing is.
    QPointer<const QMimeData> m_dragData;
    QString m_hint;
    int m_newTablesWithoutPlace = 0;
};
