#include "support/registeredtest.h"

#include <QFileInfo>
#include <QMap>

#include <cstdio>
#include <memory>

namespace {
QMap<QString, RegisteredTest::Maker> &makers()
{
    static QMap<QString, RegisteredTest::Maker> all;
    return all;
}
} // namespace

RegisteredTest::RegisteredTest(const char *file, const Maker &make)
{
    makers().insert(QFileInfo(QString::fromUtf8(file)).completeBaseName(), make);
}

int runRegisteredTest(int argc, char **argv)
{
    const auto maker = makers().constFind(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
    if (maker == makers().constEnd()) {
        std::fputs("Which test? One of\n", stderr);
        for (const QString &name : makers().keys())
            std::fprintf(stderr, "  %s\n", qPrintable(name));
        return 1;
    }
    const std::unique_ptr<QObject> test((*maker)());
    argv[1] = argv[0];
    return QTest::qExec(test.get(), argc - 1, argv + 1);
}
