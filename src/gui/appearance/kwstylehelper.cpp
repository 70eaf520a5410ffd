#include "gui/appearance/kwstylehelper.h"

#include <QDialog>
#include <QLayout>
#include <QPushButton>

namespace {

QPushButton *pushButton(const QLayoutItem *item)
{
    return qobject_cast<QPushButton *>(item->widget());
}

void reverseButtons(QLayout *layout)
{
    QList<QPushButton *> buttons;
    for (int i = 0; i < layout->count(); ++i) {
        if (QPushButton *button = pushButton(layout->itemAt(i)))
            buttons.prepend(button);
    }
    for (QPushButton *button : std::as_const(buttons))
        layout->removeWidget(button);
    for (QPushButton *button : std::as_const(buttons))
        layout->addWidget(button);
}

} // namespace

KWStyleHelper::KWStyleHelper(QDialog *dialog)
    : QObject(dialog)
{
    setObjectName(QStringLiteral("KWStyleHelper"));
}

bool KWStyleHelper::arrangeButtons(QLayout *layout)
{
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (const QPushButton *button = pushButton(item); button && button->isDefault()) {
            reverseButtons(layout);
            return true;
        }
        if (QLayout *nested = item->layout(); nested && arrangeButtons(nested))
            return true;
    }
    return false;
}
