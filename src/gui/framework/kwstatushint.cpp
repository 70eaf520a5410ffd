#include "gui/framework/kwstatushint.h"

#include <QCoreApplication>
#include <QStatusTipEvent>
#include <QWidget>

void showStatusHint(QWidget *widget, const QString &text)
{
    // Goes up to the window, which shows it.
    QStatusTipEvent tip(text);
    QCoreApplication::sendEvent(widget, &tip);
}
