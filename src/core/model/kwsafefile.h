#pragma once

#include <QFileDevice>
#include <QString>

#include <memory>

/// A file for writing whose old content stays until commit() has put the new one in its place, as
/// far as its kind and its folder allow.
class KWSafeFile
{
public:
    /// Where a folder takes no new files, `mayOverwrite` allows writing over the old content, as
    /// long as the file itself may be written. A device or a pipe, and whatever stands behind
    /// /dev/stdout and the like, is always written directly.
    KWSafeFile(const QString &path, bool mayOverwrite);

    bool open();
    /// Writes all of it and puts it in place; false if anything of that failed.
    bool commit(const QByteArray &content);
    /// What the system says of a failure.
    QString errorString() const { return m_error; }

private:
    bool check(bool ok);

    std::unique_ptr<QFileDevice> m_file;
    QString m_error;
};
