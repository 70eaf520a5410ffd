#include "gui/shell/kwpanes.h"

#include "core/model/kwdocument.h"
#include "gui/floorplan/kwcanvasview.h"
#include "gui/framework/kwplansettingspanel.h"
#include "gui/shell/kwbottomtab.h"
#include "gui/shell/kwlefttab.h"
#include "gui/shell/kwtoptab.h"

#include <QApplication>
#include <QMainWindow>
#include <QSplitter>

void KWPanes::create(QMainWindow *window, KWDocument *document)
{
    m_window = window;
    auto *outer = new QSplitter(Qt::Horizontal, window);
    outer->setChildrenCollapsible(false);
    window->setCentralWidget(outer);
    m_leftTab = new KWLeftTab(outer, document);
    auto *inner = new QSplitter(Qt::Vertical, outer);
    inner->setChildrenCollapsible(false);
    m_topTab = new KWTopTab(inner, document);
    m_bottomTab = new KWBottomTab(inner, document);
    inner->setSizes({300, 200});
    connect(qApp, &QApplication::focusChanged, this, &KWPanes::followFocus);
}

void KWPanes::followFocus(const QWidget *, QWidget *now)
{
    // It may be in an editor of a row, for one.
    for (QWidget *widget = now; widget && widget->window() == m_window;
         widget = widget->parentWidget()) {
        if (auto *view = dynamic_cast<KWView *>(widget)) {
            emit viewFocused(view);
            return;
        }
    }
}

QList<KWCloseableTabWidget *> KWPanes::tabs() const
{
    if (!m_topTab)
        return {};
    return {m_bottomTab, m_leftTab, m_topTab};
}

QList<KWView *> KWPanes::views() const
{
    QList<KWView *> views;
    for (const KWCloseableTabWidget *tab : tabs())
        views.append(tab->views());
    return views;
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

QString KWPanes::topLabel() const
{
    return m_topTab ? m_topTab->currentLabel() : QString();
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
    const KWView *top = topView();
    return list && list == activeView && top && top->showsSeats() && list->numSelected() == 1 &&
           list->document()->findGuest(list->firstSelectedGuest());
}

KWViewSettings KWPanes::viewSettings() const
{
    KWViewSettings settings = m_viewSettings;
    for (const KWCloseableTabWidget *tab : tabs()) {
        for (const KWPlanSettingsPanel *panel : tab->settingsPanels())
            panel->writeSettings(settings);
    }
    return settings;
}

void KWPanes::setViewSettings(const KWViewSettings &settings)
{
    m_viewSettings = settings;
    for (const KWCloseableTabWidget *tab : tabs()) {
        for (KWPlanSettingsPanel *panel : tab->settingsPanels())
            panel->readSettings(settings);
    }
}

void KWPanes::showAllColumns()
{
    m_viewSettings = {};
    if (!m_leftTab)
        return;
    for (KWPlanSettingsPanel *panel : m_leftTab->settingsPanels())
        panel->readSettings({});
}
