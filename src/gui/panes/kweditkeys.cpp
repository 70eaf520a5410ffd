#include "gui/panes/kweditkeys.h"

#include <QKeyEvent>

bool isEditCommand(const QKeyEvent &key)
{
    return key.modifiers() == Qt::ControlModifier &&
           QList<int>{Qt::Key_E, Qt::Key_K, Qt::Key_U}.contains(key.key());
}
