#include "gui/shell/kwapplication.h"

KWApplication::KWApplication(int &argc, char **argv)
    : QApplication(argc, argv)
{
}
