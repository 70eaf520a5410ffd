#include "windowchecks.h"

#include "gui/floorplan/kwcanvasview.h"
#include "gui/floorplan/kwfloorplanitem.h"
#include "gui/panes/kwguestlistviewitem.h"
#include "gui/panes/kwguestslistview.h"
#include "gui/shell/kwmainwinimpl.h"
#include "gui/shell/kwstatusbar.h"

#include <QApplication>
#include <QFileInfo>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

using Row = KWGuestListViewItem;

void seatsOf(const KWCanvas &canvas, const KWTable *table, QStringList &faults)
{
    const KWTableCanvasViewItem *item = canvas.itemOfTable(table);
    if (!item) {
        faults.append(u"no item for table "_s + table->name());
        return;
    }
    if (static_cast<int>(item->seatItems().size()) != table->seatCount())
        faults.append(u"table %1 has other seats than its item"_s.arg(table->name()));
    for (int seat = 0; seat < table->seatCount(); ++seat) {
        const KWSeatCanvasViewItem *seatItem = item->seatItem(seat);
        if (!seatItem || seatItem->table() != table || seatItem->seat() != seat)
            faults.append(u"no item for seat %1 of %2"_s.arg(QString::number(seat), table->name()));
        else if (seatItem->guest() != table->guest(seat))
            faults.append(u"somebody else sits on seat %1"_s.arg(seat));
    }
}

QString nameOfTable(const KWDocument &plan, const KWGuest *guest)
{
    KWTable *table = nullptr;
    return plan.findGuest(guest, &table) ? table->name() : QString();
}

void rowAgainstGuest(const Row &row, const KWDocument &plan, QStringList &faults)
{
    const KWGuest *guest = row.guest();
    const QList<std::pair<Row::Column, QString>> wanted{
        {Row::DisplayName, guest->displayName()},
        {Row::Title, guest->title()},
        {Row::FirstName, guest->firstName()},
        {Row::LastName, guest->lastName()},
        {Row::Meal, guest->meal()},
    };
    for (const auto &[column, text] : wanted) {
        if (row.text(column) != text)
            faults.append(u"column %1 of %2 shows \"%3\""_s.arg(
                QString::number(column), guest->displayName(), row.text(column)));
    }
    if (row.text(Row::Assigned).isEmpty() != nameOfTable(plan, guest).isEmpty() &&
        !nameOfTable(plan, guest).isEmpty())
        faults.append(u"the list does not show that %1 sits"_s.arg(guest->displayName()));
    if (!row.text(Row::Assigned).isEmpty() && !plan.findGuest(guest))
        faults.append(u"the list shows a seat of %1"_s.arg(guest->displayName()));
}

/// "m_editUndoAction on checked", one for each command.
QStringList states(const KWMainWinImpl &window)
{
    QStringList states;
    for (const QAction *action : window.findChildren<QAction *>()) {
        if (action->objectName().startsWith(u"m_"_s))
            states.append(action->objectName() + (action->isEnabled() ? u" on"_s : u" off"_s) +
                          (action->isChecked() ? u" checked"_s : QString()));
    }
    return states;
}
} // namespace

QStringList WindowChecks::floorPlan(const KWMainWinImpl &window)
{
    KWCanvas &canvas = *window.findChild<KWCanvasView *>()->canvas();
    const KWDocument &plan = *canvas.document();
    QStringList faults;
    const QList<QGraphicsItem *> items = canvas.items();
    for (const QGraphicsItem *item : items) {
        const auto *table = qgraphicsitem_cast<const KWTableCanvasViewItem *>(item);
        const auto *seat = qgraphicsitem_cast<const KWSeatCanvasViewItem *>(item);
        if (table && plan.indexOfTable(table->table()) < 0)
            faults.append(u"an item of a table that is gone"_s);
        if (seat && plan.indexOfTable(seat->table()) < 0)
            faults.append(u"an item of a seat that is gone"_s);
    }
    if (!faults.isEmpty())
        return faults;
    for (const KWTable *table : plan.tables())
        seatsOf(canvas, table, faults);
    if (canvas.selected() && !items.contains(canvas.selected()))
        faults.append(u"the selected item is gone"_s);
    return faults;
}

