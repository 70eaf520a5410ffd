#include "gui/shell/kwtoptab.h"

#include "gui/appearance/kwpixmaps.h"

#include <QEvent>

KWTopTab::KWTopTab(QWidget *parent, KWDocument *document)
    : KWCloseableTabWidget(parent, QStringLiteral("KWTopTab"))
    , m_floorPlanPage(new FloorPlanPage(this, document, false))
{
    addPage(m_floorPlanPage, KWPixmaps::instance().paneFloorPlan(), QStringLiteral("Floor plan"),
            tr("Floor plan"));
}

void KWTopTab::changeEvent(QEvent *event)
{
    KWCloseableTabWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTabText(indexOf(m_floorPlanPage), tr("Floor plan"));
}
