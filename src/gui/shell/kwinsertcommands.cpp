#include "kwinsertcommands.h"

#include "kwguestdlgimpl.h"
#include "kwmainwindow.h"
#include "ui_kwmainwin.h"

KWInsertCommands::KWInsertCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window)
    : QObject(parent)
    , m_window(window)
{
    connect(ui->m_insertNewGuestAction, &QAction::triggered, this,
            &KWInsertCommands::insertNewGuest);
}

void KWInsertCommands::insertNewGuest()
{
    KWGuestDlgImpl(m_window->widget(), m_window->document()).exec();
}
