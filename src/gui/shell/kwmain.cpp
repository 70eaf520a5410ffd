#include "gui/appearance/kwpixmaps.h"
#include "gui/framework/kwhelp.h"
#include "gui/shell/kwapplication.h"
#include "gui/shell/kwmainwinimpl.h"
#include "gui/shell/kwsplashscreen.h"

#include <QIcon>

int main(int argc, char **argv)
{
    rememberStartDirectory();
    KWApplication application(argc, argv);
    initAppearanceResources();
    application.setWindowIcon(QIcon(QStringLiteral(":/icons/ambrelune.svg")));
    const QPixmap picture = QIcon(QStringLiteral(":/splash.svg"))
                                .pixmap(QSize(423, 300), application.devicePixelRatio());
    auto *splash = new KWSplashScreen(picture);
    splash->show();
    splash->showMessage(
        QObject::tr("%1\nVersion %2").arg(KWMainWindow::productName(), KWMainWindow::versionText()),
        Qt::AlignBottom | Qt::AlignHCenter, Qt::white);
    KWMainWinImpl window;
    window.initialise(splash, QCoreApplication::arguments());
    QObject::connect(&application, &QGuiApplication::lastWindowClosed, &application,
                     &QCoreApplication::quit);
    return application.exec();
}
