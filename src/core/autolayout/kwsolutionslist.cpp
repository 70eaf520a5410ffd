#include "core/autolayout/kwsolutionslist.h"

#include <algorithm>
#include <compare>
#include <iterator>

namespace {
/// What candidates are ranked by. Taken once for each candidate, since both are sums over tables.
struct Rank
{
    explicit Rank(const KWDocument &document)
        : seated(document.seatedGuestCount())
        , score(document.totalScore())
    {
    }
    auto operator<=>(const Rank &) const = default; // NOLINT(modernize-use-nullptr): there is none

    int seated;
    int score;
};

int compare(const Rank &a, const Rank &b)
{
    return a == b ? 0 : (a < b ? 1 : -1);
}
} // namespace

void KWSolutionsList::append(std::unique_ptr<KWDocument> solution)
{
    m_solutions.push_back(std::move(solution));
}

void KWSolutionsList::append(KWSolutionsList &&other)
{
    m_solutions.reserve(m_solutions.size() + other.m_solutions.size());
    std::ranges::move(other.m_solutions, std::back_inserter(m_solutions));
    other.m_solutions.clear();
}

void KWSolutionsList::remove(int index)
{
    m_solutions.erase(m_solutions.begin() + index);
}

void KWSolutionsList::sort()
{
    std::vector<std::pair<Rank, std::unique_ptr<KWDocument>>> ranked;
    ranked.reserve(m_solutions.size());
    for (auto &solution : m_solutions) {
        const Rank rank(*solution);
        ranked.emplace_back(rank, std::move(solution));
    }
    std::ranges::stable_sort(
        ranked, [](const Rank &a, const Rank &b) { return compare(a, b) < 0; },
        [](const auto &item) -> const Rank & { return item.first; });
    std::ranges::transform(ranked, m_solutions.begin(),
                           [](auto &item) { return std::move(item.second); });
}

int KWSolutionsList::compareItems(const KWDocument *a, const KWDocument *b)
{
    if (!a)
        return 1;
    if (!b)
        return -1;
    return compare(Rank(*a), Rank(*b));
}
