#include "planreadercheck.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <cstdio>
#include <cstdlib>

// The names are libFuzzer's.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Fonts need an application.
    static const QGuiApplication application(*argc, *argv);
    // The reader mentions unknown words of age, which here would be most of what it does.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString fault = PlanReaderCheck::faultOf(bytes);
    if (!fault.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(fault));
        std::abort();
    }
    return 0;
}
