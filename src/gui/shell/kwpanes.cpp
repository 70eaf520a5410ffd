#include "kwpanes.h"

#include "kwbottomtab.h"
#include "kwlefttab.h"
#include "kwtoptab.h"

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
