#include "gui/shell/kwtoptab.h"

#include "gui/appearance/kwpixmaps.h"

KWTopTab::KWTopTab(QWidget *parent, KWDocument *document)
    : KWCloseableTabWidget(parent, QStringLiteral("KWTopTab"),
                           {QT_TR_NOOP("Top pane"), QT_TR_NOOP("Hide top pane")})
    , m_floorPlanPage(new FloorPlanPage(this, document, false))
{
    addPage(m_floorPlanPage, KWPixmaps::instance().paneFloorPlan(), QT_TR_NOOP("Floor plan"));
}
