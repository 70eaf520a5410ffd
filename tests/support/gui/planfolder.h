#pragma once

#include <QStringList>
#include <QTemporaryDir>

/// A directory of plan files for one test.
class PlanFolder
{
public:
    QString path(const QString &name) const { return m_directory.filePath(name); }
    /// Writes a plan of that many guests, named "G0", ..., and gives its path.
    QString writePlan(const QString &name, int guests = 1) const;
    QString writeFile(const QString &name, const QByteArray &bytes) const;
    /// The names of the files in it, sorted.
    QStringList files() const;
    /// The number of guests in the plan file, -1 if it is none.
    int guestsIn(const QString &name) const;

private:
    QTemporaryDir m_directory;
};
