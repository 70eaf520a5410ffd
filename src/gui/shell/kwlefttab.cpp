#include "gui/shell/kwlefttab.h"

#include "gui/appearance/kwpixmaps.h"

KWLeftTab::KWLeftTab(QWidget *parent, KWDocument *document)
    : KWCloseableTabWidget(parent, QStringLiteral("KWLeftTab"),
                           {QT_TR_NOOP("Left pane"), QT_TR_NOOP("Hide left pane")})
    , m_guestsPage(new GuestsPage(this, document, false))
{
    addPage(m_guestsPage, KWPixmaps::instance().paneGuests(), QT_TR_NOOP("Guests"));
}

KWGuestsListView *KWLeftTab::currentList() const
{
    return dynamic_cast<KWGuestsListView *>(currentView());
}
