#include "gui/dialogs/kwscrollingpage.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>

KWScrollingPage::KWScrollingPage(QWidget *parent)
    : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    // By itself it follows the Tab key only. What is under the mouse must not run away from it.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        const bool byMouse = QGuiApplication::mouseButtons() != Qt::NoButton;
        if (now && !byMouse && widget() && widget()->isAncestorOf(now))
            ensureWidgetVisible(now);
    });
}

QSize KWScrollingPage::sizeHint() const
{
    return widget()->sizeHint().expandedTo(minimumSizeHint());
}

QSize KWScrollingPage::minimumSizeHint() const
{
    const int width = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    return {width, QScrollArea::minimumSizeHint().height()};
}

bool KWScrollingPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

// The ground of the tabs shows through; a scroll area has its widget painted over.
void KWScrollingPage::showEvent(QShowEvent *event)
{
    widget()->setAutoFillBackground(false);
    QScrollArea::showEvent(event);
}
