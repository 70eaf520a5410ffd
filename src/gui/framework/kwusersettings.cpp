#include "gui/framework/kwusersettings.h"

#include <limits>

KWUserSettings::KWUserSettings(QObject *parent)
    : QSettings(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Veltrace"),
                QStringLiteral("Ambrelune"), parent)
{
}

int KWUserSettings::solverStopCriteria() const
{
    return number(u"solver/stopCriteria", StopAfterGenerations, std::numeric_limits<int>::min(),
                  std::numeric_limits<int>::max());
}

bool KWUserSettings::flag(QAnyStringView key, bool missing) const
{
    const QString stored = value(key).toString().toLower();
    if (stored == u"true" || stored == u"false")
        return stored == u"true";
    bool isNumber = false;
    const int number = stored.toInt(&isNumber);
    return isNumber ? number != 0 : missing;
}

int KWUserSettings::number(QAnyStringView key, int missing, int smallest, int largest) const
{
    bool isNumber = false;
    const int stored = value(key).toInt(&isNumber);
    return isNumber ? std::clamp(stored, smallest, largest) : missing;
}
