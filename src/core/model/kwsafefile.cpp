#include "kwsafefile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

KWSafeFile::KWSafeFile(const QString &path, bool mayOverwrite)
{
    // Renaming a new file over a device or a pipe would destroy it.
    const QFileInfo info(path);
    if (info.exists() && !info.isFile() && !info.isDir()) {
        m_file = std::make_unique<QFile>(path);
        return;
    }
    auto file = std::make_unique<QSaveFile>(path);
    file->setDirectWriteFallback(mayOverwrite);
    m_file = std::move(file);
}

bool KWSafeFile::open()
{
    return m_file->open(QIODevice::WriteOnly);
}

bool KWSafeFile::commit(const QByteArray &content)
{
    // QSaveFile takes no notice of a write that fails only when the buffer is flushed.
    const bool written = m_file->write(content) == content.size() && m_file->flush();
    if (auto *file = qobject_cast<QSaveFile *>(m_file.get())) {
        if (!written)
            file->cancelWriting();
        return file->commit() && written;
    }
    m_file->close();
    return written && m_file->error() == QFileDevice::NoError;
}
