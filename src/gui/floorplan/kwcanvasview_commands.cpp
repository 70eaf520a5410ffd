// What the commands do with the selected table or seat, and the zoom.

#include "core/model/kwdocument.h"
#include "gui/floorplan/kwcanvasview.h"
#include "gui/floorplan/kwfloorplanitem.h"
#include "gui/framework/kwbusy.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"
#include "gui/framework/kwprompts.h"

#include <QApplication>
#include <QClipboard>
#include <QPainter>
#include <QPrinter>
#include <QStyle>
#include <QWheelEvent>

namespace {
constexpr double highestZoom = 3;
constexpr double zoomStep = 1.3;
constexpr double zoomStepBack = 0.769231;
constexpr double copyMargin = 0.05;
/// Of the wheel, in eighths of a degree.
constexpr int notch = QWheelEvent::DefaultDeltasPerStep;

bool hasGuests(const KWTable &table)
{
    const auto seats = table.seats();
    return std::any_of(seats.begin(), seats.end(), [](const KWGuest *guest) { return guest; });
}
} // namespace

void KWCanvasView::deleteSelection()
{
    KWMainWindow *window = mainWin();
    const KWTableCanvasViewItem *item = selectedTable();
    if (!window || !item)
        return;
    KWTable *table = item->table();
    if (document()->tableHasLockedGuest(table)) {
        errorBox(tr("You must unlock all the locked guests before you can delete this table"),
                 tr("&OK"));
        return;
    }
    if (configurableWarning(window->userSettings(), QStringLiteral("warning/delete_table"),
                            tr("Delete table?")) != 0)
        return;
    m_canvas.setSelected(nullptr);
    document()->deleteTable(table, true);
}

void KWCanvasView::editProperties()
{
    KWMainWindow *window = mainWin();
    if (!window)
        return;
    if (const KWTableCanvasViewItem *table = selectedTable())
        window->editTable(table->table());
    else if (KWGuest *guest = selectedGuest())
        window->editGuest(guest);
}

void KWCanvasView::unassign()
{
    if (KWGuest *guest = selectedGuest())
        document()->unassignGuest(guest, true);
}

void KWCanvasView::print()
{
    KWMainWindow *window = mainWin();
    QPrinter *printer = window ? window->printer() : nullptr;
    if (!printer || printer->printerName().isEmpty()) {
        errorBox(tr("No printer detected. Please install a printer first."), tr("&OK"));
        return;
    }
    printOn(*printer, *window);
}

void KWCanvasView::printOn(QPrinter &printer, KWMainWindow &window)
{
    const KWDocument &plan = *document();
    printer.setPageOrientation(plan.printOrientation() ? QPageLayout::Landscape
                                                       : QPageLayout::Portrait);
    if (!prompts().askPrinter(window.widget(), printer))
        return;
    window.showStatusMessage(tr("Printing..."));
    QPainter painter;
    if (!painter.begin(&printer)) {
        errorBox(tr("No print file/device."), tr("&OK"));
        window.showStatusMessage(tr("Printing aborted"));
        return;
    }
    const KWBusy busy;
    m_canvas.print(&painter, printer.width(), printer.height(), plan.printMargin() / 100.0,
                   plan.printHeaderText(), plan.printHeaderFont(), plan.printHeaderColour(),
                   plan.headerPosition(), plan.printFooterText(), plan.printFooterFont(),
                   plan.printFooterColour(), plan.footerPosition());
    window.showStatusMessage(tr("Printing complete"));
}

void KWCanvasView::copy()
{
    const QPixmap picture = m_canvas.renderToPixmap(copyMargin);
    if (picture.isNull())
        errorBox(tr("Unable to copy floor plan to clipboard.\nYou may have insufficient memory.\n"
                    "Try closing some other applications."),
                 tr("&OK"));
    else
        QApplication::clipboard()->setPixmap(picture);
}

void KWCanvasView::rotate()
{
    if (const KWTableCanvasViewItem *table = selectedTable())
        document()->rotateTable(table->table());
}

bool KWCanvasView::canDelete()
{
    return selectedTable() != nullptr;
}

bool KWCanvasView::canEditProperties()
{
    return selectedTable() || selectedGuest();
}

bool KWCanvasView::canUnassign()
{
    const KWGuest *guest = selectedGuest();
    return guest && !guest->isLocked();
}

void KWCanvasView::setLocked(bool locked)
{
    if (KWGuest *guest = selectedGuest())
        document()->setGuestLocked(guest, locked);
    else if (const KWTableCanvasViewItem *table = selectedTable())
        document()->setTableLocked(table->table(), locked);
}

