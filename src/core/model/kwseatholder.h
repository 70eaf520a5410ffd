#pragma once

#include "core/model/kwobject.h"

/// What a guest knows of the table where they sit: that the seat can be left, and that scores hang
/// on who sits there. It keeps KWGuest free of KWTable, the only one of its kind.
class KWSeatHolder : public KWObject
{
public:
    /// Whoever sits on the seat is unseated.
    virtual void emptySeat(int seat) = 0;

    /// True while nothing that the scores depend on has changed since they were set.
    bool areScoresCurrent() const { return m_scores_current; }
    /// For whoever changes what the scores depend on; the table sees to its own seats and shape.
    void outdateScores() { m_scores_current = false; }

protected:
    explicit KWSeatHolder(const QString &notes)
        : KWObject(notes)
    {
    }
    /// Nobody sits on the seats of a copy yet.
    KWSeatHolder(const KWSeatHolder &other)
        : KWObject(other)
    {
    }

    void markScoresCurrent() { m_scores_current = true; }

private:
    bool m_scores_current = false;
};
