#pragma once

#include <QList>

#include <random>

/// What happens by chance in a run of gestures: the same for the same seed, on every machine.
class Dice
{
public:
    explicit Dice(unsigned seed)
        : m_engine(seed)
    {
    }

    /// 0 to n - 1; 0 if there is nothing to choose.
    int below(int n) { return n > 0 ? static_cast<int>(m_engine() % static_cast<unsigned>(n)) : 0; }
    bool oneIn(int n) { return below(n) == 0; }
    /// An element of the list, which is not empty.
    template <typename T>
    T oneOf(const QList<T> &list)
    {
        return list.at(below(static_cast<int>(list.size())));
    }

private:
    std::mt19937 m_engine;
};
