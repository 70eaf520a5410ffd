#pragma once

#include <QObject>

class KWCommandGuard;
class KWEditCommands;
class KWMainWindow;

namespace Ui {
class KWMainWin;
}

/// The command that lays out the plan.
class KWLayoutCommands : public QObject
{
    Q_OBJECT

public:
    /// None of the pointers is owned.
    KWLayoutCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window, KWEditCommands *edit,
                     KWCommandGuard *guard);

public slots:
    void fileAutoLayout();

private:
    /// Whether a layout makes sense and is wanted; says so if not.
    bool mayLayOut();
    void run();

    KWMainWindow *m_window;
    KWEditCommands *m_edit;
    KWCommandGuard *m_guard;
};
