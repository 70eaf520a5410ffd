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
/// screenshot FILE X Y WIDTH HEIGHT: what a part of the display shows.
int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2 && arguments.size() != 3 && arguments.size() != 6)
        return 64;
    QRect part(0, 0, -1, -1);
    if (arguments.size() == 6)
        part = {arguments.at(2).toInt(), arguments.at(3).toInt(), arguments.at(4).toInt(),
                arguments.at(5).toInt()};
    const QPixmap picture = QGuiApplication::primaryScreen()->grabWindow(
        0, part.x(), part.y(), part.width(), part.height());
    // With no alpha channel it is smaller.
    if (!picture.toImage().convertToFormat(QImage::Format_RGB888).save(arguments.at(1)))
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
