#pragma once

#include <QDir>
#include <QFileInfo>

// The names of plan files.

inline constexpr QStringView planExtension = u"kw";
inline constexpr QStringView backupExtension = u"kwb";

/// As plans are listed and compared.
inline QString absoluteNativePath(const QString &path)
{
    return QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
}
