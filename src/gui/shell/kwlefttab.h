#pragma once

#include "gui/framework/kwcloseabletabwidget.h"
#include "gui/framework/kwviewandfilter.h"
#include "gui/panes/kwguestslistview.h"
#include "gui/panes/kwguestviewfilterimpl.h"

/// The pane to the left, for the lists of guests and of groups.
class KWLeftTab : public KWCloseableTabWidget
{
    Q_OBJECT

public:
    using GuestsPage = KWViewAndFilter<KWGuestsListView, KWGuestViewFilterImpl>;

    KWLeftTab(QWidget *parent, KWDocument *document);

    GuestsPage *guestsPage() const { return m_guestsPage; }
    KWGuestsListView *guestsView() const { return m_guestsPage->view(); }
    KWGuestViewFilterImpl *guestsFilter() const { return m_guestsPage->filter(); }
    /// The list on the current page, or null.
    KWGuestsListView *currentList() const;

private:
    GuestsPage *m_guestsPage;
};
