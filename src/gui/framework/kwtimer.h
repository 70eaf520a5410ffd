#pragma once

#include <QDateTime>
#include <QObject>
#include <QTimer>

#include <functional>

/// A timer that swallows firings which come too soon after the one before, so that a computer
/// waking from sleep or a queue of delayed events does not fire it in a burst. It is made for
/// intervals of seconds and minutes: one below 1000 ms never fires.
class KWTimer : public QObject
{
    Q_OBJECT

public:
    using Clock = std::function<QDateTime()>;

    /// `clock` tells the time that the firings are measured by.
    explicit KWTimer(QObject *parent, const QString &name = {},
                     Clock clock = &QDateTime::currentDateTime);

    /// Starts, or starts anew, with an interval in milliseconds.
    void start(int interval, bool singleShot = false);
    /// Notes the interval; a running timer goes on with it, one that stands still stays so.
    void changeInterval(int interval);
    void stop();
    /// Starts anew with the interval of the last start or change; nothing if there was none.
    void restart();
    /// Milliseconds; -1 until it is set.
    int interval() const { return m_interval; }
    bool isActive() const;

    template <typename Receiver, typename Slot>
    static void singleShot(int interval, Receiver *receiver, Slot slot)
    {
        QTimer::singleShot(interval, receiver, slot);
    }

signals:
    void timeout();

public slots:
    void timeoutFired();

private:
    QTimer *m_timer;
    int m_interval = -1;
    QDateTime m_lastFired;
    Clock m_clock;
};
