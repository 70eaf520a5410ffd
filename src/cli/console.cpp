#include "console.h"

#include "commands.h"
#include "kwdocument.h"
#include "kwsafefile.h"

#include <QFile>

#include <cstdio>

void complain(const QString &message)
{
    // A name may hold a line break; a complaint is one line all the same.
    const QString line = QStringLiteral("ambrelune-cli: ") + message.simplified() + u'\n';
    std::fputs(line.toLocal8Bit().constData(), stderr);
}

int printText(const QString &text)
{
    return writeOutput(QStringLiteral("-"), text.toUtf8());
}

int writeOutput(const QString &path, const QByteArray &content)
{
    QString reason;
    if (path == QLatin1StringView("-")) {
        QFile out;
        if (out.open(stdout, QIODevice::WriteOnly) && out.write(content) == content.size() &&
            out.flush() && std::fflush(stdout) == 0)
            return ExitOk;
        complain(QStringLiteral("Cannot write to standard output."));
        return ExitCannotWrite;
    }
    KWSafeFile file(path, false);
    if (file.open() && file.commit(content))
        return ExitOk;
    complain(QStringLiteral("Cannot write '%1': %2.").arg(path, file.errorString()));
    return ExitCannotWrite;
}

int loadPlan(KWDocument &document, const QString &path, KWViewSettings &views, bool &versionDiffers)
{
    switch (document.load(path, views, versionDiffers)) {
    case KWDocument::FileOk:
        return ExitOk;
    case KWDocument::FileNotAPlan:
        complain(QStringLiteral("'%1' is not a plan, or it is damaged.").arg(path));
        return ExitNotAPlan;
    default:
        complain(QStringLiteral("Cannot open '%1'.").arg(path));
        return ExitCannotOpen;
    }
}
