#pragma once

#include <QSplashScreen>

/// The picture shown while the program starts. Closing it deletes it.
class KWSplashScreen : public QSplashScreen
{
    Q_OBJECT

public:
    explicit KWSplashScreen(const QPixmap &picture);

protected:
    void drawContents(QPainter *painter) override;
};
