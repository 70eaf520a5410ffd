#pragma once

#include <exception>

/// Thrown when there is no memory for a copy of the plan.
class KWMemoryException : public std::exception
{
public:
    const char *what() const noexcept override { return "out of memory"; }
};
