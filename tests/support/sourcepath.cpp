#include "support/sourcepath.h"

QString sourcePath(const char *relative)
{
    return QStringLiteral(AMBRELUNE_SOURCE_DIR "/") + QString::fromUtf8(relative);
}
