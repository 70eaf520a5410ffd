#include "gui/panes/kwguestslistview.h"

#include "core/model/kwdocument.h"
#include "core/model/kwviewsettings.h"
#include "gui/exchange/kwdrag.h"
#include "gui/framework/kwbusy.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"
#include "gui/panes/kwfindpattern.h"
#include "gui/panes/kwguestlistviewitem.h"

#include <QApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>
#include <array>

using Row = KWGuestListViewItem;

namespace {

struct ColumnFacts
{
    int width;
    bool centred;
    /// What is edited in the row; null where nothing is.
    QString KWGuestValues::*value;
};

// The first width is the list's own.
constexpr std::array<ColumnFacts, Row::ColumnCount> columns{{
    {0, false, nullptr},
    {120, false, &KWGuestValues::display_name},
    {40, false, &KWGuestValues::title},
    {80, false, &KWGuestValues::first_name},
    {80, false, &KWGuestValues::last_name},
    {80, false, nullptr},
    {60, true, nullptr},
    {60, true, nullptr},
    {60, true, nullptr},
    {80, false, &KWGuestValues::meal},
    {200, false, nullptr},
}};

Row *guestRow(QTreeWidgetItem *item)
{
    return dynamic_cast<Row *>(item);
}
} // namespace

KWGuestsListView::KWGuestsListView(QWidget *parent, KWDocument *document)
    : KWGuestsListView(
          parent, document,
          {.objectName = "guests list view",
           .context = "KWGuestsListView",
           .accessibleName = QT_TR_NOOP("Guests"),
           .toolTip = QT_TR_NOOP("Guests pane"),
           .whatsThis = QT_TR_NOOP(
               "<b>Guests pane</b><br/>Displays individual guests. Click on a column to sort. "
               "Guests can be dragged to seats or tables in the <b>Schematic</b> or <b>Floor "
               "Plan</b> planes to assign them. "),
           .firstHeader = "",
           .firstWidth = 40})
{
}

KWGuestsListView::KWGuestsListView(QWidget *parent, KWDocument *document, const Look &look)
    : KWListView(document, parent, QString::fromLatin1(look.objectName))
    , m_look(look)
{
    KWGuestsListView::languageChange();
    makeColumns();
    setSelectionMode(ExtendedSelection);
    setRootIsDecorated(false);
    setSortingEnabled(true);
    sortByColumn(Row::LastName, Qt::AscendingOrder);
    connectDocument();
    connect(this, &KWListView::itemRenamed, this, &KWGuestsListView::renameInPlace);
    connect(this, &KWListView::rowClicked, this, &KWGuestsListView::clickedOnItem);
}

void KWGuestsListView::languageChange()
{
    const auto translated = [this](const char *text) {
        return *text ? QCoreApplication::translate(m_look.context, text) : QString();
    };
    setHeaderLabels({translated(m_look.firstHeader), tr("Display name"), tr("Title"),
                     tr("First name"), tr("Last name"), tr("Assigned"), tr("Locked"), tr("VIP"),
                     tr("Accepted"), tr("Meal"), tr("Notes")});
    setAccessibleName(translated(m_look.accessibleName));
    setToolTip(translated(m_look.toolTip));
    setWhatsThis(translated(m_look.whatsThis));
}

void KWGuestsListView::changeEvent(QEvent *event)
{
    KWListView::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        languageChange();
}

void KWGuestsListView::makeColumns()
{
    for (int column = 0; column < Row::ColumnCount; ++column) {
        setColumnShown(column, true);
        if (columns.at(static_cast<std::size_t>(column)).centred)
            headerItem()->setTextAlignment(column, Qt::AlignCenter);
    }
}

void KWGuestsListView::setColumnShown(int column, bool shown)
{
    setColumnWidth(column, shown ? widthOf(column) : 0);
}

int KWGuestsListView::widthOf(int column) const
{
    return column == Row::Picture ? m_look.firstWidth
                                  : columns.at(static_cast<std::size_t>(column)).width;
}

bool KWViewSettings::*KWGuestsListView::shownSetting(int column) const
{
    using Settings = KWViewSettings;
    static constexpr std::array<bool Settings::*, Row::ColumnCount> settings{
        nullptr,
        &Settings::guests_show_display_name,
        &Settings::guests_show_title,
        &Settings::guests_show_first_name,
        &Settings::guests_show_last_name,
        &Settings::guests_show_assigned,
        &Settings::guests_show_locked,
        &Settings::guests_show_vip,
        &Settings::guests_show_accepted,
        &Settings::guests_show_meal,
        &Settings::guests_show_notes,
    };
    return settings.at(static_cast<std::size_t>(column));
}

