#include "benchplan.h"
#include "gui/framework/kwusersettings.h"
#include "gui/panes/kwguestslistview.h"
#include "gui/panes/kwguestviewfilterimpl.h"
#include "gui/shell/kwlefttab.h"
#include "gui/shell/kwmainwinimpl.h"
#include "gui/shell/kwpanes.h"
#include "openwindow.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>

// The list of guests in the main window. Each takes the number of guests, and ends when all is
// painted.

namespace {

KWGuestsListView &list()
{
    return *openWindow->panes()->leftTab()->guestsView();
}

/// A plan of that many guests, all in the list and painted.
void fill(const benchmark::State &state)
{
    plan().clear();
    plan().blockEvents();
    fillBenchPlan(plan(), static_cast<int>(state.range(0)));
    plan().unblockEvents();
    plan().announceRefresh();
    settle();
}

/// Runs a command of the Edit menu, without a question.
void run(const char *action)
{
    openWindow->setActiveView(&list());
    openWindow->findChild<QAction *>(QLatin1StringView(action))->trigger();
    settle();
}

void showGuestsPane(benchmark::State &state)
{
    fill(state);
    for (auto _ : state) {
        state.PauseTiming();
        list().hide();
        list().setNeedsRefresh(true);
        settle();
        state.ResumeTiming();
        list().show();
        settle();
    }
}
BENCHMARK(showGuestsPane)->Apply(planSizes);

void rebuildGuestsPane(benchmark::State &state)
{
    fill(state);
    for (auto _ : state) {
        plan().announceRefresh();
        settle();
    }
}
BENCHMARK(rebuildGuestsPane)->Apply(planSizes);

void sortGuests(benchmark::State &state)
{
    fill(state);
    int column = 1;
    for (auto _ : state) {
        list().sortByColumn(column, Qt::AscendingOrder);
        settle();
        column = 5 - column;
    }
}
BENCHMARK(sortGuests)->Apply(planSizes);

/// A key in the find box that nothing is found for, in the columns and both passes.
void findKey(benchmark::State &state, const char *text)
{
    fill(state);
    auto *box = openWindow->panes()->leftTab()->guestsFilter()->findChild<QLineEdit *>(
        QStringLiteral("m_findLineEdit"));
    for (auto _ : state) {
        box->setText(QString::fromLatin1(text));
        settle();
        box->setText(QString());
    }
}
BENCHMARK_CAPTURE(findKey, nothing, "qq")->Apply(planSizes);
BENCHMARK_CAPTURE(findKey, exponential, "(.|..)+[#%]$")->Apply(planSizes);

/// Every fourth guest, for 2,000 guests 500.
void deleteGuests(benchmark::State &state)
{
    openWindow->userSettings()->setValue(u"warning/delete_guest", false);
    for (auto _ : state) {
        state.PauseTiming();
        fill(state);
        QItemSelection every;
        for (int row = 0; row < list().topLevelItemCount(); row += 4) {
            const QModelIndex index = list().model()->index(row, 0);
            every.select(index, index);
        }
        list().selectionModel()->select(every, QItemSelectionModel::ClearAndSelect |
                                                   QItemSelectionModel::Rows);
        state.ResumeTiming();
        run("m_editDeleteAction");
    }
}
BENCHMARK(deleteGuests)->Apply(planSizes);

void lockAllGuests(benchmark::State &state)
{
    fill(state);
    list().selectAll();
    for (auto _ : state)
        run("m_editLockAction");
}
BENCHMARK(lockAllGuests)->Apply(planSizes);

void selectAllGuests(benchmark::State &state)
{
    fill(state);
    for (auto _ : state) {
        list().clearSelection();
        list().selectAll();
        list().setThisViewActive();
        settle();
    }
}
BENCHMARK(selectAllGuests)->Apply(planSizes);

/// Every pair of a hundred guests, or of all if there are fewer.
void setProximityOfGuests(benchmark::State &state)
{
    fill(state);
    list().setCurrentItem(list().topLevelItem(0));
    const int last = std::min(100, list().topLevelItemCount()) - 1;
    const QItemSelection first(list().model()->index(0, 0), list().model()->index(last, 10));
    list().selectionModel()->select(first, QItemSelectionModel::ClearAndSelect);
    bool near = false;
    for (auto _ : state) {
        run(near ? "m_editSetAffinityNeutralAction" : "m_editSetAffinityLikesAction");
        near = !near;
    }
}
BENCHMARK(setProximityOfGuests)->Apply(planSizes);

void insertGuest(benchmark::State &state)
{
    fill(state);
    for (auto _ : state) {
        KWGuest *guest = plan().addGuest(
            {.display_name = QStringLiteral("Ann"), .last_name = QStringLiteral("Marlow")},
            nullptr);
        settle();
        state.PauseTiming();
        plan().deleteGuest(guest, false);
        settle();
        state.ResumeTiming();
    }
}
BENCHMARK(insertGuest)->Apply(planSizes);
} // namespace
