#include "kwtoptab.h"

#include "kwpixmaps.h"

#include <QEvent>

KWTopTab::KWTopTab(QWidget *parent, KWDocument *document)
    : KWCloseableTabWidget(parent, QStringLiteral("KWTopTab"))
    , m_floorPlanView(new KWCanvasView(this, document))
{
    addPage(m_floorPlanView, KWPixmaps::instance().paneFloorPlan(), QStringLiteral("Floor plan"),
            tr("Floor plan"));
}

void KWTopTab::changeEvent(QEvent *event)
{
    KWCloseableTabWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTabText(indexOf(m_floorPlanView), tr("Floor plan"));
}
