#pragma once

#include <QString>

#include <functional>

/// Remembers where the program was started, which is one of the places where the help file may
/// stand: the current directory, unless another one is given. main() calls this before anything
/// changes the current directory.
void rememberStartDirectory(const QString &directory = {});
/// The directory that was remembered, or that was current at the first call of this function.
const QString &startDirectory();

/// Looks for the help file in another place than beside the program, for tests; without a directory
/// again there.
void setShippedHelpDirectory(const QString &directory = {});

/// The absolute path of the help file: in the start directory, else in the current one, else beside
/// the program. Where there is none the user is told, at each call, and the path is empty.
QString helpFilePath();

/// What opens an example plan, by its path, when a page offers one; without it nothing does.
void setExampleOpener(const std::function<void(const QString &path)> &open);

/// Shows a page of the help file, such as "Main_window.htm", in the help window. False, after
/// telling the user, if the file or the page cannot be shown.
bool showHelpTopic(const QString &topic);
