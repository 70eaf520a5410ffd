#pragma once

#include <QFile>
#include <QStringList>

/// Writes down what was done, so that a failure can be understood. Each line also goes at once to
/// the file that AMBRELUNE_GESTURES_LOG names, if any, which outlives a crash.
class GestureLog
{
public:
    GestureLog();

    /// The gesture of a step begins; what is noted from now on is part of it.
    void begin(int step, const QString &gesture);
    void note(const QString &detail);

    /// The last gestures with their details, the newest at the end.
    QString last(int count = 20) const;

private:
    void write(const QString &line);

    QStringList m_gestures;
    QFile m_file;
};
