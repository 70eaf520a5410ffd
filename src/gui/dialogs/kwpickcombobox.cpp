#include "kwpickcombobox.h"

#include <QAbstractItemView>

KWPickComboBox::KWPickComboBox(QWidget *parent)
    : QComboBox(parent)
{
    connect(this, &QComboBox::activated, this, [this](int index) {
        if (m_listIsClosing)
            emit picked(index);
    });
}

void KWPickComboBox::hidePopup()
{
    const bool wasOpen = view()->isVisible();
    QComboBox::hidePopup();
    if (!wasOpen)
        return;
    // A pick closes the list and is reported before anything else can happen.
    m_listIsClosing = true;
    QMetaObject::invokeMethod(
        this, [this] { m_listIsClosing = false; }, Qt::QueuedConnection);
}
