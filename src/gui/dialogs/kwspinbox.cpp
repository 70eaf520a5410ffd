#include "gui/dialogs/kwspinbox.h"

#include <QWheelEvent>

KWSpinBox::KWSpinBox(QWidget *parent)
    : QSpinBox(parent)
{
    // Nor does the wheel bring the focus.
    setFocusPolicy(Qt::StrongFocus);
}

void KWSpinBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QSpinBox::wheelEvent(event);
    else
        event->ignore();
}
