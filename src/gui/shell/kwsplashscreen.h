#pragma once

#include <QSplashScreen>

/// The picture shown while the program starts. Closing it deletes it.
class KWSplashScreen : public QSplashScreen
{
    Q_OBJECT

public:
    explicit KWSplashScreen(const QPixmap &picture);

    /// In front of a window that is shown, and behind its dialogs.
    void standBefore(const QWidget &window);

protected:
    void drawContents(QPainter *painter) override;
};
