#pragma once

#include "core/model/kwdocument.h"

#include <memory>
#include <vector>

/// The candidates of a layout run, best first once sorted. Owns them.
class KWSolutionsList
{
public:
    int count() const { return static_cast<int>(m_solutions.size()); }
    bool isEmpty() const { return m_solutions.empty(); }
    /// The candidate at an index in 0..count()-1.
    KWDocument *at(int index) const { return m_solutions[static_cast<std::size_t>(index)].get(); }
    /// The first candidate, or null in an empty list.
    KWDocument *first() const { return isEmpty() ? nullptr : m_solutions.front().get(); }

    void append(std::unique_ptr<KWDocument> solution);
    /// Takes over all candidates of another list, behind its own.
    void append(KWSolutionsList &&other);
    /// Removes and deletes a candidate.
    void remove(int index);
    void clear() { m_solutions.clear(); }

    /// Best first; equals keep their order.
    void sort();

    /// Below 0 if `a` is the better one, above 0 if `b` is: more seated guests first, then the
    /// higher score. Null comes last.
    static int compareItems(const KWDocument *a, const KWDocument *b);

private:
    std::vector<std::unique_ptr<KWDocument>> m_solutions;
};
