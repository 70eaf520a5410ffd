#include "gui/shell/kwlefttab.h"

#include "gui/appearance/kwpixmaps.h"

#include <QEvent>

KWLeftTab::KWLeftTab(QWidget *parent, KWDocument *document)
    : KWCloseableTabWidget(parent, QStringLiteral("KWLeftTab"))
    , m_guestsPage(new GuestsPage(this, document, false))
{
    addPage(m_guestsPage, KWPixmaps::instance().paneGuests(), QStringLiteral("Guests"),
            tr("Guests"));
}

KWGuestsListView *KWLeftTab::currentList() const
{
    return dynamic_cast<KWGuestsListView *>(currentView());
}

void KWLeftTab::changeEvent(QEvent *event)
{
    KWCloseableTabWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTabText(indexOf(m_guestsPage), tr("Guests"));
}
