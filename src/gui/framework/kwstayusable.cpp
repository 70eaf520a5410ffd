#include "gui/framework/kwstayusable.h"

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
    if (object == m_window && event->type() == QEvent::WindowBlocked) {
        // Comes both when a dialog goes up over the window and, too early, when the window is shown
        // over a dialog: the window system is told of the transient parent at that moment, and it
        // has to be the owner, who is still there when the dialog is gone.
        QMetaObject::invokeMethod(this, &KWStayUsable::follow, Qt::QueuedConnection);
    } else if (object == m_window && event->type() == QEvent::Hide) {
        returnToOwner();
    }
    return QObject::eventFilter(object, event);
}

void KWStayUsable::follow()
{
    QWindow *self = m_window->windowHandle();
    if (!self || !m_window->isVisible())
        return;
    QWindow *modal = QGuiApplication::modalWindow();
    if (!modal) {
        returnToOwner();
        return;
    }
    // A dialog of the window's own blocks it rightly.
    if (self->isAncestorOf(modal, QWindow::IncludeTransients))
        return;
    self->setTransientParent(modal);
    // Not at once: while the dialog tells that it goes, it still counts as modal.
    connect(modal, &QWindow::visibleChanged, this, &KWStayUsable::follow,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
}

void KWStayUsable::returnToOwner()
{
    const QWidget *owner = m_window->parentWidget();
    if (QWindow *self = m_window->windowHandle())
        self->setTransientParent(owner ? owner->window()->windowHandle() : nullptr);
}
