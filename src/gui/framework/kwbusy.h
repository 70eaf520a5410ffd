#pragma once

/// A counted pair around every stretch of work that makes the user wait: the wait cursor is up
/// while the count is above 0, unless another override cursor is already set.
void beginBusy();
void endBusy();

/// A busy stretch that ends with its scope.
class KWBusy
{
public:
    KWBusy() { beginBusy(); }
    ~KWBusy() { endBusy(); }
    KWBusy(const KWBusy &) = delete;
    KWBusy &operator=(const KWBusy &) = delete;
};

/// The plain arrow while it lives: put around a dialog that may come up in a busy stretch.
class KWArrowCursor
{
public:
    KWArrowCursor();
    ~KWArrowCursor();
    KWArrowCursor(const KWArrowCursor &) = delete;
    KWArrowCursor &operator=(const KWArrowCursor &) = delete;
};
