#pragma once

#include <QDialog>
#include <QList>
#include <QPointer>
#include <QTimer>

#include <functional>

/// Plays the user of modal dialogs: each step waits for a dialog of its class to be up and acts on
/// it. A dialog that a step does not expect, or that a step leaves up, is rejected and fails the
/// test after a while; so does a step that no dialog has come for in the end.
class ModalUser : public QObject
{
    Q_OBJECT

public:
    ModalUser();
    ~ModalUser() override;

    template <typename Dialog>
    void onDialog(const std::function<void(Dialog &)> &act)
    {
        m_steps.append([act](QDialog *dialog) {
            auto *expected = qobject_cast<Dialog *>(dialog);
            if (expected)
                QTimer::singleShot(0, expected, [act, expected] { act(*expected); });
            return expected != nullptr;
        });
    }

    /// Steps that no dialog has come up for yet.
    int waiting() const { return static_cast<int>(m_steps.size()); }

private:
    void look();

    QTimer m_timer;
    /// Each starts to act and returns true if the dialog is the one that it is for.
    QList<std::function<bool(QDialog *)>> m_steps;
    int m_looksInVain = 0;
    /// The dialog that a step was given last.
    QPointer<QDialog> m_served;
};
