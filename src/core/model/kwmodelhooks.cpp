#include "kwmodelhooks.h"

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

void traceLine(const QString &text, int number)
{
    if (const auto &sink = modelHooks().trace)
        sink(text + QString::number(number));
}
