#pragma once

/// So many copies of a plan find memory yet; below 0 all do. What counts them down takes the place
/// of the memory allocation of this program, in tst_kwlayoutrun_stops.cpp.
extern int copiesLeft;

/// While it lives, memory ends after so many copies of a plan, once.
class CopyLimit
{
public:
    explicit CopyLimit(int copies) { copiesLeft = copies; }
    ~CopyLimit() { copiesLeft = -1; }
    CopyLimit(const CopyLimit &) = delete;
    CopyLimit &operator=(const CopyLimit &) = delete;
};