QStringList WindowChecks::list(const KWMainWinImpl &window)
{
    auto *list = window.findChild<KWGuestsListView *>();
    const KWDocument &plan = *list->document();
    QStringList faults;
    const bool follows = list->isVisible() && !list->needsRefresh();
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        const auto *row = dynamic_cast<const Row *>(list->topLevelItem(i));
        if (!row || plan.indexOfGuest(row->guest()) < 0)
            faults.append(u"row %1 is of a guest that is gone"_s.arg(i));
        else if (follows)
            rowAgainstGuest(*row, plan, faults);
    }
    if (follows && list->topLevelItemCount() != plan.guestCount())
        faults.append(
            u"%1 rows for %2 guests"_s.arg(list->topLevelItemCount()).arg(plan.guestCount()));
    const QList<QTreeWidgetItem *> selected = list->selectedRows();
    if (QSet<QTreeWidgetItem *>(selected.cbegin(), selected.cend()).size() != selected.size())
        faults.append(u"a selected row counts twice"_s);
    return faults;
}

QStringList WindowChecks::scores(KWMainWinImpl &window)
{
    const KWDocument &plan = *window.document();
    KWDocument fresh(plan);
    for (KWTable *table : fresh.tables())
        table->outdateScores();
    fresh.recalculateScores();
    QStringList faults;
    for (int i = 0; i < plan.tableCount(); ++i) {
        const KWTable &table = *plan.tableAt(i);
        if (table.score() != fresh.tableAt(i)->score())
            faults.append(u"table %1 scores %2 and not %3"_s.arg(table.name())
                              .arg(table.score())
                              .arg(fresh.tableAt(i)->score()));
        if (table.areScoresCurrent() && table.seatScores() != fresh.tableAt(i)->seatScores())
            faults.append(u"the seats of table %1 have other scores"_s.arg(table.name()));
    }
    return faults;
}

QStringList WindowChecks::commands(KWMainWinImpl &window)
{
    const QStringList before = states(window);
    window.updateActionsOnViewChange();
    window.updatePrintAction();
    window.updateCopyAction();
    const QStringList after = states(window);
    QStringList faults;
    for (qsizetype i = 0; i < before.size(); ++i) {
        if (before[i] != after[i])
            faults.append(before[i] + u", fresh: "_s + after[i]);
    }
    const bool hasGuests = window.document()->guestCount() > 0;
    if (window.findChild<QAction *>(u"m_fileAutoLayoutAction"_s)->isEnabled() != hasGuests)
        faults.append(u"the layout does not follow the guests"_s);
    const bool isEmpty = window.document()->isEmpty();
    if (window.findChild<QAction *>(u"m_exportFloorPlanAction"_s)->isEnabled() == isEmpty)
        faults.append(u"the export does not follow the plan"_s);
    return faults;
}

QStringList WindowChecks::rest(KWMainWinImpl &window)
{
    const KWDocument &plan = *window.document();
    QStringList faults;
    if (QApplication::overrideCursor())
        faults.append(u"an override cursor is left"_s);
    if (plan.signalsBlocked())
        faults.append(u"the events of the plan are blocked"_s);
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget())
        faults.append(u"a dialog or menu is left"_s);
    const QString file =
        plan.fileName().isEmpty() ? u"<unsaved>"_s : QFileInfo(plan.fileName()).fileName();
    if (window.windowTitle() != KWMainWindow::productName() + u" - "_s + file)
        faults.append(u"the caption is \"%1\""_s.arg(window.windowTitle()));
    const QString counts = u"Guests: %1 Seats: %2 Score: %3"_s.arg(plan.guestCount())
                               .arg(plan.seatCount())
                               .arg(plan.totalScore());
    bool shown = false;
    for (const QLabel *label : window.findChild<KWStatusBar *>()->findChildren<QLabel *>())
        shown = shown || label->text() == counts;
    if (!shown)
        faults.append(u"the status bar does not show \"%1\""_s.arg(counts));
    auto *view = dynamic_cast<KWView *>(QApplication::focusWidget());
    // A new plan, or one that was opened, has no active view until somebody turns to one.
    if (view && window.activeView() && view != window.activeView())
        faults.append(
            u"%1 has the keys and is not active"_s.arg(QApplication::focusWidget()->objectName()));
    return faults;
}

QStringList WindowChecks::all(KWMainWinImpl &window)
{
    return floorPlan(window) + list(window) + scores(window) + commands(window) + rest(window);
}
