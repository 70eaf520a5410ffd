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
#include <QWheelEvent>

#include <utility>

namespace {
constexpr double copyMargin = 0.05;
}

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
    return selectedGuest() || (table && table->table()->seatedCount() > 0);
}

bool KWCanvasView::isLocked()
{
    if (const KWGuest *guest = selectedGuest())
        return guest->isLocked();
    const KWTableCanvasViewItem *table = selectedTable();
    return table && table->table()->allGuestsLocked();
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
    m_zoom.release();
    m_canvas.setSelected(seat);
    centerOn(seat->pos());
}

void KWCanvasView::placeNewTable(KWTable *table)
{
    KWTableCanvasViewItem *item = m_canvas.itemOfTable(table);
    if (item && !m_canvas.moveToNextTablePos(item))
        ++m_newTablesWithoutPlace;
}

void KWCanvasView::showTable(KWTable *table)
{
    const int crowded = std::exchange(m_newTablesWithoutPlace, 0);
    KWMainWindow *window = mainWin();
    if (window && crowded > 0)
        window->showStatusMessage(
            crowded == 1 ? tr("The room is full: 1 new table stands on others")
                         : tr("The room is full: %1 new tables stand on others").arg(crowded));
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

void KWCanvasView::setZoom(double factor)
{
    m_zoom.multiply(factor, m_zoom.middle());
}

void KWCanvasView::zoomIn()
{
    const KWBusy busy;
    const KWUpdateBlock block(this);
    m_zoom.in(m_zoom.middle());
}

void KWCanvasView::zoomOut()
{
    const KWBusy busy;
    const KWUpdateBlock block(this);
    m_zoom.out(m_zoom.middle());
}

void KWCanvasView::zoomCentre()
{
    const KWBusy busy;
    m_zoom.fitAll();
}

void KWCanvasView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    m_zoom.followSize();
}

void KWCanvasView::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() & Qt::ControlModifier) {
        const KWUpdateBlock block(this);
        event->accept();
        m_zoom.turnWheel(*event);
    } else {
        m_zoom.forgetWheel();
        QGraphicsView::wheelEvent(event);
    }
    // The table stays under the pointer.
    if (m_move.isGoing())
        m_move.goTo(mapToScene(event->position().toPoint()));
}
