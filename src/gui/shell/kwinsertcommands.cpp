#include "gui/shell/kwinsertcommands.h"

#include "core/model/kwtable.h"
#include "gui/dialogs/kwguestdlgimpl.h"
#include "gui/dialogs/kwtabledlgimpl.h"
#include "gui/framework/kwmainwindow.h"
#include "ui_kwmainwin.h"

KWInsertCommands::KWInsertCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window)
    : QObject(parent)
    , m_window(window)
{
    using Commands = KWInsertCommands;
    connect(ui->m_insertNewGuestAction, &QAction::triggered, this, &Commands::insertNewGuest);
    connect(ui->m_insertNewCircluarTableAction, &QAction::triggered, this,
            &Commands::insertNewCircularTable);
    connect(ui->m_insertNewRectTableAction, &QAction::triggered, this,
            &Commands::insertNewRectTable);
    connect(ui->m_insertNewHeadTableAction, &QAction::triggered, this,
            &Commands::insertNewHeadTable);
    connect(ui->m_insertNewCustomTableAction, &QAction::triggered, this,
            &Commands::insertNewCustomTable);
}

void KWInsertCommands::insertNewGuest()
{
    KWGuestDlgImpl(m_window->widget(), m_window->document()).exec();
}

void KWInsertCommands::insertNewCircularTable()
{
    insertTable(KWTable::Circular);
}

void KWInsertCommands::insertNewRectTable()
{
    insertTable(KWTable::Rectangular);
}

void KWInsertCommands::insertNewHeadTable()
{
    insertTable(KWTable::HeadTop);
}

void KWInsertCommands::insertNewCustomTable()
{
    insertTable(KWTable::Custom);
}

void KWInsertCommands::insertTable(int shape)
{
    KWTableDlgImpl(m_window->widget(), m_window->document(), shape).exec();
}
