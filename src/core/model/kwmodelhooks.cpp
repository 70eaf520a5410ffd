#include "core/model/kwmodelhooks.h"

#include <array>
#include <cstdarg>
#include <cstdio>

KWModelHooks &modelHooks()
{
    static KWModelHooks hooks;
    return hooks;
}

void traceLine(const QString &text)
{
    if (const auto &sink = modelHooks().trace)
        sink(text);
}

void traceLine(const QString &text, const QString &more)
{
    if (const auto &sink = modelHooks().trace)
        sink(text + more);
}

void traceLine(const QString &text, qint64 number)
{
    if (const auto &sink = modelHooks().trace)
        sink(text + QString::number(number));
}

void traceFormatted(const char *format, ...)
{
    std::array<char, 512> buffer;
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(buffer.data(), buffer.size(), format, arguments);
    va_end(arguments);
    const bool fits = length >= 0 && static_cast<std::size_t>(length) < buffer.size();
    traceLine(fits ? QString::fromUtf8(buffer.data())
                   : QStringLiteral("*** trace buffer overflow ***"));
}
