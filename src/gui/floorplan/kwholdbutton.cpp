#include "gui/floorplan/kwholdbutton.h"

#include <QApplication>
#include <QMouseEvent>

KWHoldButton::KWHoldButton(QWidget *parent)
    : QToolButton(parent)
{
    // A menu that opens meanwhile keeps the release of the mouse button for itself.
    connect(this, &KWHoldButton::pressed, this, [this] { qApp->installEventFilter(this); });
    connect(this, &KWHoldButton::released, this, [this] { qApp->removeEventFilter(this); });
}

void KWHoldButton::letGo()
{
    // Also where the pointer is outside at the moment, to come back later.
    m_letGo = true;
    if (!isDown())
        return;
    setDown(false);
    emit released();
}

bool KWHoldButton::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
        letGo();
    return QToolButton::eventFilter(object, event);
}

bool KWHoldButton::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
    case QEvent::WindowBlocked:
        letGo();
        break;
    case QEvent::EnabledChange:
        if (!isEnabled())
            letGo();
        break;
    default:
        break;
    }
    return QToolButton::event(event);
}

void KWHoldButton::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_letGo = false;
    QToolButton::mousePressEvent(event);
}

void KWHoldButton::mouseMoveEvent(QMouseEvent *event)
{
    // The toolkit would press it again.
    if (m_letGo)
        event->ignore();
    else
        QToolButton::mouseMoveEvent(event);
}
