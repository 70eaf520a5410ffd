#pragma once

#include <new>

/// Thrown when there is no memory for a copy of the plan.
class KWMemoryException : public std::bad_alloc
{
public:
    const char *what() const noexcept override { return "out of memory"; }
};
