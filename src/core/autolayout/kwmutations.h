#pragma once

class KWDocument;

/// The moves of the solver. Each works on a candidate through the document's own operations,
/// leaves the seats unchanged when it returns false, and rescores nothing. None moves a locked
/// guest.
namespace KWMutations {

/// Two guests change places.
bool mutateGuest(KWDocument &child);
/// A run of neighbours moves to another table.
bool mutateMultiGuest(KWDocument &child);
/// Two members of a group change places.
bool mutateMember(KWDocument &child);
/// A guest moves to an empty seat. Fails if none turns up in very many draws.
bool mutateEmpty(KWDocument &child);
/// Makes the guests of a pair with this proximity value neighbours.
bool mutateTogether(KWDocument &child, int value);
/// Parts the guests of a pair with this proximity value who share a table. The plan must have two
/// tables.
bool mutateApart(KWDocument &child, int value);
/// Takes over a whole table of another candidate.
bool crossoverTable(const KWDocument &first, KWDocument &child);

} // namespace KWMutations
