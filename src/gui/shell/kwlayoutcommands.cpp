#include "gui/shell/kwlayoutcommands.h"

#include "core/model/kwdocument.h"
#include "gui/dialogs/kwautolayoutprogressdlgimpl.h"
#include "gui/framework/kwbusy.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"
#include "ui_kwmainwin.h"

#include <QAction>
#include <QPointer>
#include <QScopedValueRollback>

namespace {

/// Turns all commands of a window off while it lives. Most of what a user does waits for a modal
/// dialog anyway, but a menu bar of the desktop, or an aid for the disabled, does not.
class CommandsOff
{
public:
    explicit CommandsOff(const QWidget *window)
    {
        for (QAction *action : window->findChildren<QAction *>()) {
            if (action->isEnabled() && !action->menu()) {
                m_actions.append(action);
                action->setEnabled(false);
            }
        }
    }
    ~CommandsOff()
    {
        for (QAction *action : std::as_const(m_actions)) {
            if (action)
                action->setEnabled(true);
        }
    }
    CommandsOff(const CommandsOff &) = delete;
    CommandsOff &operator=(const CommandsOff &) = delete;

private:
    QList<QPointer<QAction>> m_actions;
};
} // namespace

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
    if (m_isRunning || !mayLayOut())
        return;
    try {
        run();
    } catch (...) {
        errorBox(tr("Undefined exception.\nPlease contact support."), tr("OK"));
    }
    m_window->updateActionsOnViewChange();
    emit finished();
}

void KWLayoutCommands::run()
{
    const KWBusy busy;
    const QScopedValueRollback running(m_isRunning, true);
    m_window->showStatusMessage(tr("Auto layout"));
    m_window->saveUndoState(tr("Auto layout"));
    const CommandsOff off(m_window->widget());
    KWAutoLayoutProgressDlgImpl(m_window->widget(), m_window->document()).runAutoLayout();
}
