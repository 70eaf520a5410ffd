#include "gui/framework/kwmainwindow.h"

namespace {
KWMainWindow *registeredWindow = nullptr;
} // namespace

KWMainWindow::KWMainWindow()
{
    registeredWindow = this;
}

KWMainWindow::~KWMainWindow()
{
    registeredWindow = nullptr;
}

QString KWMainWindow::productName()
{
    return QStringLiteral("Ambrelune");
}

int KWMainWindow::majorVersion()
{
    return AMBRELUNE_VERSION_MAJOR;
}

int KWMainWindow::minorVersion()
{
    return AMBRELUNE_VERSION_MINOR;
}

int KWMainWindow::patchVersion()
{
    return AMBRELUNE_VERSION_PATCH;
}

QString KWMainWindow::versionText()
{
    return QStringLiteral("%1.%2.%3").arg(majorVersion()).arg(minorVersion()).arg(patchVersion());
}

KWMainWindow *mainWin()
{
    return registeredWindow;
}
