#include "gui/shell/kweditcommands.h"

#include "core/model/kwdocument.h"
#include "gui/framework/kwbusy.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwview.h"
#include "gui/shell/kwpanes.h"
#include "ui_kwmainwin.h"

#include <QScopeGuard>

#include <numeric>

KWEditCommands::KWEditCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window,
                               KWPanes *panes)
    : QObject(parent)
    , m_ui(ui)
    , m_window(window)
    , m_panes(panes)
{
    using Commands = KWEditCommands;
    const auto bind = [this](QAction *action, void (Commands::*slot)()) {
        connect(action, &QAction::triggered, this, slot);
    };
    bind(ui->m_editUndoAction, &Commands::editUndo);
    bind(ui->m_editRedoAction, &Commands::editRedo);
    bind(ui->m_editDeleteAction, &Commands::editDelete);
    bind(ui->m_editPropertiesAction, &Commands::editProperties);
    bind(ui->m_editUnassignSeatAction, &Commands::editUnassignSeat);
    bind(ui->m_editRotateTableAction, &Commands::editRotateTable);
    bind(ui->m_editSetAffinityLovesAction, &Commands::editSetAffinityLoves);
    bind(ui->m_editSetAffinityLikesAction, &Commands::editSetAffinityLikes);
    bind(ui->m_editSetAffinityNeutralAction, &Commands::editSetAffinityNeutral);
    bind(ui->m_editSetAffinityDislikesAction, &Commands::editSetAffinityDislikes);
    bind(ui->m_editSetAffinityHatesAction, &Commands::editSetAffinityHates);
    connect(ui->m_editLockAction, &QAction::toggled, this, &Commands::editToggleLock);
    connect(ui->m_editAcceptedAction, &QAction::toggled, this, &Commands::editToggleHasAccepted);
}

void KWEditCommands::saveUndoState(const QString &label)
{
    // Without memory for it, what could be undone before still can be.
    auto plan = std::make_shared<KWDocument>();
    *plan = *m_window->document();
    m_points = {label, std::move(plan), nullptr};
    updateUndoActions();
}

void KWEditCommands::change(const QString &label, const std::function<void()> &act)
{
    const KWDocument &plan = *m_window->document();
    const auto before = m_points;
    saveUndoState(label);
    const Plan start = m_points.undo;
    bool isTold = false;
    const auto note =
        connect(&plan, &KWDocument::eventModified, this, [&isTold] { isTold = true; });
    // Also behind an exception.
    const auto end = qScopeGuard([&] {
        disconnect(note);
        if (isTold && plan.toPlanText({}) != start->toPlanText({}))
            return;
        m_points = before;
        updateUndoActions();
    });
    act();
}

void KWEditCommands::clearUndoStates()
{
    m_points.undo.reset();
    m_points.redo.reset();
    updateUndoActions();
}

void KWEditCommands::updateUndoActions()
{
    const auto &[label, undo, redo] = m_points;
    m_ui->m_editUndoAction->setEnabled(undo != nullptr);
    m_ui->m_editUndoAction->setText(undo ? tr("&Undo %1").arg(label) : tr("&Undo"));
    m_ui->m_editRedoAction->setEnabled(redo != nullptr);
    m_ui->m_editRedoAction->setText(redo ? tr("&Redo %1").arg(label) : tr("&Redo"));
}

void KWEditCommands::planSaved()
{
    for (const Plan &plan : {m_points.undo, m_points.redo}) {
        if (!plan)
            continue;
        plan->setFileName(m_window->document()->fileName());
        plan->setModified(true);
    }
}

void KWEditCommands::editUndo()
{
    swapPlans(m_points.undo, m_points.redo);
}

void KWEditCommands::editRedo()
{
    swapPlans(m_points.redo, m_points.undo);
}

