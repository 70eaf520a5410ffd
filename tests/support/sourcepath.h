#pragma once

#include <QString>

/// Where a file or folder of the source tree is, by its path below the root. Test data stands in
/// "tests/data".
QString sourcePath(const char *relative);
