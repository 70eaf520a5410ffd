#pragma once

#include <QString>

/// When the program was built: the compile date, a blank and the compile time.
QString buildStamp();
