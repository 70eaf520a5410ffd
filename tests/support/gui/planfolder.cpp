#include "support/gui/planfolder.h"

#include "support/testplan.h"

#include <QDir>
#include <QFile>

QString PlanFolder::writePlan(const QString &name, int guests) const
{
    KWDocument plan;
    addGuests(plan, guests);
    if (plan.save(path(name), {}) != KWDocument::FileOk)
        qFatal("cannot write %s", qPrintable(path(name)));
    return path(name);
}

QString PlanFolder::writeFile(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path(name)));
    return path(name);
}

QStringList PlanFolder::files() const
{
    return QDir(m_directory.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

int PlanFolder::guestsIn(const QString &name) const
{
    KWDocument plan;
    KWViewSettings settings;
    bool otherVersion = false;
    if (plan.load(path(name), settings, otherVersion) != KWDocument::FileOk)
        return -1;
    return plan.guestCount();
}
