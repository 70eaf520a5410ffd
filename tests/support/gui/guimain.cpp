#include "support/gui/guitest.h"
#include "support/registeredtest.h"

#include <QApplication>

int main(int argc, char **argv)
{
    const TestHome testHome;
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    return runRegisteredTest(argc, argv);
}
