#pragma once

#include <array>

class KWDocument;
class KWGuest;

/// What every pane of a plan answers to the main window: the second base of each view, beside its
/// widget base. To get from the one to the other takes a dynamic_cast. Whoever asks an operation
/// of a view has asked its can...() before. A view overrides what it takes part in.
class KWView
{
public:
    /// `document` stays the caller's and outlives the view.
    explicit KWView(KWDocument *document);
    virtual ~KWView();
    KWView(const KWView &) = delete;
    KWView &operator=(const KWView &) = delete;

    KWDocument *document() const { return m_document; }

    /// Deletes what is selected, after the view's own question.
    virtual void deleteSelection() {}
    virtual void editProperties() {}
    /// Takes the selected guests off their seats.
    virtual void unassign() {}
    virtual void print() {}
    virtual void copy() {}
    /// Turns the selected table one step clockwise.
    virtual void rotate() {}
    /// Sets the proximity among the selected guests: 0 next to, 1 near to, 2 neutral, 3 not next
    /// to, 4 not near to.
    virtual void setAffinity(int) {}
    virtual bool canDelete() { return false; }
    virtual bool canEditProperties() { return false; }
    virtual bool canUnassign() { return false; }
    virtual void setLocked(bool) {}
    virtual bool canSetLocked() { return false; }
    /// Whether the selection counts as locked, for the check mark.
    virtual bool isLocked() { return false; }
    virtual void setAccepted(bool) {}
    virtual bool canSetAccepted() { return false; }
    /// Whether the selection counts as accepted, for the check mark.
    virtual bool hasAccepted() { return false; }
    virtual bool canPrint() { return false; }
    virtual bool canCopy() { return false; }
    virtual bool canSetAffinity() { return false; }
    virtual bool canRotate() { return false; }

    /// Whether the view skipped an update while it was not visible and has to rebuild itself when
    /// it is shown.
    virtual bool needsRefresh() { return m_needsRefresh; }
    virtual void setNeedsRefresh(bool needed) { m_needsRefresh = needed; }

    /// Selects the guest's place in this view and brings it into sight.
    virtual void showGuest(KWGuest *) {}
    virtual void markModified();

    /// A counted pair: while it is open, the view's widget does not repaint.
    virtual void beginUpdateBlock();
    virtual void endUpdateBlock();

    /// How many pairs of the selected guests have each of the five proximities.
    using AffinityCounts = std::array<int, 5>;
    virtual AffinityCounts affinityCounts() { return {}; }
    /// Whether showGuest() shows guests at their seats.
    virtual bool showsSeats() const { return false; }

private:
    void applyUpdateBlock();

    KWDocument *m_document;
    bool m_needsRefresh = false;
    int m_updateBlock = 0;
};

/// An update block that ends with its scope. The view, which may be null, outlives it.
class KWUpdateBlock
{
public:
    explicit KWUpdateBlock(KWView *view)
        : m_view(view)
    {
        if (m_view)
            m_view->beginUpdateBlock();
    }
    ~KWUpdateBlock()
    {
        if (m_view)
            m_view->endUpdateBlock();
    }
    KWUpdateBlock(const KWUpdateBlock &) = delete;
    KWUpdateBlock &operator=(const KWUpdateBlock &) = delete;

private:
    KWView *m_view;
};
