#include "gui/shell/kwhelpcommands.h"

#include "gui/dialogs/kwaboutdlgimpl.h"
#include "gui/dialogs/kwcreditsdlg.h"
#include "gui/framework/kwhelp.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwwebpage.h"
#include "ui_kwmainwin.h"

#include <QWhatsThis>

using namespace Qt::StringLiterals;

KWHelpCommands::KWHelpCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window)
    : QObject(parent)
    , m_window(window)
{
    using Commands = KWHelpCommands;
    connect(ui->m_helpContextSensitiveAction, &QAction::triggered, this,
            &Commands::helpContextSensitive);
    connect(ui->m_helpContentsAction, &QAction::triggered, this, &Commands::helpGettingStarted);
    connect(ui->m_helpTutorialAction, &QAction::triggered, this, &Commands::helpTutorial);
    connect(ui->m_helpWhatsThisAction, &QAction::triggered, this, &QWhatsThis::enterWhatsThisMode);
    connect(ui->m_helpWebPage, &QAction::triggered, this, &Commands::helpWeb);
    connect(ui->m_helpAboutAction, &QAction::triggered, this, &Commands::helpAbout);
    connect(ui->m_helpIndexAction, &QAction::triggered, this, &Commands::helpIndex);
}

void KWHelpCommands::helpContextSensitive()
{
    showHelpTopic(u"Main_window.htm"_s);
}

void KWHelpCommands::helpGettingStarted()
{
    showHelpTopic(u"Quick_start_guide.htm"_s);
}

void KWHelpCommands::helpTutorial()
{
    showHelpTopic(u"Tutorial.htm"_s);
}

void KWHelpCommands::helpWeb()
{
    showWebPage(webPage(u"home"_s));
}

void KWHelpCommands::helpAbout()
{
    KWAboutDlgImpl(m_window->widget()).exec();
}

void KWHelpCommands::helpIndex()
{
    qWarning("KWMainWin::helpIndex(): Not implemented yet");
}

void KWHelpCommands::creditsDlg()
{
    KWCreditsDlg(m_window->widget()).exec();
}
