#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

/// screenshot FILE: what the display shows, as a picture.
int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2)
        return 64;
    return QGuiApplication::primaryScreen()->grabWindow().save(arguments.at(1)) ? 0 : 1;
}
