#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QTextStream>

namespace {

/// What spans all pixels of a colour; empty if there is none.
QRect extentOf(const QColor &colour, const QImage &picture)
{
    QRect extent;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == colour)
                extent |= QRect(x, y, 1, 1);
        }
    }
    return extent;
}
} // namespace

/// screenshot FILE: what the display shows, as a picture.
/// screenshot FILE COLOUR: the same, and prints "x y width height" of what spans all pixels of the
/// colour ("#308cc6"); it fails if there is none.
int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2 && arguments.size() != 3)
        return 64;
    const QPixmap picture = QGuiApplication::primaryScreen()->grabWindow();
    if (!picture.save(arguments.at(1)))
        return 1;
    if (arguments.size() == 3) {
        const QRect extent = extentOf(QColor(arguments.at(2)), picture.toImage());
        if (extent.isEmpty())
            return 1;
        QTextStream(stdout) << extent.x() << ' ' << extent.y() << ' ' << extent.width() << ' '
                            << extent.height() << '\n';
    }
    return 0;
}
