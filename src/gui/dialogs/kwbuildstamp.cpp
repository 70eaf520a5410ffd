#include "gui/dialogs/kwbuildstamp.h"

QString buildStamp()
{
    return QStringLiteral(__DATE__ " " __TIME__);
}
