#pragma once

#include <QObject>

class KWMainWindow;

namespace Ui {
class KWMainWin;
}

/// The commands of the Help menu, and the credits.
class KWHelpCommands : public QObject
{
    Q_OBJECT

public:
    /// None of the arguments is owned.
    KWHelpCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window);

public slots:
    void helpContextSensitive();
    void helpGettingStarted();
    void helpTutorial();
    void helpWeb();
    void helpAbout();
    void helpIndex();
    void creditsDlg();

private:
    KWMainWindow *m_window;
};
