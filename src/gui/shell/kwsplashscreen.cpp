#include "gui/shell/kwsplashscreen.h"

#include <QPainter>
#include <QWindow>

KWSplashScreen::KWSplashScreen(const QPixmap &picture)
    : QSplashScreen(picture)
{
    setAttribute(Qt::WA_DeleteOnClose);
    // The main window alone decides when the program ends.
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_ShowWithoutActivating);
}

void KWSplashScreen::standBefore(const QWidget &window)
{
    // The window system is told whose it is when it is shown. Raised by itself it would lie over
    // the dialogs, or below the window that they bring forward with them.
    hide();
    windowHandle()->setTransientParent(window.windowHandle());
    show();
}

void KWSplashScreen::drawContents(QPainter *painter)
{
    painter->save();
    QFont font = painter->font();
    font.setPointSize(14);
    font.setWeight(QFont::Normal);
    font.setFamily(QStringLiteral("Trebuchet MS"));
    painter->setFont(font);
    QSplashScreen::drawContents(painter);
    painter->restore();
}
