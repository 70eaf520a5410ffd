#include "cli/console.h"

#include "cli/commands.h"
#include "core/model/kwdocument.h"
#include "core/model/kwsafefile.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <unistd.h>

namespace {
bool turnsWriting(QChar c)
{
    switch (c.direction()) {
    case QChar::DirLRE:
    case QChar::DirLRO:
    case QChar::DirRLE:
    case QChar::DirRLO:
    case QChar::DirPDF:
    case QChar::DirLRI:
    case QChar::DirRLI:
    case QChar::DirFSI:
    case QChar::DirPDI:
        return true;
    default:
        return false;
    }
}

QString oneLine(const QString &text)
{
    QString line = text.simplified();
    line.removeIf([](QChar c) { return c.category() == QChar::Other_Control || turnsWriting(c); });
    return line;
}

constexpr QLatin1StringView standardStream{"-"};

int loadStandardInput(KWDocument &document, KWViewSettings &views, bool &versionDiffers,
                      QString &reason)
{
    QFile input;
    if (!input.open(STDIN_FILENO, QIODevice::ReadOnly))
        return KWDocument::FileCannotOpen;
    const int result = document.load(input, views, versionDiffers);
    reason = input.errorString();
    return input.error() == QFileDevice::NoError ? result : KWDocument::FileCannotOpen;
}

/// Why a plan cannot be opened, in the system's words.
QString reasonFor(const QString &path)
{
    if (QFileInfo(path).isDir())
        return QStringLiteral("it is a folder");
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.errorString();
}
} // namespace

void complain(const QString &message)
{
    const QString line = QStringLiteral("ambrelune-cli: ") + oneLine(message) + u'\n';
    std::fputs(line.toLocal8Bit().constData(), stderr);
}

QString printable(const QString &text)
{
    const QString line = oneLine(text);
    return line.isEmpty() ? QStringLiteral("(no name)") : line;
}

int printText(const QString &text)
{
    return writeOutput(standardStream, text.toUtf8());
}

int writeOutput(const QString &path, const QByteArray &content)
{
    if (path == standardStream) {
        QFile out;
        if (out.open(stdout, QIODevice::WriteOnly) && out.write(content) == content.size() &&
            out.flush() && std::fflush(stdout) == 0)
            return ExitOk;
        complain(QStringLiteral("Cannot write to standard output."));
        return ExitCannotWrite;
    }
    QString reason;
    if (replaceFile(path, content, &reason))
        return ExitOk;
    complain(QStringLiteral("Cannot write '%1': %2.").arg(path, reason));
    return ExitCannotWrite;
}

QString planLabel(const QString &path)
{
    return path == standardStream ? QStringLiteral("standard input")
                                  : QStringLiteral("'%1'").arg(path);
}

int loadPlan(KWDocument &document, const QString &path, KWViewSettings &views, bool &versionDiffers)
{
    QString reason;
    const int result = path == standardStream
                           ? loadStandardInput(document, views, versionDiffers, reason)
                           : document.load(path, views, versionDiffers);
    switch (result) {
    case KWDocument::FileOk:
        return ExitOk;
    case KWDocument::FileNotAPlan:
        complain(QStringLiteral("There is no plan in %1, or it is damaged.").arg(planLabel(path)));
        return ExitNotAPlan;
    default:
        complain(QStringLiteral("Cannot open %1: %2.")
                     .arg(planLabel(path), path == standardStream ? reason : reasonFor(path)));
        return ExitCannotOpen;
    }
}

int loadPlanToWrite(KWDocument &document, const QString &path, KWViewSettings &views)
{
    bool versionDiffers = false;
    const int status = loadPlan(document, path, views, versionDiffers);
    if (versionDiffers)
        complain(QStringLiteral("The plan in %1 was created with a different version of the "
                                "software. Some information may not be in the plan that is "
                                "written.")
                     .arg(planLabel(path)));
    return status;
}
