#pragma once

#include <QObject>

class QWidget;

/// Keeps a window usable while modal dialogs of the program are up. Qt spares only windows that
/// are transient children of the modal one, so the window becomes that while the dialog is up. It
/// does not become a child widget of the dialog, which would take it along when it goes. A child
/// of the window.
class KWStayUsable : public QObject
{
    Q_OBJECT

public:
    explicit KWStayUsable(QWidget *window);

    /// Happens by itself in the next round of the event loop. Called after show(), the window can
    /// take the focus at once.
    void follow();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void returnToOwner();

    QWidget *m_window;
};
