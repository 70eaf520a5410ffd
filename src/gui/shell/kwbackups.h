#pragma once

#include <QDateTime>
#include <QObject>

#include <functional>

class KWDocument;
class KWTimer;

/// The dated copies beside a plan's file, and the timer that asks for them. Each is a copy of the
/// file as it was saved last, not of the plan in memory.
class KWBackups : public QObject
{
    Q_OBJECT

public:
    using Clock = std::function<QDateTime()>;

    KWBackups(QObject *parent, const Clock &clock);

    /// Copies the file of a plan to one beside it with the time in its name.
    bool backupPlan(const QString &path);
    /// The backup that is due from time to time: if the plan has something in it and a file, and
    /// has changed since the last one. Whether one was made.
    bool autoSave(const KWDocument &plan);
    /// Turns the timed backups on or off; `minutes` is the time between two.
    void setupAutoSave(bool on, int minutes);

    bool changedSinceBackup() const { return m_changedSinceBackup; }
    void setChangedSinceBackup(bool changed) { m_changedSinceBackup = changed; }

signals:
    /// The time for a backup has come.
    void due();

private:
    Clock m_clock;
    bool m_changedSinceBackup = false;
    KWTimer *m_timer = nullptr;
};
