#pragma once

#include <QActionGroup>

class QMainWindow;

/// Turns the commands of the main window off while a modal dialog is over it, and while the plan is
/// held: being read, written or laid out. Mouse and keys wait then anyway, but a menu bar of the
/// desktop, an aid for the disabled and a timer do not. Other windows, such as the help, stay
/// usable.
class KWCommandGuard : public QObject
{
    Q_OBJECT

public:
    /// Takes the actions that are children of the window. Those of a group of their own stay in it:
    /// whoever enables the group asks isOff(), again at changed().
    explicit KWCommandGuard(QMainWindow *window);

    bool isOff() const { return m_isBlocked || isHeld(); }
    bool isHeld() const { return m_holds > 0; }

    /// Holds the plan while it lives.
    class Hold
    {
    public:
        explicit Hold(KWCommandGuard *guard);
        ~Hold();
        Hold(const Hold &) = delete;
        Hold &operator=(const Hold &) = delete;

    private:
        KWCommandGuard *m_guard;
    };

signals:
    /// The commands went off or came back.
    void changed();
    /// The plan is no longer held.
    void released();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void update();

    /// What is off as a group comes back as each action has it by then.
    QActionGroup m_actions;
    QObject *m_window;
    bool m_isBlocked = false;
    int m_holds = 0;
};
