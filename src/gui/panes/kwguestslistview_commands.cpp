// What the commands of the Edit menu do with the selected guests.

#include "gui/panes/kwguestslistview.h"

#include "core/model/kwdocument.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"
#include "gui/framework/kwprogress.h"
#include "gui/panes/kwguestlistviewitem.h"

#include <QSet>

#include <algorithm>

QList<KWGuest *> KWGuestsListView::guestsOf(QTreeWidgetItem *row) const
{
    const auto *guestRow = dynamic_cast<KWGuestListViewItem *>(row);
    return guestRow ? QList<KWGuest *>{guestRow->guest()} : QList<KWGuest *>();
}

QList<KWGuest *> KWGuestsListView::selectedGuests() const
{
    QList<KWGuest *> guests;
    QSet<KWGuest *> known;
    for (QTreeWidgetItem *row : selectedRows()) {
        for (KWGuest *guest : guestsOf(row)) {
            if (!known.contains(guest))
                guests.append(guest);
            known.insert(guest);
        }
    }
    return guests;
}

bool KWGuestsListView::onlyGuestsSelected() const
{
    const QList<QTreeWidgetItem *> rows = selectedRows();
    return !rows.isEmpty() &&
           std::none_of(rows.cbegin(), rows.cend(),
                        [this](QTreeWidgetItem *row) { return guestsOf(row).isEmpty(); });
}

KWGuest *KWGuestsListView::firstSelectedGuest()
{
    for (QTreeWidgetItem *item : selectedRows()) {
        if (const auto *row = dynamic_cast<KWGuestListViewItem *>(item))
            return row->guest();
    }
    return nullptr;
}

void KWGuestsListView::deleteSelection()
{
    KWMainWindow *window = mainWin();
    if (!window ||
        configurableWarning(window->userSettings(), QStringLiteral("warning/delete_guest"),
                            tr("Delete guest(s)?")) != 0)
        return;
    const QList<KWGuest *> guests = selectedGuests();
    // Or each row that goes would leave the selection by itself.
    clearSelection();
    for (KWGuest *guest : guests)
        document()->deleteGuest(guest, false);
    document()->recalculateScores();
}

void KWGuestsListView::unassign()
{
    for (KWGuest *guest : selectedGuests())
        document()->unassignGuest(guest, false);
    document()->recalculateScores();
}

void KWGuestsListView::setAffinity(int value)
{
    // So many that the user waits for the square of them.
    constexpr int many = 200;
    const QList<KWGuest *> guests = selectedGuests();
    const int count = static_cast<int>(guests.size());
    for (int i = 0; i < count; ++i) {
        for (KWGuest *other : guests) {
            if (other != guests[i])
                document()->setAffinity(guests[i], other, value, false);
        }
        if (count > many)
            setProgress(i + 1, count);
    }
    document()->recalculateScores();
}

// By what the plan has stored, which is less than the square of a selection.
KWView::AffinityCounts KWGuestsListView::affinityCounts()
{
    const QList<KWGuest *> guests = selectedGuests();
    const QSet<const KWGuest *> selected(guests.cbegin(), guests.cend());
    AffinityCounts counts{};
    auto neutral = static_cast<int>(selected.size() * (selected.size() - 1) / 2);
    for (const KWDocument::Affinity &wish : document()->affinities()) {
        if (selected.contains(wish.first) && selected.contains(wish.second)) {
            ++counts.at(static_cast<std::size_t>(wish.value));
            --neutral;
        }
    }
    counts.at(KWScore::Neutral) = neutral;
    return counts;
}

bool KWGuestsListView::canDelete()
{
    return onlyGuestsSelected();
}

bool KWGuestsListView::canEditProperties()
{
    return numSelected() == 1;
}

bool KWGuestsListView::canUnassign()
{
    const QList<KWGuest *> guests = selectedGuests();
    return onlyGuestsSelected() &&
           std::all_of(guests.cbegin(), guests.cend(), [this](const KWGuest *guest) {
               return document()->findGuest(guest) && !guest->isLocked();
           });
}

void KWGuestsListView::setLocked(bool locked)
{
    for (KWGuest *guest : selectedGuests())
        document()->setGuestLocked(guest, locked);
}

bool KWGuestsListView::canSetLocked()
{
    return onlyGuestsSelected();
}

bool KWGuestsListView::isLocked()
{
    const KWGuest *guest = firstSelectedGuest();
    return guest && guest->isLocked();
}

void KWGuestsListView::setAccepted(bool accepted)
{
    for (KWGuest *guest : selectedGuests())
        document()->setGuestAccepted(guest, accepted);
}

bool KWGuestsListView::canSetAccepted()
{
    return firstSelectedGuest() != nullptr;
}

bool KWGuestsListView::hasAccepted()
{
    const KWGuest *guest = firstSelectedGuest();
    return guest && guest->isAccepted();
}

bool KWGuestsListView::canSetAffinity()
{
    return selectedGuests().size() >= 2;
}
