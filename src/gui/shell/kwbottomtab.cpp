#include "gui/shell/kwbottomtab.h"

KWBottomTab::KWBottomTab(QWidget *parent, KWDocument *)
    : KWCloseableTabWidget(parent, QStringLiteral("KWBottomTab"),
                           {QT_TR_NOOP("Bottom pane"), QT_TR_NOOP("Hide bottom pane")})
{
}
