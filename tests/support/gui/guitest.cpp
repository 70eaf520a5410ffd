#include "guitest.h"

#include "kwusersettings.h"

#include <QApplication>

#include <memory>

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

int runGuiTest(int argc, char **argv, const std::function<QObject *()> &makeTest)
{
    TestHome testHome;
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    const std::unique_ptr<QObject> test(makeTest());
    return QTest::qExec(test.get(), argc, argv);
}
