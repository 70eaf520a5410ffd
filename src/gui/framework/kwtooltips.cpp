#include "gui/framework/kwtooltips.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>

namespace {

/// Swallows the events that ask for tool tips, before any widget sees them.
class ToolTipFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        return event->type() == QEvent::ToolTip || QObject::eventFilter(watched, event);
    }
};

QPointer<ToolTipFilter> installedFilter;
} // namespace

void setToolTipsEnabled(bool enabled)
{
    if (enabled) {
        delete installedFilter;
    } else if (!installedFilter) {
        installedFilter = new ToolTipFilter(qApp);
        qApp->installEventFilter(installedFilter);
    }
}

bool toolTipsEnabled()
{
    return !installedFilter;
}
