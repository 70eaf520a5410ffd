#include "gui/framework/kwprogress.h"

#include "gui/framework/kwmainwindow.h"

#include <QCoreApplication>

void setProgress(int percent)
{
    if (KWMainWindow *window = mainWin())
        window->setProgress(percent);
    // What the user does meanwhile waits, since it might change the plan that is being worked on.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void setProgress(int value, int total)
{
    setProgress(value * 100 / total);
}
