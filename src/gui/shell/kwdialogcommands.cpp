#include "gui/shell/kwdialogcommands.h"

#include "core/model/kwtable.h"
#include "gui/dialogs/kwguestdlgimpl.h"
#include "gui/dialogs/kwinfodlgimpl.h"
#include "gui/dialogs/kwpreferencesdlgimpl.h"
#include "gui/dialogs/kwtabledlgimpl.h"
#include "gui/framework/kwmainwindow.h"
#include "ui_kwmainwin.h"

KWDialogCommands::KWDialogCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window)
    : QObject(parent)
    , m_window(window)
{
    using Commands = KWDialogCommands;
    const auto bind = [this](QAction *action, void (Commands::*slot)()) {
        connect(action, &QAction::triggered, this, slot);
    };
    bind(ui->m_insertNewGuestAction, &Commands::insertNewGuest);
    bind(ui->m_insertNewCircluarTableAction, &Commands::insertNewCircularTable);
    bind(ui->m_insertNewRectTableAction, &Commands::insertNewRectTable);
    bind(ui->m_insertNewHeadTableAction, &Commands::insertNewHeadTable);
    bind(ui->m_insertNewCustomTableAction, &Commands::insertNewCustomTable);
    bind(ui->m_fileInfo, &Commands::fileInformation);
    bind(ui->m_preferencesAction, &Commands::preferences);
}

void KWDialogCommands::editGuest(KWGuest *guest)
{
    KWGuestDlgImpl(m_window->widget(), m_window->document(), guest).exec();
    m_window->updateActionsOnViewChange();
}

void KWDialogCommands::editGroup(KWGroup *group)
{
    KWGuestDlgImpl(m_window->widget(), m_window->document(), group).exec();
    m_window->updateActionsOnViewChange();
}

void KWDialogCommands::editTable(KWTable *table)
{
    KWTableDlgImpl(m_window->widget(), m_window->document(), table).exec();
    m_window->updateActionsOnViewChange();
}

void KWDialogCommands::insertNewGuest()
{
    KWGuestDlgImpl(m_window->widget(), m_window->document()).exec();
}

void KWDialogCommands::insertNewCircularTable()
{
    insertTable(KWTable::Circular);
}

void KWDialogCommands::insertNewRectTable()
{
    insertTable(KWTable::Rectangular);
}

void KWDialogCommands::insertNewHeadTable()
{
    insertTable(KWTable::HeadTop);
}

void KWDialogCommands::insertNewCustomTable()
{
    insertTable(KWTable::Custom);
}

void KWDialogCommands::insertTable(int shape)
{
    KWTableDlgImpl(m_window->widget(), m_window->document(), shape).exec();
}

void KWDialogCommands::fileInformation()
{
    KWInfoDlgImpl(m_window->widget(), m_window->document()).exec();
}

void KWDialogCommands::preferences()
{
    if (KWPreferencesDlgImpl(m_window->widget(), m_window->userSettings()).exec() ==
        QDialog::Accepted)
        emit preferencesChanged();
}
