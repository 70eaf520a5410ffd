#pragma once

#include <QObject>

class QWidget;
class QWindow;

/// Keeps a window usable while modal dialogs of the program are up. Qt spares only windows that
/// are transient children of the modal one, so the window becomes that for as long as the dialog
/// is up. It does not become a child widget of the dialog, which would take it along when it dies.
/// A child of the window.
class KWStayUsable : public QObject
{
    Q_OBJECT

public:
    explicit KWStayUsable(QWidget *window);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void follow();

    QWidget *m_window;
};
