#pragma once

#include <QColor>
#include <QString>

#include <functional>

/// What the model asks of the program around it. Each hook has a harmless default, so that a
/// test or a command-line tool needs to set none.
struct KWModelHooks
{
    /// Loading and saving report here: `done` of `total` steps.
    std::function<void(int done, int total)> progress = [](int, int) {};
    /// Loading or saving has ended.
    std::function<void()> progressFinished = [] {};
    /// The colour of selected things when the plan has none of its own.
    std::function<QColor()> selectionColour = [] { return QColor(Qt::red); };
    /// The printed footer of a plan file that does not say.
    std::function<QString()> printFooter = [] { return QString(); };
    /// A line for the trace, which is for developers only.
    std::function<void(const QString &line)> trace;
};

/// The hooks in force, for the program to fill in at its start.
KWModelHooks &modelHooks();

/// Writes a line to the trace: a text, a text and a second text, a text and a number.
void traceLine(const QString &text);
void traceLine(const QString &text, const QString &more);
void traceLine(const QString &text, qint64 number);
/// The same in the manner of printf, for at most 511 bytes; a longer line is replaced by a note.
[[gnu::format(printf, 1, 2)]] void traceFormatted(const char *format, ...);
