#include "gui/shell/kwcommandguard.h"

#include <QEvent>
#include <QMainWindow>

KWCommandGuard::KWCommandGuard(QMainWindow *window)
    : QObject(window)
    , m_actions(this)
    , m_window(window)
{
    m_actions.setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
    for (QAction *action : window->findChildren<QAction *>(Qt::FindDirectChildrenOnly)) {
        if (!action->actionGroup())
            m_actions.addAction(action);
    }
    window->installEventFilter(this);
}

bool KWCommandGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window &&
        (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowUnblocked)) {
        m_isBlocked = event->type() == QEvent::WindowBlocked;
        update();
    }
    return QObject::eventFilter(watched, event);
}

void KWCommandGuard::update()
{
    if (m_actions.isEnabled() != isOff())
        return;
    m_actions.setEnabled(!isOff());
    emit changed();
}

KWCommandGuard::Hold::Hold(KWCommandGuard *guard)
    : m_guard(guard)
{
    ++m_guard->m_holds;
    m_guard->update();
}

KWCommandGuard::Hold::~Hold()
{
    --m_guard->m_holds;
    m_guard->update();
    if (!m_guard->isHeld())
        emit m_guard->released();
}
