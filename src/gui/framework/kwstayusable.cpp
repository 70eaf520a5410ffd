#include "kwstayusable.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

KWStayUsable::KWStayUsable(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    window->installEventFilter(this);
}

bool KWStayUsable::eventFilter(QObject *object, QEvent *event)
{
    // Comes both when a dialog goes up over the window and when the window is shown over a dialog.
    if (object == m_window && event->type() == QEvent::WindowBlocked)
        follow();
    return QObject::eventFilter(object, event);
}

void KWStayUsable::follow()
{
    QWindow *self = m_window->windowHandle();
    if (!self)
        return;
    QWindow *modal = QGuiApplication::modalWindow();
    // A dialog of the window's own blocks it rightly.
    if (modal && self->isAncestorOf(modal, QWindow::IncludeTransients))
        return;
    QWidget *owner = m_window->parentWidget();
    self->setTransientParent(modal ? modal : owner ? owner->window()->windowHandle() : nullptr);
    // Not at once: while the dialog tells that it goes, it still counts as modal.
    if (modal) {
        connect(modal, &QWindow::visibleChanged, this, &KWStayUsable::follow,
                Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
    }
}
