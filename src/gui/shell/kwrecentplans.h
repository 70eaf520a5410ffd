#pragma once

#include <QStringList>

class KWUserSettings;

/// The plans that were used last, the newest first. The list stands in the settings, where another
/// program of the user's changes it, too, so it is read anew at each use.
class KWRecentPlans
{
public:
    static constexpr int limit = 5;

    /// `settings` is not owned.
    explicit KWRecentPlans(KWUserSettings *settings)
        : m_settings(settings)
    {
    }

    /// Absolute paths, at most `limit`.
    QStringList paths() const;
    /// Puts a plan at the top. Backups stay out.
    void add(const QString &path);
    /// Whether there is a plan other than that of this path, which may be empty.
    bool hasOtherThan(const QString &path) const;

private:
    KWUserSettings *m_settings;
};
