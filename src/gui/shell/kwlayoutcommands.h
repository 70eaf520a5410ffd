#pragma once

#include <QObject>

class KWMainWindow;

namespace Ui {
class KWMainWin;
}

/// The command that lays out the plan.
class KWLayoutCommands : public QObject
{
    Q_OBJECT

public:
    /// `window` owns this object and its actions.
    KWLayoutCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window);

    /// While a layout runs, nothing else may touch the plan, nor may the window close; its commands
    /// are off.
    bool isRunning() const { return m_isRunning; }

public slots:
    void fileAutoLayout();

signals:
    /// A layout has ended, in whatever way.
    void finished();

private:
    /// Whether a layout makes sense and is wanted; says so if not.
    bool mayLayOut();
    void run();

    KWMainWindow *m_window;
    bool m_isRunning = false;
};
