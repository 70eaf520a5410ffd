#include "gui/shell/kwlayoutcommands.h"

#include "core/model/kwdocument.h"
#include "gui/dialogs/kwautolayoutprogressdlgimpl.h"
#include "gui/framework/kwbusy.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"
#include "gui/shell/kwcommandguard.h"
#include "gui/shell/kweditcommands.h"
#include "ui_kwmainwin.h"

KWLayoutCommands::KWLayoutCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window,
                                   KWEditCommands *edit, KWCommandGuard *guard)
    : QObject(parent)
    , m_window(window)
    , m_edit(edit)
    , m_guard(guard)
{
    connect(ui->m_fileAutoLayoutAction, &QAction::triggered, this,
            &KWLayoutCommands::fileAutoLayout);
}

bool KWLayoutCommands::mayLayOut()
{
    const KWDocument &plan = *m_window->document();
    if (plan.seatCount() == 0) {
        errorBox(tr("You need to add some tables with seats before you can perform an automatic "
                    "layout."),
                 tr("&OK"));
        return false;
    }
    if (plan.unlockedGuestCount() == 0) {
        errorBox(tr("You need to unlock some guests before you can perform an automatic layout."),
                 tr("&OK"));
        return false;
    }
    return !plan.hasSeatedUnlockedGuest() ||
           configurableWarning(m_window->userSettings(),
                               QStringLiteral("warning/autolayout_unassign"),
                               tr("The automatic layout may re-assign unlocked guests.\nDo you "
                                  "wish to continue with the automatic layout?")) == 0;
}

void KWLayoutCommands::fileAutoLayout()
{
    if (m_guard->isHeld() || !mayLayOut())
        return;
    try {
        run();
    } catch (...) {
        errorBox(tr("Undefined exception.\nPlease contact support."), tr("OK"));
    }
    m_window->updateActionsOnViewChange();
}

void KWLayoutCommands::run()
{
    const KWBusy busy;
    const KWCommandGuard::Hold hold(m_guard);
    KWDocument *plan = m_window->document();
    const int before = plan->totalScore();
    m_window->showStatusMessage(tr("Auto layout"));
    m_edit->change(tr("Auto layout"), [this, plan] {
        KWAutoLayoutProgressDlgImpl(m_window->widget(), plan).runAutoLayout();
    });
    m_window->showStatusMessage(tr("Seated guests: %1 of %2. Score: %3 before, %4 after.")
                                    .arg(plan->seatedGuestCount())
                                    .arg(plan->guestCount())
                                    .arg(before)
                                    .arg(plan->totalScore()));
}
