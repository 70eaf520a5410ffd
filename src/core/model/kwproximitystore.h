#pragma once

#include <QSharedData>

#include <map>
#include <span>
#include <utility>
#include <vector>

/// The proximity values of a plan: what the user wishes for pairs of guests.
///
/// Guests stand here by a number that the document gives each once and that copies of the plan
/// take over, so that a copy shares the store until one of the two changes. A pair has one entry
/// at most, under the order in which it was last set; a neutral pair has none.
class KWProximityStore
{
public:
    /// A guest's wish as seen from that guest.
    struct Wish
    {
        int other;
        int value;
    };
    /// A stored entry: its guests in stored order.
    struct Pair
    {
        int first;
        int second;
    };
    /// The same with the pair's value.
    struct Entry
    {
        int first;
        int second;
        int value;
    };

    KWProximityStore();

    int size() const { return m_data->size; }
    /// The value of a pair in either order; KWScore::Neutral if none is stored.
    int value(int a, int b) const;
    /// Stores a value under (a, b); KWScore::Neutral removes the pair. Other values are taken as
    /// they come. False if the pair already stood so.
    bool set(int a, int b, int value);
    /// Removes every entry of a guest.
    void removeGuest(int id);
    void clear();

    /// All wishes of a guest, by the other guest's number. Valid until the store changes.
    std::span<const Wish> wishesOf(int id) const;
    /// Every entry, ordered by first and second guest.
    std::vector<Entry> entries() const;
    /// The entries with a value, ordered by first and second guest. Valid until the store changes.
    std::span<const Pair> pairs(int value) const;

private:
    struct Stored
    {
        int value;
        bool inStoredOrder;
    };
    /// Flat tables for the solver, made from the entries at the first question after a change.
    struct Index
    {
        std::vector<std::size_t> rowStart;
        std::vector<Wish> wishes;
        std::map<int, std::vector<Pair>> pairs;
        bool valid = false;
    };
    struct Data : QSharedData
    {
        Data() = default;
        Data(const Data &other)
            : QSharedData(other)
            , entries(other.entries)
            , size(other.size)
        {
        }
        void makeIndex() const;

        /// Both orders of a pair stand here, so that a guest's wishes lie together.
        std::map<std::pair<int, int>, Stored> entries;
        int size = 0;
        mutable Index index;
    };

    const Index &index() const
    {
        if (!m_data->index.valid)
            m_data->makeIndex();
        return m_data->index;
    }

    QSharedDataPointer<Data> m_data;
};
