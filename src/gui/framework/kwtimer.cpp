#include "gui/framework/kwtimer.h"

#include <utility>

KWTimer::KWTimer(QObject *parent, const QString &name, Clock clock)
    : QObject(parent)
    , m_timer(new QTimer(this))
    , m_lastFired(clock())
    , m_clock(std::move(clock))
{
    setObjectName(name);
    connect(m_timer, &QTimer::timeout, this, &KWTimer::timeoutFired);
}

void KWTimer::start(int interval, bool singleShot)
{
    m_interval = interval;
    m_timer->setSingleShot(singleShot);
    m_timer->start(interval);
}

void KWTimer::changeInterval(int interval)
{
    m_interval = interval;
    if (m_timer->isActive())
        m_timer->setInterval(interval);
}

void KWTimer::stop()
{
    m_timer->stop();
}

void KWTimer::restart()
{
    stop();
    if (m_interval >= 0)
        start(m_interval, m_timer->isSingleShot());
}

bool KWTimer::isActive() const
{
    return m_timer->isActive();
}

void KWTimer::timeoutFired()
{
    const QDateTime now = m_clock();
    const int seconds = static_cast<int>(m_lastFired.secsTo(now));
    // Compared without a sign, so that a clock set back does not keep the timer silent until it has
    // caught up.
    if (static_cast<unsigned>(seconds) < static_cast<unsigned>(m_interval / 1000 - 1)) {
        qWarning("ignoring spurious timer update after %d sec (expected %d msec)", seconds,
                 m_interval);
        return;
    }
    m_lastFired = now;
    emit timeout();
}
