#include "gui/framework/kwdialog.h"

#include "gui/appearance/kwstylehelper.h"
#include "gui/framework/kwonelinetext.h"
#include "gui/framework/kwwhatsthishelper.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QShortcutEvent>

void KWDialog::finish()
{
    passBuddiesOn();
    watchBoxes();
    keepFieldsToOneLine();
    new KWWhatsThisHelper(this);
    new KWStyleHelper(this);
}

// A reader tells of the label what has the focus, which may be a part of the label's buddy.
void KWDialog::passBuddiesOn()
{
    for (QLabel *label : findChildren<QLabel *>()) {
        if (label->buddy() && label->buddy()->focusProxy())
            label->setBuddy(label->buddy()->focusProxy());
    }
}

void KWDialog::watchBoxes()
{
    for (QAbstractButton *button : findChildren<QAbstractButton *>()) {
        if (qobject_cast<QCheckBox *>(button) || qobject_cast<QRadioButton *>(button))
            button->installEventFilter(this);
    }
}

// A field with a validator sees to it by itself, as the one of a spin box does.
void KWDialog::keepFieldsToOneLine()
{
    for (QLineEdit *field : findChildren<QLineEdit *>()) {
        if (!field->validator() && !field->isReadOnly() &&
            !qobject_cast<QAbstractSpinBox *>(field->parentWidget()))
            keepToOneLine(field);
    }
}

// By its letter the toolkit changes a box only after it has shown it pressed for a while, and who
// presses Return meanwhile would lose the change.
bool KWDialog::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = qobject_cast<QAbstractButton *>(watched);
    if (!box || event->type() != QEvent::Shortcut ||
        static_cast<QShortcutEvent *>(event)->isAmbiguous())
        return QDialog::eventFilter(watched, event);
    box->setFocus(Qt::ShortcutFocusReason);
    box->click();
    return true;
}

void KWDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        languageChange();
}
