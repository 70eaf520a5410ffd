#include "gui/shell/kwviewcommands.h"

#include "core/model/kwdocument.h"
#include "gui/framework/kwbusy.h"
#include "gui/framework/kwview.h"
#include "gui/panes/kwguestslistview.h"
#include "gui/shell/kwbottomtab.h"
#include "gui/shell/kwcommandguard.h"
#include "gui/shell/kwlefttab.h"
#include "gui/shell/kwpanes.h"
#include "gui/shell/kwtoptab.h"
#include "ui_kwmainwin.h"

#include <numeric>

namespace {

/// The icon of a view's widget for the status bar; null if it has none of its own.
QPixmap iconOf(KWView *view)
{
    const auto *widget = dynamic_cast<QWidget *>(view);
    // A widget without an icon reports its window's.
    if (!widget || !widget->testAttribute(Qt::WA_SetWindowIcon))
        return {};
    return widget->windowIcon().pixmap(QSize(16, 16), widget->devicePixelRatio());
}

/// Changes what an action shows without running its command.
void showChecked(QAction *action, bool checked)
{
    const QSignalBlocker blocker(action);
    action->setChecked(checked);
}
} // namespace

KWViewCommands::KWViewCommands(QObject *parent, Ui::KWMainWin *ui, KWDocument *document,
                               KWPanes *panes, KWCommandGuard *guard)
    : QObject(parent)
    , m_ui(ui)
    , m_document(document)
    , m_panes(panes)
    , m_guard(guard)
{
    connect(guard, &KWCommandGuard::changed, this, &KWViewCommands::updateActionsOnViewChange);
    connect(ui->m_viewLeftPaneAction, &QAction::toggled, this, &KWViewCommands::showLeftPane);
    connect(ui->m_viewTopPaneAction, &QAction::toggled, this, &KWViewCommands::showTopPane);
    connect(ui->m_viewBottomPaneAction, &QAction::toggled, this, &KWViewCommands::showBottomPane);
    connect(ui->m_filePrintAction, &QAction::triggered, this, &KWViewCommands::filePrint);
    connect(ui->m_editCopyAction, &QAction::triggered, this, &KWViewCommands::editCopyToClipboard);
    connect(ui->m_showGuestInPlanAction, &QAction::triggered, this,
            &KWViewCommands::showGuestInPlan);
}

void KWViewCommands::setActiveView(KWView *view)
{
    if (view != m_activeView) {
        m_activeView = view;
        emit activeViewChanged(iconOf(view));
    }
    updateActionsOnViewChange();
}

void KWViewCommands::dropHiddenView()
{
    const auto *widget = dynamic_cast<QWidget *>(m_activeView);
    // Not isVisible(): a pane tells that it goes before what is in it does.
    if (widget && !widget->isVisibleTo(widget->window()))
        setActiveView(nullptr);
}

void KWViewCommands::updateActionsOnViewChange()
{
    KWView *view = m_activeView;
    m_ui->m_editRotateTableAction->setEnabled(view && view->canRotate());
    m_ui->m_editDeleteAction->setEnabled(view && view->canDelete());
    m_ui->m_editPropertiesAction->setEnabled(view && view->canEditProperties());
    m_ui->m_editUnassignSeatAction->setEnabled(view && view->canUnassign());
    m_ui->m_editLockAction->setEnabled(view && view->canSetLocked());
    showChecked(m_ui->m_editLockAction, view && view->isLocked());
    m_ui->m_editAcceptedAction->setEnabled(view && view->canSetAccepted());
    showChecked(m_ui->m_editAcceptedAction, view && view->hasAccepted());
    updateAffinityActions();
    m_ui->m_showGuestInPlanAction->setEnabled(m_panes->canShowGuestInPlan(view));
}

void KWViewCommands::updateAffinityActions()
{
    const bool can = m_activeView && m_activeView->canSetAffinity() && !m_guard->isOff();
    m_ui->m_editSetAffinityActionGroup->setEnabled(can);
    m_ui->m_proximityMenu->setEnabled(can);
    const KWView::AffinityCounts counts =
        can ? m_activeView->affinityCounts() : KWView::AffinityCounts();
    const int pairs = std::accumulate(counts.cbegin(), counts.cend(), 0);
    const QList<QAction *> actions = m_ui->m_editSetAffinityActionGroup->actions();
    for (int i = 0; i < actions.size(); ++i)
        showChecked(actions[i], pairs > 0 && counts.at(static_cast<std::size_t>(i)) == pairs);
}

void KWViewCommands::updatePrintAction()
{
    KWView *view = m_panes->topView();
    const bool can = view && view->canPrint();
    m_ui->m_filePrintAction->setText(can ? tr("Print %1...").arg(m_panes->topLabel())
                                         : tr("Print..."));
    m_ui->m_filePrintAction->setEnabled(can && !m_document->isEmpty());
}

void KWViewCommands::updateCopyAction()
{
    KWView *view = m_panes->topView();
    const bool can = view && view->canCopy();
    m_ui->m_editCopyAction->setText(can ? tr("Copy %1").arg(m_panes->topLabel()) : tr("Copy"));
    m_ui->m_editCopyAction->setEnabled(can && !m_document->isEmpty());
}

void KWViewCommands::showLeftPane(bool on)
{
    if (QWidget *tab = m_panes->leftTab())
        tab->setVisible(on);
}

void KWViewCommands::showTopPane(bool on)
{
    if (QWidget *tab = m_panes->topTab())
        tab->setVisible(on);
}

void KWViewCommands::showBottomPane(bool on)
{
    if (QWidget *tab = m_panes->bottomTab())
        tab->setVisible(on);
}

void KWViewCommands::filePrint()
{
    if (KWView *view = m_panes->topView())
        view->print();
}

void KWViewCommands::editCopyToClipboard()
{
    const KWBusy busy;
    if (KWView *view = m_panes->topView())
        view->copy();
}

void KWViewCommands::showGuestInPlan()
{
    KWGuestsListView *list = m_panes->currentList();
    KWGuest *guest = list ? list->firstSelectedGuest() : nullptr;
    KWView *view = m_panes->topView();
    if (guest && view)
        view->showGuest(guest);
}

void KWViewCommands::refreshAll()
{
    m_document->announceRefresh();
    updateActionsOnViewChange();
}
