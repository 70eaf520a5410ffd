#include "gui/shell/kweditcommands.h"

#include "core/model/kwdocument.h"
#include "gui/framework/kwbusy.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwview.h"
#include "gui/shell/kwpanes.h"
#include "ui_kwmainwin.h"

KWEditCommands::KWEditCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window,
                               KWPanes *panes)
    : QObject(parent)
    , m_ui(ui)
    , m_window(window)
    , m_panes(panes)
{
    using Commands = KWEditCommands;
    connect(ui->m_editUndoAction, &QAction::triggered, this, &Commands::editUndo);
    connect(ui->m_editRedoAction, &QAction::triggered, this, &Commands::editRedo);
    connect(ui->m_editDeleteAction, &QAction::triggered, this, &Commands::editDelete);
    connect(ui->m_editPropertiesAction, &QAction::triggered, this, &Commands::editProperties);
    connect(ui->m_editUnassignSeatAction, &QAction::triggered, this, &Commands::editUnassignSeat);
    connect(ui->m_editRotateTableAction, &QAction::triggered, this, &Commands::editRotateTable);
    connect(ui->m_editLockAction, &QAction::toggled, this, &Commands::editToggleLock);
    connect(ui->m_editAcceptedAction, &QAction::toggled, this, &Commands::editToggleHasAccepted);
    connect(ui->m_editSetAffinityLovesAction, &QAction::triggered, this,
            &Commands::editSetAffinityLoves);
    connect(ui->m_editSetAffinityLikesAction, &QAction::triggered, this,
            &Commands::editSetAffinityLikes);
    connect(ui->m_editSetAffinityNeutralAction, &QAction::triggered, this,
            &Commands::editSetAffinityNeutral);
    connect(ui->m_editSetAffinityDislikesAction, &QAction::triggered, this,
            &Commands::editSetAffinityDislikes);
    connect(ui->m_editSetAffinityHatesAction, &QAction::triggered, this,
            &Commands::editSetAffinityHates);
}

KWEditCommands::~KWEditCommands() = default;

void KWEditCommands::saveUndoState(const QString &label)
{
    // Without memory for it, what could be undone before still can be.
    auto plan = std::make_unique<KWDocument>();
    *plan = *m_window->document();
    m_undoDocument = std::move(plan);
    m_redoDocument.reset();
    m_undoLabel = label;
    updateUndoActions();
}

void KWEditCommands::clearUndoStates()
{
    m_undoDocument.reset();
    m_redoDocument.reset();
    updateUndoActions();
}

void KWEditCommands::updateUndoActions()
{
    m_ui->m_editUndoAction->setEnabled(m_undoDocument != nullptr);
    m_ui->m_editUndoAction->setText(m_undoDocument ? tr("&Undo %1").arg(m_undoLabel) : tr("&Undo"));
    m_ui->m_editRedoAction->setEnabled(m_redoDocument != nullptr);
    m_ui->m_editRedoAction->setText(m_redoDocument ? tr("&Redo %1").arg(m_undoLabel) : tr("&Redo"));
}

void KWEditCommands::markUndoStatesModified()
{
    for (KWDocument *plan : {m_undoDocument.get(), m_redoDocument.get()}) {
        if (plan)
            plan->setModified(true);
    }
}

void KWEditCommands::editUndo()
{
    swapPlans(m_undoDocument, m_redoDocument);
}

void KWEditCommands::editRedo()
{
    swapPlans(m_redoDocument, m_undoDocument);
}

void KWEditCommands::swapPlans(std::unique_ptr<KWDocument> &source,
                               std::unique_ptr<KWDocument> &target)
{
    const KWBusy busy;
    KWDocument *plan = m_window->document();
    // The views let go of objects that are about to go.
    plan->announceClear();
    if (!target)
        target = std::make_unique<KWDocument>();
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
    const QList<KWView *> views = m_panes->viewsToBlock();
    for (KWView *view : views)
        view->beginUpdateBlock();
    // Before the view asks whether it may: a refusal has still used up the undo level.
    saveUndoState(tr("Delete"));
    active->deleteSelection();
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
    saveUndoState(tr("Unassign"));
    active->unassign();
    m_window->updateActionsOnViewChange();
}

void KWEditCommands::editRotateTable()
{
    KWView *active = m_window->activeView();
    if (!active)
        return;
    saveUndoState(tr("Rotate"));
    active->rotate();
}

void KWEditCommands::editToggleLock(bool on)
{
    KWView *active = m_window->activeView();
    if (!active)
        return;
    const KWBusy busy;
    saveUndoState(on ? tr("Lock") : tr("Unlock"));
    active->setLocked(on);
    m_window->updateActionsOnViewChange();
}

void KWEditCommands::editToggleHasAccepted(bool on)
{
    KWView *active = m_window->activeView();
    if (!active)
        return;
    const KWBusy busy;
    saveUndoState(on ? tr("Set accepted") : tr("Set not accepted"));
    active->setAccepted(on);
    m_window->updateActionsOnViewChange();
}

void KWEditCommands::setAffinity(int value)
{
    // A check mark would claim a proximity that the selected guests may not have.
    for (QAction *action : m_ui->m_editSetAffinityActionGroup->actions())
        action->setChecked(false);
    KWView *active = m_window->activeView();
    if (!active)
        return;
    const KWBusy busy;
    saveUndoState(tr("Proximity"));
    active->setAffinity(value);
}