void KWGuestsListView::connectDocument()
{
    using List = KWGuestsListView;
    connect(document(), &KWDocument::eventNewGuest, this, &List::updateOnNewGuest);
    connect(document(), &KWDocument::eventBeforeDeleteGuest, this, &List::updateOnDeleteGuest);
    connect(document(), &KWDocument::eventEditGuest, this, &List::updateOnEditGuest);
    connect(document(), &KWDocument::eventEditTable, this, &List::updateOnEditTable);
    connect(document(), &KWDocument::eventRefresh, this, &List::updateOnRefresh);
    connect(document(), &KWDocument::eventSimpleAutoLayout, this, &List::updateOnRefresh);
    connect(document(), &KWDocument::eventClear, this, &List::updateOnClear);
    // Its end replaces the guests, and tells of it later.
    connect(document(), &KWDocument::eventPrepareAutoLayout, this, [this] { dropEdit(); });
}

void KWGuestsListView::updateOnNewGuest(KWGuest *guest)
{
    if (!isVisible()) {
        setNeedsRefresh(true);
        return;
    }
    if (guest)
        addRow(guest);
}

KWGuestListViewItem *KWGuestsListView::addRow(KWGuest *guest, QTreeWidgetItem *parent)
{
    Row *row = parent ? new Row(parent, document(), guest) : new Row(this, document(), guest);
    for (int column = 0; column < Row::ColumnCount; ++column)
        row->setRenameEnabled(column, columns.at(static_cast<std::size_t>(column)).value);
    return row;
}

void KWGuestsListView::updateOnDeleteGuest(KWGuest *guest)
{
    if (!isVisible())
        setNeedsRefresh(true);
    // Hidden or not: commands still reach a hidden list, and a row must not outlive its guest.
    delete itemOfGuest(guest);
}

void KWGuestsListView::updateOnEditGuest(KWGuest *guest)
{
    if (!isVisible())
        setNeedsRefresh(true);
    else if (Row *row = itemOfGuest(guest))
        row->update();
}

void KWGuestsListView::updateOnEditTable(KWTable *table)
{
    if (!isVisible()) {
        setNeedsRefresh(true);
        return;
    }
    for (int seat = 0; seat < table->seatCount(); ++seat) {
        KWGuest *guest = nullptr;
        if (document()->guestAtSeat(table, seat, &guest))
            updateOnEditGuest(guest);
    }
}

void KWGuestsListView::updateOnClear()
{
    if (!isVisible())
        setNeedsRefresh(true);
    clear();
}

void KWGuestsListView::updateOnRefresh()
{
    if (!isVisible()) {
        // The guests may be other objects now.
        clear();
        setNeedsRefresh(true);
        return;
    }
    const KWBusy busy;
    beginUpdateBlock();
    clear();
    // Sorting once is enough.
    setSortingEnabled(false);
    addAllRows();
    setSortingEnabled(true);
    endUpdateBlock();
    refreshContents();
    setNeedsRefresh(false);
}

void KWGuestsListView::addAllRows()
{
    for (KWGuest *guest : document()->guests())
        updateOnNewGuest(guest);
}

void KWGuestsListView::showEvent(QShowEvent *event)
{
    KWListView::showEvent(event);
    if (needsRefresh())
        updateOnRefresh();
}

KWGuestListViewItem *KWGuestsListView::itemOfGuest(const KWGuest *guest)
{
    for (QTreeWidgetItemIterator it(this); *it; ++it) {
        Row *row = guestRow(*it);
        if (row && row->guest() == guest)
            return row;
    }
    return nullptr;
}

void KWGuestsListView::renameInPlace(QTreeWidgetItem *item, int column, const QString &text)
{
    const Row *row = guestRow(item);
    const auto value = columns.at(static_cast<std::size_t>(column)).value;
    // Rows may wait for the news that their guests are gone.
    if (!row || !value || !document()->guests().contains(row->guest()))
        return;
    KWGuestValues values = row->guest()->values();
    values.*value = text;
    document()->editGuest(row->guest(), values);
    tellOfDisplayName(values, column);
    // It may have got another place in the order.
    scrollToRow(item);
}

// A name that is corrected here stays wrong wherever the display name is shown.
void KWGuestsListView::tellOfDisplayName(const KWGuestValues &values, int column)
{
    if (column != Row::Title && column != Row::FirstName && column != Row::LastName)
        return;
    const QString &part = values.*columns.at(static_cast<std::size_t>(column)).value;
    const bool stands = !part.isEmpty() && values.display_name.contains(part);
    KWMainWindow *window = mainWin();
    if (window && !stands)
        window->showStatusMessage(tr("The display name is still '%1'").arg(values.display_name));
}

