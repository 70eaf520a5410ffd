#include "gui/shell/kwrecentplans.h"

#include "gui/framework/kwusersettings.h"
#include "gui/shell/kwplanfiles.h"

#include <algorithm>

QStringList KWRecentPlans::paths() const
{
    m_settings->sync();
    return m_settings->mostRecentFiles().mid(0, limit);
}

void KWRecentPlans::add(const QString &path)
{
    if (QFileInfo(path).completeSuffix().toLower() == backupExtension)
        return;
    const QString added = absoluteNativePath(path);
    QStringList all = paths();
    all.removeIf([&added](const QString &file) { return absoluteNativePath(file) == added; });
    all.prepend(added);
    m_settings->setMostRecentFiles(all.mid(0, limit));
    // Another program's next look must find it.
    m_settings->sync();
}

bool KWRecentPlans::hasOtherThan(const QString &path) const
{
    const QString open = path.isEmpty() ? QString() : absoluteNativePath(path);
    const QStringList all = paths();
    return std::any_of(all.cbegin(), all.cend(),
                       [&open](const QString &file) { return absoluteNativePath(file) != open; });
}
