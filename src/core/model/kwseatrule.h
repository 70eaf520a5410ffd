#pragma once

class KWGuest;
class KWTable;

/// The rule of the score: what a seat of a table is worth to a guest, part by part, with everybody
/// else where they sit. The guest need not sit there, nor anywhere.
class KWSeatRule
{
public:
    /// For a seat that exists. Holds while nobody at the table moves.
    KWSeatRule(const KWTable &table, int seat);

    /// For having no neighbour.
    int alonePoints(const KWGuest &guest) const;
    /// For neighbours of the other gender.
    int genderPoints(const KWGuest &guest) const;
    /// For a proximity value, not neutral, of the guest and one who sits at the table.
    int wishPoints(const KWGuest &guest, const KWGuest &other, int proximity) const;

private:
    const KWGuest *m_left;
    const KWGuest *m_right;
};
