#include "gui/shell/kwsplashscreen.h"

#include <QPainter>

KWSplashScreen::KWSplashScreen(const QPixmap &picture)
    : QSplashScreen(picture)
{
    setAttribute(Qt::WA_DeleteOnClose);
    // The main window alone decides when the program ends.
    setAttribute(Qt::WA_QuitOnClose, false);
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
