#include "kwlefttab.h"

KWLeftTab::KWLeftTab(QWidget *parent, KWDocument *)
    : KWCloseableTabWidget(parent, QStringLiteral("KWLeftTab"))
{
}
