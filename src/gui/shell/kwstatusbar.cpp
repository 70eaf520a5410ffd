#include "gui/shell/kwstatusbar.h"

#include <QAccessible>
#include <QLabel>
#include <QProgressBar>

KWStatusBar::KWStatusBar(QWidget *parent)
    : QStatusBar(parent)
    , m_viewIcon(new QLabel(this))
    , m_counts(new QLabel(this))
    , m_progress(new QProgressBar(this))
{
    setObjectName(QStringLiteral("KWStatusBar"));
    m_viewIcon->setAlignment(Qt::AlignCenter);
    m_counts->setAlignment(Qt::AlignCenter);
    m_progress->setMaximumWidth(200);
    m_progress->setTextVisible(false);
    addPermanentWidget(m_viewIcon);
    addPermanentWidget(m_counts);
    addPermanentWidget(m_progress);
    m_viewIcon->hide();
    m_progress->hide();
    setSizeGripEnabled(false);
    // Or the last of them would touch the edge of the screen.
    setContentsMargins(0, 0, 6, 0);
    connect(this, &QStatusBar::messageChanged, this, &KWStatusBar::announce);
    setWhatsThis(tr("<b>Status bar</b><br/>Display status information. "));
}

void KWStatusBar::announce(const QString &message)
{
    setAccessibleName(message);
    if (message.isEmpty())
        return;
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void KWStatusBar::setCounts(int guests, int seats, int score)
{
    m_counts->setText(tr("Guests: %1 Seats: %2 Score: %3").arg(guests).arg(seats).arg(score));
}

void KWStatusBar::setViewIcon(const QPixmap &icon)
{
    m_viewIcon->setPixmap(icon);
    m_viewIcon->setVisible(!icon.isNull());
}

void KWStatusBar::setProgress(int percent)
{
    m_progress->setValue(percent);
    m_progress->setVisible(percent != 100);
}
