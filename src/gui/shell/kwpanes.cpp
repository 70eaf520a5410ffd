#include "gui/shell/kwpanes.h"

#include "core/model/kwdocument.h"
#include "gui/floorplan/kwcanvasview.h"
#include "gui/shell/kwbottomtab.h"
#include "gui/shell/kwlefttab.h"
#include "gui/shell/kwtoptab.h"

#include <QMainWindow>
#include <QSplitter>

void KWPanes::create(QMainWindow *window, KWDocument *document)
{
    auto *outer = new QSplitter(Qt::Horizontal, window);
    outer->setChildrenCollapsible(false);
    window->setCentralWidget(outer);
    m_leftTab = new KWLeftTab(outer, document);
    auto *inner = new QSplitter(Qt::Vertical, outer);
    inner->setChildrenCollapsible(false);
    m_topTab = new KWTopTab(inner, document);
    m_bottomTab = new KWBottomTab(inner, document);
    inner->setSizes({300, 200});
}

KWView *KWPanes::viewOn(QWidget *page) const
{
    if (!m_topTab || (m_leftTab->indexOf(page) < 0 && m_topTab->indexOf(page) < 0))
        return nullptr;
    return KWCloseableTabWidget::viewOn(page);
}

KWView *KWPanes::topView() const
{
    return m_topTab ? m_topTab->currentView() : nullptr;
}

KWView *KWPanes::floorPlanView() const
{
    return m_topTab ? m_topTab->viewNamed(u"Floor plan") : nullptr;
}

KWCanvasView *KWPanes::floorPlan() const
{
    return m_topTab ? m_topTab->floorPlanView() : nullptr;
}

void KWPanes::resizeFloorPlan()
{
    if (KWCanvasView *view = floorPlan())
        view->canvas()->resizeToRoom();
}

void KWPanes::refreshFloorPlan()
{
    if (KWCanvasView *view = floorPlan())
        view->zoomCentre();
}

KWGuestsListView *KWPanes::currentList() const
{
    return m_leftTab ? m_leftTab->currentList() : nullptr;
}

bool KWPanes::canShowGuestInPlan(const KWView *activeView) const
{
    KWGuestsListView *list = currentList();
    if (!list || !activeView ||
        (activeView != m_leftTab->viewNamed(u"Guests") &&
         activeView != m_leftTab->viewNamed(u"Groups")))
        return false;
    const KWView *top = topView();
    if (!top || (top != floorPlanView() && top != m_topTab->viewNamed(u"Schematic")))
        return false;
    return list->numSelected() == 1 && list->document()->findGuest(list->firstSelectedGuest());
}

KWViewSettings KWPanes::viewSettings() const
{
    KWViewSettings settings = m_viewSettings;
    if (!m_leftTab)
        return settings;
    m_leftTab->guestsFilter()->writeSettings(settings);
    m_topTab->floorPlanFilter()->writeSettings(settings);
    return settings;
}

void KWPanes::setViewSettings(const KWViewSettings &settings)
{
    m_viewSettings = settings;
    if (!m_leftTab)
        return;
    m_topTab->floorPlanFilter()->readSettings(settings);
    m_leftTab->guestsFilter()->readSettings(settings);
}

QList<KWView *> KWPanes::viewsToBlock() const
{
    if (!m_topTab)
        return {};
    QList<KWView *> views{m_bottomTab->viewNamed(u"Proximity"), m_leftTab->viewNamed(u"Guests"),
                          m_leftTab->viewNamed(u"Groups"), floorPlanView(),
                          m_topTab->viewNamed(u"Schematic")};
    views.removeAll(nullptr);
    return views;
}
