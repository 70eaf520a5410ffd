#include "core/model/kwrandom.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>

namespace {
std::optional<unsigned> fixedSeed;

/// The library's number, brought into the range that the arithmetic below is made for.
int shortRandom()
{
    static_assert(RAND_MAX == 2147483647);
    return std::rand() >> 16; // NOLINT(concurrency-mt-unsafe): there is one thread
}
} // namespace

void seedRandomNumbers()
{
    std::srand(fixedSeed.value_or(static_cast<unsigned>(std::time(nullptr))));
}

void setFixedRandomSeed(std::optional<unsigned> seed)
{
    fixedSeed = seed;
}

int randomNumber(int n)
{
    const float scaled = static_cast<float>(shortRandom()) * static_cast<float>(n) / 32767.0F;
    const int number = static_cast<int>(scaled);
    return number == n ? n - 1 : number;
}

int biasedRandomNumber(int n)
{
    const int first = randomNumber(n);
    return std::min(first, randomNumber(n));
}

int otherRandomNumber(int n, int excluded)
{
    int number = randomNumber(n);
    while (number == excluded)
        number = randomNumber(n);
    return number;
}
