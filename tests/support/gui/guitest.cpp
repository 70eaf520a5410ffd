#include "support/gui/guitest.h"

#include "gui/framework/kwusersettings.h"

namespace {
TestHome *home = nullptr;
} // namespace

TestHome::TestHome()
{
    home = this;
    const QByteArray root = m_directory.path().toLocal8Bit();
    for (const char *variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qputenv(variable, root);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_directory.path());
    QDir::setCurrent(m_directory.path());
}

void TestHome::clearSettings()
{
    KWUserSettings settings;
    settings.clear();
}

TestHome &testHome()
{
    return *home;
}
