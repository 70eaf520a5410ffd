#include "kwtoptab.h"

KWTopTab::KWTopTab(QWidget *parent, KWDocument *)
    : KWCloseableTabWidget(parent, QStringLiteral("KWTopTab"))
{
}
