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

constexpr std::array<ColumnFacts, Row::ColumnCount> columns{{
    {40, false, nullptr},
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
    : KWListView(document, parent, QStringLiteral("guests list view"))
{
    languageChange();
    makeColumns();
    setSelectionMode(ExtendedSelection);
    setRootIsDecorated(false);
    setSortingEnabled(true);
    sortByColumn(Row::LastName, Qt::AscendingOrder);
    connectDocument();
    connect(this, &KWListView::itemRenamed, this, &KWGuestsListView::renameInPlace);
    connect(this, &QTreeWidget::itemClicked, this, &KWGuestsListView::clickedOnItem);
}

void KWGuestsListView::languageChange()
{
    setHeaderLabels({QString(), tr("Display name"), tr("Title"), tr("First name"), tr("Last name"),
                     tr("Assigned"), tr("Locked"), tr("VIP"), tr("Accepted"), tr("Meal"),
                     tr("Notes")});
    setToolTip(tr("Guests pane"));
    setWhatsThis(tr("<b>Guests pane</b><br/>Displays individual guests. Click on a column to sort. "
                    "Guests can be dragged to seats or tables in the <b>Schematic</b> or <b>Floor "
                    "Plan</b> planes to assign them. "));
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
    setColumnWidth(column, shown ? columns.at(static_cast<std::size_t>(column)).width : 0);
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
}

void KWGuestsListView::updateOnNewGuest(KWGuest *guest)
{
    if (!isVisible()) {
        setNeedsRefresh(true);
        return;
    }
    if (!guest)
        return;
    auto *row = new Row(this, document(), guest);
    for (int column = 0; column < Row::ColumnCount; ++column)
        row->setRenameEnabled(column, columns.at(static_cast<std::size_t>(column)).value);
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
    for (KWGuest *guest : document()->guests())
        updateOnNewGuest(guest);
    setSortingEnabled(true);
    endUpdateBlock();
    refreshContents();
    setNeedsRefresh(false);
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
    if (!row || !value)
        return;
    KWGuestValues values = row->guest()->values();
    values.*value = text;
    document()->editGuest(row->guest(), values);
    // It may have got another place in the order.
    scrollToRow(item);
}

void KWGuestsListView::clickedOnItem(QTreeWidgetItem *item, int column)
{
    const Row *row = guestRow(item);
    KWMainWindow *window = mainWin();
    if (!row || !window || m_doubleClicking)
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

void KWGuestsListView::find(const QString &text)
{
    if (text.isEmpty() || !KWFindPattern(text).isValid())
        return;
    // Many matches that stay just below their limit are too many.
    const QDeadlineTimer deadline(25);
    Row *row = rowWith(KWFindPattern(u'^' + text), deadline);
    if (!row)
        row = rowWith(KWFindPattern(text), deadline);
    if (!row)
        return;
    selectRow(row);
    setThisViewActive();
}

KWGuestListViewItem *KWGuestsListView::rowWith(const KWFindPattern &pattern,
                                               const QDeadlineTimer &deadline)
{
    for (QTreeWidgetItemIterator it(this); *it && !deadline.hasExpired(); ++it) {
        Row *row = guestRow(*it);
        for (int column = Row::LastName; row && column >= Row::Picture; --column) {
            if (pattern.isIn(row->text(column)))
                return row;
        }
    }
    return nullptr;
}

void KWGuestsListView::selectRow(QTreeWidgetItem *row)
{
    const int left = horizontalScrollBar()->value();
    setCurrentItem(row, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
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
        selectRow(row);
}