bool KWCanvasView::canSetLocked()
{
    const KWTableCanvasViewItem *table = selectedTable();
    return selectedGuest() || (table && hasGuests(*table->table()));
}

bool KWCanvasView::isLocked()
{
    if (const KWGuest *guest = selectedGuest())
        return guest->isLocked();
    const KWTableCanvasViewItem *item = selectedTable();
    if (!item || !hasGuests(*item->table()))
        return false;
    const auto seats = item->table()->seats();
    return std::all_of(seats.begin(), seats.end(),
                       [](const KWGuest *guest) { return !guest || guest->isLocked(); });
}

bool KWCanvasView::canRotate()
{
    return selectedTable() != nullptr;
}

void KWCanvasView::selectGuest(KWGuest *guest)
{
    KWSeatCanvasViewItem *seat = m_canvas.itemOfGuest(guest);
    if (!seat)
        return;
    landTable();
    m_isFitted = false;
    m_canvas.setSelected(seat);
    centerOn(seat->pos());
}

void KWCanvasView::placeNewTable(KWTable *table)
{
    if (KWTableCanvasViewItem *item = m_canvas.itemOfTable(table))
        m_canvas.moveToNextTablePos(item);
}

void KWCanvasView::showTable(KWTable *table)
{
    KWTableCanvasViewItem *item = m_canvas.itemOfTable(table);
    if (!item)
        return;
    landTable();
    m_canvas.setSelected(item);
    if (!isVisible())
        return;
    ensureVisible(item);
    setFocus();
    setThisViewActive();
}

void KWCanvasView::setNameOrder(int order)
{
    m_canvas.setNameOrder(order);
}

void KWCanvasView::setSeatFont(const QFont &font)
{
    m_canvas.setSeatFont(font);
    m_canvas.update();
}

void KWCanvasView::scaleBy(double factor)
{
    scale(factor, factor);
    emit zoomChanged();
}

QPointF KWCanvasView::centre() const
{
    // Not through mapToScene(), which knows whole pixels only.
    const QSizeF seen = viewport()->size();
    return viewportTransform().inverted().map(QPointF(seen.width() / 2, seen.height() / 2));
}

void KWCanvasView::setZoom(double factor)
{
    m_isFitted = false;
    const QPointF centre = this->centre();
    scaleBy(factor);
    centerOn(centre);
    if (KWMainWindow *window = mainWin())
        window->showStatusMessage(tr("Zoom to x%1").arg(zoom(), 0, 'f', 2));
}

void KWCanvasView::zoomIn()
{
    const KWBusy busy;
    const KWUpdateBlock block(this);
    setZoom(zoomStep);
}

void KWCanvasView::zoomOut()
{
    const KWBusy busy;
    const KWUpdateBlock block(this);
    setZoom(zoomStepBack);
}

void KWCanvasView::zoomCentre()
{
    const KWBusy busy;
    m_isFitted = true;
    m_fittedBounds = m_canvas.itemBounds(0);
    fit();
}

void KWCanvasView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    // Also when the scroll bars that it brings take their room.
    if (m_isFitted && m_canvas.itemBounds(0) == m_fittedBounds)
        fit();
}

void KWCanvasView::fit()
{
    const QRectF bounds = m_canvas.itemBounds(0);
    if (bounds.isEmpty()) {
        scaleBy(startZoom / zoom());
        centerOn(sceneRect().center());
        return;
    }
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const QSizeF room = maximumViewportSize() - QSize(bar, bar);
    if (room.isEmpty())
        return;
    scaleBy(std::min(room.width() / bounds.width(), room.height() / bounds.height()) / zoom());
    centerOn(bounds.center());
}

bool KWCanvasView::canZoomIn() const
{
    return zoom() < highestZoom;
}

bool KWCanvasView::canZoomOut() const
{
    const QSizeF scaled = QSizeF(m_canvas.canvasSize()) * zoom();
    const QSize room = maximumViewportSize();
    return scaled.width() > room.width() || scaled.height() > room.height();
}

void KWCanvasView::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        m_wheelTurn = 0;
        QGraphicsView::wheelEvent(event);
        return;
    }
    event->accept();
    const int turn = event->angleDelta().y();
    if ((turn < 0) != (m_wheelTurn < 0))
        m_wheelTurn = 0;
    m_wheelTurn += turn;
    // A fine wheel or a touchpad sends parts of a notch.
    for (; m_wheelTurn >= notch; m_wheelTurn -= notch) {
        if (canZoomIn())
            zoomIn();
    }
    for (; m_wheelTurn <= -notch; m_wheelTurn += notch) {
        if (canZoomOut())
            zoomOut();
    }
}
