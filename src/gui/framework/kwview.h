#pragma once

class KWDocument;
class KWGuest;

/// What every pane of a plan answers to the main window: the second base of each view, beside its
/// widget base. To get from the one to the other takes a dynamic_cast. Whoever asks an operation
/// of a view has asked its can...() before.
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
    virtual void deleteSelection() = 0;
    virtual void editProperties() = 0;
    /// Takes the selected guests off their seats.
    virtual void unassign() = 0;
    virtual void print() = 0;
    virtual void copy() = 0;
    /// Turns the selected table one step clockwise.
    virtual void rotate() = 0;
    /// Sets the proximity among the selected guests: 0 next to, 1 near to, 2 neutral, 3 not next
    /// to, 4 not near to.
    virtual void setAffinity(int value) = 0;
    virtual bool canDelete() = 0;
    virtual bool canEditProperties() = 0;
    virtual bool canUnassign() = 0;
    virtual void setLocked(bool locked) = 0;
    virtual bool canSetLocked() = 0;
    /// Whether the selection counts as locked, for the check mark.
    virtual bool isLocked() = 0;
    virtual void setAccepted(bool accepted) = 0;
    virtual bool canSetAccepted() = 0;
    /// Whether the selection counts as accepted, for the check mark.
    virtual bool hasAccepted() = 0;
    virtual bool canPrint() = 0;
    virtual bool canCopy() = 0;
    virtual bool canSetAffinity() = 0;
    virtual bool canRotate() = 0;

    /// Whether the view skipped an update while it was not visible and has to rebuild itself when
    /// it is shown.
    virtual bool needsRefresh() { return m_needsRefresh; }
    virtual void setNeedsRefresh(bool needed) { m_needsRefresh = needed; }

    /// Selects the guest's place in this view and brings it into sight.
    virtual void showGuest(KWGuest *guest) = 0;
    virtual void markModified();

    /// A counted pair: while it is open, the view's widget does not repaint.
    virtual void beginUpdateBlock();
    virtual void endUpdateBlock();

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
