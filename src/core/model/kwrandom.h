#pragma once

#include <optional>

/// The random source of the solver and of random table orders: the C library's rand(), one for
/// the whole process.

/// Seeds the source with the time in seconds, or with the fixed seed if one is set.
void seedRandomNumbers();

/// From now on seedRandomNumbers() uses this seed, so that a layout can be repeated; without a
/// value it uses the time again.
void setFixedRandomSeed(std::optional<unsigned> seed);

/// A number in 0..n-1, the last a little less likely than the others; -1 for n = 0.
int randomNumber(int n);

/// The smaller of two random numbers, so that the head of a sorted list is preferred.
int biasedRandomNumber(int n);

/// A random number in 0..n-1 other than `excluded`; n must be at least 2.
int otherRandomNumber(int n, int excluded);
