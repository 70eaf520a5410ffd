#pragma once

#include <QByteArray>
#include <QString>

/// Gives a file a new content; if that fails, the old one stays. `error` gets the system's words.
///
/// A new file takes the place of the old one, with its owner, group and mode. Where that cannot be
/// had, be it that another user's file would change hands or that the folder takes no new files,
/// the content is written over the old one, for which the space is set aside first.
///
/// Links are followed. A character device, and whatever stands behind /dev/stdout and the like, is
/// written to; anything else that is no regular file is refused, since it might wait for ever.
bool replaceFile(const QString &path, const QByteArray &content, QString *error = nullptr);

/// Copies a regular file and its permissions, and makes the folder if there is none. A file that is
/// there already is replaced, and a copy that fails leaves nothing behind.
bool copyFile(const QString &from, const QString &to, QString *error = nullptr);
