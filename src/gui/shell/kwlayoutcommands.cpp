#include "kwlayoutcommands.h"

#include "kwautolayoutprogressdlgimpl.h"
#include "kwbusy.h"
#include "kwdocument.h"
#include "kwmainwindow.h"
#include "kwmessages.h"
#include "ui_kwmainwin.h"

#include <QScopedValueRollback>

KWLayoutCommands::KWLayoutCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window)
    : QObject(parent)
    , m_window(window)
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
    if (!mayLayOut())
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
    const QScopedValueRollback running(m_isRunning, true);
    m_window->showStatusMessage(tr("Auto layout"));
    m_window->saveUndoState(tr("Auto layout"));
    KWAutoLayoutProgressDlgImpl(m_window->widget(), m_window->document()).runAutoLayout();
}
