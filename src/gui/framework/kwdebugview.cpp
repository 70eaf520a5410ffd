#include "gui/framework/kwdebugview.h"

KWDebugView::KWDebugView(QWidget *parent, KWDocument *document)
    : QTextEdit(parent)
    , KWView(document)
{
    setObjectName(QStringLiteral("debug pane"));
    setFont(QFont(QStringLiteral("courier")));
}
