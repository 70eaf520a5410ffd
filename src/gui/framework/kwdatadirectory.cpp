#include "gui/framework/kwdatadirectory.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

QString dataDirectory()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../share/ambrelune"));
}

QString exampleDirectory()
{
    return dataDirectory() + QStringLiteral("/examples");
}

QString userDataDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/Veltrace/Ambrelune");
}