void KWEditCommands::swapPlans(Plan &source, Plan &target)
{
    if (!source)
        return;
    const KWBusy busy;
    KWDocument *plan = m_window->document();
    // The views let go of objects that are about to go.
    plan->announceClear();
    target = std::make_shared<KWDocument>();
    *target = *plan;
    *plan = *source;
    source.reset();
    plan->announceRefresh();
    plan->recalculateScores();
    m_panes->refreshFloorPlan();
    updateUndoActions();
    m_window->updateActionsOnViewChange();
    emit planExchanged();
}

void KWEditCommands::editDelete()
{
    KWView *active = m_window->activeView();
    if (!active)
        return;
    const KWBusy busy;
    const QList<KWView *> views = m_panes->views();
    for (KWView *view : views)
        view->beginUpdateBlock();
    // Before the view asks whether it may.
    change(tr("Delete"), [active] { active->deleteSelection(); });
    for (KWView *view : views) {
        view->endUpdateBlock();
        if (auto *widget = dynamic_cast<QWidget *>(view))
            widget->update();
    }
    m_window->updateActionsOnViewChange();
}

void KWEditCommands::editProperties()
{
    if (KWView *active = m_window->activeView())
        active->editProperties();
}

void KWEditCommands::editUnassignSeat()
{
    KWView *active = m_window->activeView();
    if (!active)
        return;
    const KWBusy busy;
    change(tr("Unassign"), [active] { active->unassign(); });
    m_window->updateActionsOnViewChange();
}

void KWEditCommands::editRotateTable()
{
    if (KWView *active = m_window->activeView())
        change(tr("Rotate"), [active] { active->rotate(); });
}

void KWEditCommands::editToggleLock(bool on)
{
    KWView *active = m_window->activeView();
    if (!active)
        return;
    const KWBusy busy;
    change(on ? tr("Lock") : tr("Unlock"), [active, on] { active->setLocked(on); });
    m_window->updateActionsOnViewChange();
}

void KWEditCommands::editToggleHasAccepted(bool on)
{
    KWView *active = m_window->activeView();
    if (!active)
        return;
    const KWBusy busy;
    change(on ? tr("Set accepted") : tr("Set not accepted"),
           [active, on] { active->setAccepted(on); });
    m_window->updateActionsOnViewChange();
}

void KWEditCommands::setAffinity(int value)
{
    if (KWView *active = m_window->activeView()) {
        const KWBusy busy;
        const KWView::AffinityCounts before = active->affinityCounts();
        const int pairs = std::accumulate(before.cbegin(), before.cend(), 0);
        if (pairs == 0 || before.at(static_cast<std::size_t>(value)) != pairs)
            change(tr("Proximity"), [active, value] { active->setAffinity(value); });
        tellAffinity(value, before);
    }
    // The click has changed the check mark by itself.
    m_window->updateActionsOnViewChange();
}

void KWEditCommands::tellAffinity(int value, const KWView::AffinityCounts &before)
{
    const QList<QAction *> proximities = m_ui->m_editSetAffinityActionGroup->actions();
    const int pairs = std::accumulate(before.cbegin(), before.cend(), 0);
    if (pairs == 0)
        return;
    QStringList parts;
    const QString name = proximities.at(value)->iconText();
    parts.append(pairs == 1 ? tr("%1: 1 pair").arg(name)
                            : tr("%1: %2 pairs").arg(name, QString::number(pairs)));
    for (int other = 0; other < proximities.size(); ++other) {
        const int count = before.at(static_cast<std::size_t>(other));
        if (other == value || other == KWScore::Neutral || count == 0)
            continue;
        const QString otherName = proximities.at(other)->iconText();
        if (pairs == 1)
            parts.append(tr("which was %1").arg(otherName));
        else if (count == 1)
            parts.append(tr("1 of them was %1").arg(otherName));
        else
            parts.append(tr("%1 of them were %2").arg(QString::number(count), otherName));
    }
    m_window->showStatusMessage(parts.join(tr(", ")));
}
