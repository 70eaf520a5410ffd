#include "core/model/kwsafefile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>

namespace {
/// Replacing a device or a pipe by a new file would destroy it, and replacing the file behind
/// /dev/stdout would take it from whoever reads it.
bool mustBeWrittenDirectly(const QString &path)
{
    const QFileInfo info(path);
    return (info.exists() && !info.isFile() && !info.isDir()) ||
           path == QLatin1StringView("/dev/stdout") || path == QLatin1StringView("/dev/stderr") ||
           path.startsWith(QLatin1StringView("/dev/fd/")) ||
           path.startsWith(QLatin1StringView("/proc/"));
}
} // namespace

KWSafeFile::KWSafeFile(const QString &path, bool mayOverwrite)
{
    if (mustBeWrittenDirectly(path)) {
        m_file = std::make_unique<QFile>(path);
        return;
    }
    auto file = std::make_unique<QSaveFile>(path);
    file->setDirectWriteFallback(mayOverwrite);
    m_file = std::move(file);
}

bool KWSafeFile::open()
{
    // What is behind /dev/stdout may have been opened for appending.
    const auto append =
        qobject_cast<QFile *>(m_file.get()) ? QIODevice::Append : QIODevice::NotOpen;
    return check(m_file->open(QIODevice::WriteOnly | append));
}

bool KWSafeFile::commit(const QByteArray &content)
{
    // QSaveFile takes no notice of a write that fails only when the buffer is flushed, and the
    // toolkit has no words for one that fails in the middle.
    errno = 0;
    const bool written = m_file->write(content) == content.size() && m_file->flush();
    if (!written)
        m_error = errno ? QString::fromLocal8Bit(std::strerror(errno)) : m_file->errorString();
    if (auto *file = qobject_cast<QSaveFile *>(m_file.get())) {
        if (written)
            return check(file->commit());
        file->cancelWriting();
        file->commit();
        return false;
    }
    m_file->close();
    return written && check(m_file->error() == QFileDevice::NoError);
}

bool KWSafeFile::check(bool ok)
{
    if (!ok)
        m_error = m_file->errorString();
    return ok;
}
