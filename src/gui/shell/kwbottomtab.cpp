#include "gui/shell/kwbottomtab.h"

KWBottomTab::KWBottomTab(QWidget *parent, KWDocument *)
    : KWCloseableTabWidget(parent, QStringLiteral("KWBottomTab"))
{
}
