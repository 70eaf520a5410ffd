#include "gui/framework/kwwhatsthishelper.h"

#include <QEvent>
#include <QTextDocumentFragment>

KWWhatsThisHelper::KWWhatsThisHelper(QWidget *window)
    : QObject(window)
{
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (!widget->toolTip().isEmpty() && widget->whatsThis().isEmpty())
            m_widgets.append(widget);
    }
    copyToolTips();
    window->installEventFilter(this);
}

void KWWhatsThisHelper::copyToolTips()
{
    for (const QPointer<QWidget> &widget : std::as_const(m_widgets)) {
        if (!widget)
            continue;
        const QString tip = widget->toolTip();
        widget->setWhatsThis(tip);
        // A reader would speak the mark-up.
        if (Qt::mightBeRichText(tip))
            widget->setAccessibleDescription(
                QTextDocumentFragment::fromHtml(tip).toPlainText().simplified());
    }
}

bool KWWhatsThisHelper::eventFilter(QObject *watched, QEvent *event)
{
    // Later, since the window has yet to translate its tool tips.
    if (watched == parent() && event->type() == QEvent::LanguageChange)
        QMetaObject::invokeMethod(this, &KWWhatsThisHelper::copyToolTips, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}
