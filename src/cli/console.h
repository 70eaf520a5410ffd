#pragma once

#include <QByteArray>
#include <QString>

class KWDocument;
struct KWViewSettings;

/// Prints one line to standard error, after the tool's name.
void complain(const QString &message);

/// Prints to standard output; ExitOk, or a complaint and ExitCannotWrite.
int printText(const QString &text);

/// Writes a whole file, "-" being standard output: ExitOk, or a complaint and ExitCannotWrite. On
/// failure an existing file is as it was.
int writeOutput(const QString &path, const QByteArray &content);

/// Loads a plan: ExitOk, or a complaint and the status for it.
int loadPlan(KWDocument &document, const QString &path, KWViewSettings &views,
             bool &versionDiffers);
