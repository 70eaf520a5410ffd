#pragma once

#include <QFileDevice>
#include <QString>

#include <memory>

/// A file for writing whose old content stays until commit() has put the new one in its place.
class KWSafeFile
{
public:
    /// Where a folder takes no new files, `mayOverwrite` allows writing over the old content, as
    /// long as the file itself may be written. A device or a pipe is always written directly.
    KWSafeFile(const QString &path, bool mayOverwrite);

    bool open();
    /// Writes all of it and puts it in place; false if anything of that failed.
    bool commit(const QByteArray &content);
    /// What the system says of a failure.
    QString errorString() const { return m_file->errorString(); }

private:
    std::unique_ptr<QFileDevice> m_file;
};
