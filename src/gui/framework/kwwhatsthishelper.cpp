#include "kwwhatsthishelper.h"

#include <QWidget>

KWWhatsThisHelper::KWWhatsThisHelper(QWidget *window)
    : QObject(window)
{
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (!widget->toolTip().isEmpty() && widget->whatsThis().isEmpty())
            widget->setWhatsThis(widget->toolTip());
    }
}
