#pragma once

#include "support/sourcepath.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

// The real program, run on real files.

/// Where the program was built, beside this one.
inline QString commandLineTool()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/ambrelune-cli");
}

/// What came of a run; the status is -1 if the program did not end by itself in good time.
struct Outcome
{
    int status;
    QByteArray out;
    QByteArray err;
};

inline Outcome finish(QProcess &process)
{
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, process.readAllStandardOutput(), process.readAllStandardError()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

inline Outcome run(const QStringList &arguments, const QString &stdoutFile = {})
{
    QProcess process;
    if (!stdoutFile.isEmpty())
        process.setStandardOutputFile(stdoutFile);
    process.start(commandLineTool(), arguments);
    return finish(process);
}

/// With some bytes on standard input.
inline Outcome runWithInput(const QStringList &arguments, const QByteArray &input)
{
    QProcess process;
    process.start(commandLineTool(), arguments);
    process.write(input);
    process.closeWriteChannel();
    return finish(process);
}

inline QString example(const QString &name)
{
    return sourcePath("examples/") + name;
}

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

inline void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

inline QJsonObject json(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object();
}

/// A complaint is one line after the program's name.
inline bool isComplaint(const QByteArray &err)
{
    return err.startsWith("ambrelune-cli: ") && err.endsWith('\n') && err.count('\n') == 1;
}
