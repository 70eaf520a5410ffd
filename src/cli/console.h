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

/// Loads a plan, "-" being standard input: ExitOk, or a complaint and the status for it.
int loadPlan(KWDocument &document, const QString &path, KWViewSettings &views,
             bool &versionDiffers);
/// The same for a command that writes the plan again: says what may get lost.
int loadPlanToWrite(KWDocument &document, const QString &path, KWViewSettings &views);

/// How a plan is called in a sentence: 'a.kw' or standard input.
QString planLabel(const QString &path);

/// A plan's text on one line, without what would control the terminal or turn its writing round;
/// "(no name)" for a blank text.
QString printable(const QString &text);
