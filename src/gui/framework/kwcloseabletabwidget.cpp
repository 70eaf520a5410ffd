#include "gui/framework/kwcloseabletabwidget.h"

#include "gui/appearance/kwpixmaps.h"
#include "gui/framework/kwplansettingspanel.h"
#include "gui/framework/kwviewandfilter.h"

#include <QCoreApplication>
#include <QHideEvent>
#include <QToolButton>

KWCloseableTabWidget::KWCloseableTabWidget(QWidget *parent, const QString &name, const Words &words)
    : QTabWidget(parent)
    , m_words(words)
    , m_closeButton(new QToolButton(this))
{
    setObjectName(name);
    m_closeButton->setIcon(KWPixmaps::instance().closePane());
    m_closeButton->setAutoRaise(true);
    setCornerWidget(m_closeButton, Qt::TopRightCorner);
    connect(m_closeButton, &QToolButton::clicked, this, &QWidget::hide);
    languageChange();
}

// The words stand in the subclass, which there is none of yet while this class is constructed.
QString KWCloseableTabWidget::translated(const char *words) const
{
    return QCoreApplication::translate(objectName().toUtf8(), words);
}

QString KWCloseableTabWidget::labelOf(const QWidget *page) const
{
    return page ? translated(page->objectName().toUtf8()) : QString();
}

void KWCloseableTabWidget::languageChange()
{
    setAccessibleName(translated(m_words.pane));
    m_closeButton->setAccessibleName(translated(m_words.hide));
    m_closeButton->setWhatsThis(tr("<b>Hide pane</b><br/>Click this button to hide the pane.<br/>"
                                   "Use the <b>View</b> menu to show it again."));
    for (int i = 0; i < count(); ++i)
        setTabText(i, labelOf(widget(i)));
}

void KWCloseableTabWidget::addPage(QWidget *page, const QPixmap &icon, const char *name)
{
    page->setObjectName(QString::fromUtf8(name));
    if (auto *view = dynamic_cast<QWidget *>(viewOn(page))) {
        view->setWindowIcon(icon);
        if (view->objectName().isEmpty())
            view->setObjectName(page->objectName());
    }
    addTab(page, icon, labelOf(page));
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

QList<KWView *> KWCloseableTabWidget::views() const
{
    QList<KWView *> views;
    for (int i = 0; i < count(); ++i) {
        if (KWView *view = viewOn(widget(i)))
            views.append(view);
    }
    return views;
}

QList<KWPlanSettingsPanel *> KWCloseableTabWidget::settingsPanels() const
{
    QList<KWPlanSettingsPanel *> panels;
    for (int i = 0; i < count(); ++i) {
        auto *pair = dynamic_cast<KWViewPage *>(widget(i));
        if (auto *panel = dynamic_cast<KWPlanSettingsPanel *>(pair ? pair->panel() : nullptr))
            panels.append(panel);
    }
    return panels;
}

QString KWCloseableTabWidget::currentLabel() const
{
    return labelOf(currentWidget());
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
        languageChange();
}
