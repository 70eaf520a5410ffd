#include "core/model/kwproximitystore.h"

#include "core/model/kwscore.h"

#include <algorithm>
#include <limits>

KWProximityStore::KWProximityStore()
    : m_data(new Data)
{
}

int KWProximityStore::value(int a, int b) const
{
    if (!m_data->index.valid) {
        const auto entry = m_data->entries.find({a, b});
        return entry == m_data->entries.end() ? KWScore::Neutral : entry->second.value;
    }
    const auto wishes = wishesOf(a);
    const auto found = std::ranges::lower_bound(wishes, b, {}, &Wish::other);
    return found != wishes.end() && found->other == b ? found->value : KWScore::Neutral;
}

bool KWProximityStore::set(int a, int b, int value)
{
    const auto &shared = std::as_const(m_data)->entries;
    const auto found = shared.find({a, b});
    const bool isStored = found != shared.end();
    if (value == KWScore::Neutral
            ? !isStored
            : isStored && found->second.inStoredOrder && found->second.value == value)
        return false;

    auto &entries = m_data->entries;
    m_data->index.valid = false;
    if (value == KWScore::Neutral) {
        entries.erase({a, b});
        entries.erase({b, a});
        --m_data->size;
        return true;
    }
    const auto mirror = entries.try_emplace({b, a}).first;
    try {
        mirror->second = Stored{value, false};
        entries.insert_or_assign({a, b}, Stored{value, true});
    } catch (...) {
        entries.erase(mirror);
        throw;
    }
    m_data->size += isStored ? 0 : 1;
    return true;
}

void KWProximityStore::removeGuest(int id)
{
    const std::pair<int, int> rowStart{id, std::numeric_limits<int>::min()};
    const auto &shared = std::as_const(m_data)->entries;
    const auto row = shared.lower_bound(rowStart);
    if (row == shared.end() || row->first.first != id)
        return;
    m_data->index.valid = false;
    auto &entries = m_data->entries;
    const auto begin = entries.lower_bound(rowStart);
    auto end = begin;
    for (; end != entries.end() && end->first.first == id; ++end) {
        --m_data->size;
        if (end->first.second != id)
            entries.erase({end->first.second, id});
    }
    entries.erase(begin, end);
}

void KWProximityStore::clear()
{
    m_data = new Data;
}

std::span<const KWProximityStore::Wish> KWProximityStore::wishesOf(int id) const
{
    const Index &flat = index();
    if (id < 0 || static_cast<std::size_t>(id) + 1 >= flat.rowStart.size())
        return {};
    const auto row = static_cast<std::size_t>(id);
    return {flat.wishes.data() + flat.rowStart[row], flat.rowStart[row + 1] - flat.rowStart[row]};
}

std::span<const KWProximityStore::Pair> KWProximityStore::pairs(int value) const
{
    const auto &pairs = index().pairs;
    const auto found = pairs.find(value);
    return found == pairs.end() ? std::span<const Pair>() : found->second;
}

std::vector<KWProximityStore::Entry> KWProximityStore::entries() const
{
    std::vector<Entry> result;
    result.reserve(static_cast<std::size_t>(size()));
    for (const auto &[key, stored] : m_data->entries) {
        if (stored.inStoredOrder)
            result.push_back({key.first, key.second, stored.value});
    }
    return result;
}

void KWProximityStore::Data::makeIndex() const
{
    index = {};
    index.wishes.reserve(entries.size());
    for (const auto &[key, stored] : entries) {
        index.rowStart.resize(static_cast<std::size_t>(key.first) + 1, index.wishes.size());
        index.wishes.push_back({key.second, stored.value});
        if (stored.inStoredOrder)
            index.pairs[stored.value].push_back({key.first, key.second});
    }
    index.rowStart.push_back(index.wishes.size());
    index.valid = true;
}
