#include "gui/framework/kwbusy.h"

#include <QApplication>

namespace {
int busyDepth = 0;

void updateCursor()
{
    if (busyDepth <= 0)
        QApplication::restoreOverrideCursor();
    else if (!QApplication::overrideCursor())
        QApplication::setOverrideCursor(Qt::WaitCursor);
}
} // namespace

void beginBusy()
{
    ++busyDepth;
    updateCursor();
}

void endBusy()
{
    --busyDepth;
    updateCursor();
}

KWArrowCursor::KWArrowCursor()
{
    QApplication::setOverrideCursor(Qt::ArrowCursor);
}

KWArrowCursor::~KWArrowCursor()
{
    QApplication::restoreOverrideCursor();
}
