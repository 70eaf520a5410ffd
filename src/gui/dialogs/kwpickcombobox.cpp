#include "gui/dialogs/kwpickcombobox.h"

#include <QWheelEvent>

#include <utility>

KWPickComboBox::KWPickComboBox(QWidget *parent)
    : QComboBox(parent)
{
    // Nor does the wheel bring the focus.
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::activated, this, [this](int index) {
        if (m_listIsClosing)
            emit picked(index);
    });
}

void KWPickComboBox::showPopup()
{
    QComboBox::showPopup();
    m_listIsOpen = true;
}

void KWPickComboBox::hidePopup()
{
    QComboBox::hidePopup();
    if (!std::exchange(m_listIsOpen, false))
        return;
    // A pick closes the list and is reported before anything else can happen.
    m_listIsClosing = true;
    QMetaObject::invokeMethod(
        this, [this] { m_listIsClosing = false; }, Qt::QueuedConnection);
}

void KWPickComboBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
