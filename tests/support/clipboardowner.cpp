#include "gui/exchange/kwtextmimesource.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

// Puts a page and a text, its two arguments, on the clipboard and stays until it is ended. Its
// window's title is what arrives when they are pasted into its own line.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc != 3)
        return 2;
    QGuiApplication::clipboard()->setMimeData(
        new KWTextMimeSource(QString::fromUtf8(argv[1]), QString::fromUtf8(argv[2])));
    QLineEdit line;
    line.paste();
    line.setWindowTitle(line.text());
    line.show();
    return QApplication::exec();
}
