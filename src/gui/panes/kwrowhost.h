#pragma once

class QCollator;
class QPoint;

/// What rows ask of the list that they stand in.
class KWRowHost
{
public:
    virtual ~KWRowHost() = default;
    KWRowHost(const KWRowHost &) = delete;
    KWRowHost &operator=(const KWRowHost &) = delete;

    /// How the keys of the rows are sorted.
    virtual const QCollator &collator() const = 0;
    /// Where a context menu belongs, on the screen.
    virtual QPoint menuPosition() const = 0;

protected:
    KWRowHost() = default;
};
