#include "support/registeredtest.h"

#include <QGuiApplication>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    return runRegisteredTest(argc, argv);
}
