#include "gui/shell/kwbackups.h"

#include "core/model/kwdocument.h"
#include "core/model/kwsafefile.h"
#include "gui/framework/kwtimer.h"
#include "gui/shell/kwplanfiles.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

KWBackups::KWBackups(QObject *parent, const Clock &clock)
    : QObject(parent)
    , m_clock(clock)
{
}

bool KWBackups::backupPlan(const QString &path)
{
    const QString time = m_clock().toString(Qt::ISODate).replace(u':', u'-');
    const QFileInfo plan(path);
    const QString target = QDir::toNativeSeparators(
        u"%1/%2_%3.%4"_s.arg(plan.absolutePath(), plan.baseName(), time, backupExtension));
    const bool copied = copyFile(path, target);
    m_changedSinceBackup = !copied;
    if (!copied)
        qWarning("backup %s to %s failed", qPrintable(path), qPrintable(target));
    return copied;
}

bool KWBackups::autoSave(const KWDocument &plan)
{
    return !plan.isEmpty() && !plan.fileName().isEmpty() && m_changedSinceBackup &&
           backupPlan(plan.fileName());
}

void KWBackups::setupAutoSave(bool on, int minutes)
{
    constexpr int minute = 60000;
    if (!m_timer) {
        m_timer = new KWTimer(this, u"auto save timer"_s, m_clock);
        connect(m_timer, &KWTimer::timeout, this, &KWBackups::due);
    }
    if (on && !m_timer->isActive())
        m_timer->start(minutes * minute, false);
    if (!on && m_timer->isActive())
        m_timer->stop();
    if (m_timer->interval() / minute != minutes)
        m_timer->changeInterval(minutes * minute);
}
