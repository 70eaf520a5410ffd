#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <utility>

class Dice;
class GestureLog;
class QDialog;
class QMenu;
class QWidget;

/// Uses by chance whatever dialog or menu comes up while it lives: fills some fields, presses some
/// buttons, and closes it one way or another, by force if nothing else helps.
class RandomUser : public QObject
{
    Q_OBJECT

public:
    /// `window` is the main window, which no command may reach under a dialog.
    RandomUser(const QWidget &window, Dice &dice, GestureLog &log);

    /// Types into a field, turns a box or presses a button, as a person could.
    void use(QWidget *widget);
    /// What can be used of a window or panel, in the order in which it was made.
    static QList<QWidget *> usableParts(const QWidget &window);
    /// What was wrong while dialogs were up.
    QStringList takeFaults() { return std::exchange(m_faults, {}); }

private:
    void look();
    void checkCommands(const QDialog &dialog);
    void useDialog(QDialog *dialog);
    void close(QDialog *dialog);
    void useMenu(QMenu *menu);

    const QWidget &m_window;
    Dice &m_dice;
    GestureLog &m_log;
    QTimer m_timer;
    QStringList m_faults;
};
