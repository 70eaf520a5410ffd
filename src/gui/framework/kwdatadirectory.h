#pragma once

#include <QString>

/// The directory of what is shipped beside the program, such as its web pages and its help;
/// absolute and without a slash at its end. Found from where the program stands, so the whole tree
/// can be moved.
QString dataDirectory();

/// The directory of the example plans that ship.
QString exampleDirectory();

/// The directory of what the program keeps for its user beside the settings, such as themes;
/// absolute and without a slash at its end. It need not exist.
QString userDataDirectory();
