#include "kwdatadirectory.h"

#include <QCoreApplication>
#include <QDir>

QString dataDirectory()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../share/ambrelune"));
}
