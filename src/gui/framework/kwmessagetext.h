#pragma once

#include <QString>

/// A text of a message as it can be shown: names and paths without an end lose their middle, so
/// that the buttons stay on the screen, and long words have places to break.
QString messageText(const QString &text);

/// The text without the places to break that messageText() puts in.
QString withoutBreaks(QString text);
