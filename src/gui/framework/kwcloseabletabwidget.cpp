#include "gui/framework/kwcloseabletabwidget.h"

#include "gui/appearance/kwpixmaps.h"
#include "gui/framework/kwviewandfilter.h"

#include <QHideEvent>
#include <QToolButton>

KWCloseableTabWidget::KWCloseableTabWidget(QWidget *parent, const QString &name)
    : QTabWidget(parent)
    , m_closeButton(new QToolButton(this))
{
    setObjectName(name);
    m_closeButton->setIcon(KWPixmaps::instance().closePane());
    m_closeButton->setAutoRaise(true);
    nameCloseButton();
    setCornerWidget(m_closeButton, Qt::TopRightCorner);
    connect(m_closeButton, &QToolButton::clicked, this, &QWidget::hide);
}

void KWCloseableTabWidget::nameCloseButton()
{
    m_closeButton->setAccessibleName(tr("Hide pane"));
    m_closeButton->setWhatsThis(tr("<b>Hide pane</b><br/>Click this button to hide the pane.<br/>"
                                   "Use the <b>View</b> menu to show it again."));
}

void KWCloseableTabWidget::addPage(QWidget *page, const QPixmap &icon, const QString &name,
                                   const QString &label)
{
    page->setObjectName(name);
    if (auto *view = dynamic_cast<QWidget *>(viewOn(page))) {
        view->setWindowIcon(icon);
        if (view->objectName().isEmpty())
            view->setObjectName(name);
    }
    addTab(page, icon, label);
}

KWView *KWCloseableTabWidget::viewOn(QWidget *page)
{
    if (auto *pair = dynamic_cast<KWViewPage *>(page))
        return pair->view();
    return dynamic_cast<KWView *>(page);
}

KWView *KWCloseableTabWidget::currentView() const
{
    return viewOn(currentWidget());
}

KWView *KWCloseableTabWidget::viewNamed(QAnyStringView name) const
{
    for (int i = 0; i < count(); ++i) {
        if (widget(i)->objectName() == name)
            return viewOn(widget(i));
    }
    return nullptr;
}

void KWCloseableTabWidget::showEvent(QShowEvent *event)
{
    QTabWidget::showEvent(event);
    emit visibilityChange(true);
}

void KWCloseableTabWidget::hideEvent(QHideEvent *event)
{
    QTabWidget::hideEvent(event);
    // The window system hides the pane when it minimises the window: that is no choice of the
    // user's about the pane.
    if (!event->spontaneous())
        emit visibilityChange(false);
}

void KWCloseableTabWidget::changeEvent(QEvent *event)
{
    QTabWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        nameCloseButton();
}
