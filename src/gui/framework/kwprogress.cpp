#include "kwprogress.h"

#include "kwmainwindow.h"

#include <QCoreApplication>

void setProgress(int percent)
{
    if (KWMainWindow *window = mainWin())
        window->setProgress(percent);
    QCoreApplication::processEvents();
}

void setProgress(int value, int total)
{
    setProgress(value * 100 / total);
}