void KWGuestsListView::clickedOnItem(QTreeWidgetItem *item, int column)
{
    const Row *row = guestRow(item);
    KWMainWindow *window = mainWin();
    if (!row || !window)
        return;
    const KWBusy busy;
    KWGuest *guest = row->guest();
    switch (column) {
    case Row::Locked:
        window->saveUndoState(guest->isLocked() ? tr("Unlock") : tr("Lock"));
        document()->setGuestLocked(guest, !guest->isLocked());
        break;
    case Row::Vip:
        window->saveUndoState(guest->isVip() ? tr("not VIP") : tr("VIP"));
        document()->setGuestVip(guest, !guest->isVip());
        break;
    case Row::Accepted:
        window->saveUndoState(guest->isAccepted() ? tr("Set not accepted") : tr("Set accepted"));
        document()->setGuestAccepted(guest, !guest->isAccepted());
        break;
    default:
        return;
    }
    window->updateActionsOnViewChange();
}

void KWGuestsListView::edit(QTreeWidgetItem *item)
{
    const Row *row = guestRow(item);
    KWMainWindow *window = mainWin();
    if (row && window)
        window->editGuest(row->guest());
}

void KWGuestsListView::mouseMoveEvent(QMouseEvent *event)
{
    // A left press means a drag, so the base must not take the move for a selection.
    if (!(event->buttons() & Qt::LeftButton)) {
        m_dragArmed = false;
        KWListView::mouseMoveEvent(event);
    }
    if (!m_dragArmed)
        return;
    const QPoint way = event->position().toPoint() - m_pressPos;
    if (way.manhattanLength() > QApplication::startDragDistance())
        dragSelectedGuests();
}

void KWGuestsListView::dragSelectedGuests()
{
    const QList<KWGuest *> guests = selectedGuests();
    if (guests.isEmpty())
        return;
    m_dragArmed = false;
    for (const KWGuest *guest : guests) {
        if (guest->isLocked()) {
            errorBox(tr("Guest '%1' is locked").arg(guest->displayName()), tr("&OK"));
            return;
        }
    }
    runDrag(new KWDrag(document(), guests, viewport()));
}

bool KWGuestsListView::find(const QString &text)
{
    if (text.isEmpty() || !KWFindPattern(text).isValid())
        return false;
    return selectFirst(KWFindPattern(u'^' + text)) || selectFirst(KWFindPattern(text));
}

bool KWGuestsListView::findNext(const QString &text, bool above)
{
    if (text.isEmpty())
        return false;
    KWFindPattern pattern(text);
    QList<QTreeWidgetItem *> rows;
    for (QTreeWidgetItemIterator it(this); *it; ++it)
        rows.append(*it);
    if (above)
        std::reverse(rows.begin(), rows.end());
    // The one behind the current row comes first, and that row last.
    const auto behind = std::find(rows.begin(), rows.end(), currentItem());
    if (behind != rows.end())
        std::rotate(rows.begin(), behind + 1, rows.end());
    for (QTreeWidgetItem *row : rows) {
        const int column = columnWith(pattern, row);
        if (column >= 0) {
            selectRow(row, column);
            setThisViewActive();
            return true;
        }
    }
    return false;
}

bool KWGuestsListView::selectFirst(KWFindPattern pattern)
{
    for (QTreeWidgetItemIterator it(this); *it; ++it) {
        const int column = columnWith(pattern, *it);
        if (column >= 0) {
            selectRow(*it, column);
            setThisViewActive();
            return true;
        }
    }
    return false;
}

int KWGuestsListView::columnWith(KWFindPattern &pattern, QTreeWidgetItem *row)
{
    int column = Row::LastName;
    while (column >= Row::Picture && !pattern.isIn(row->text(column)))
        --column;
    return column;
}

void KWGuestsListView::selectRow(QTreeWidgetItem *row, int column)
{
    const int left = horizontalScrollBar()->value();
    setCurrentItem(row, column, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    horizontalScrollBar()->setValue(left);
    scrollToRow(row);
}

// Up and down only.
void KWGuestsListView::scrollToRow(QTreeWidgetItem *row)
{
    const int left = horizontalScrollBar()->value();
    scrollToItem(row);
    horizontalScrollBar()->setValue(left);
}

void KWGuestsListView::showGuest(KWGuest *guest)
{
    if (Row *row = itemOfGuest(guest))
        selectRow(row, Row::DisplayName);
}
