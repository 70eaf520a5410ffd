#include "gui/shell/kwfilecommands.h"

#include "core/model/kwdocument.h"
#include "gui/dialogs/kwrecentlyopeneddlgimpl.h"
#include "gui/floorplan/kwcanvasview.h"
#include "gui/framework/kwbusy.h"
#include "gui/framework/kwdatadirectory.h"
#include "gui/framework/kwhelp.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"
#include "gui/framework/kwprompts.h"
#include "gui/framework/kwusersettings.h"
#include "gui/shell/kwcommandguard.h"
#include "gui/shell/kweditcommands.h"
#include "gui/shell/kwpanes.h"
#include "gui/shell/kwplanfiles.h"
#include "ui_kwmainwin.h"

#include <QPointer>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

KWFileCommands::KWFileCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window,
                               KWPanes *panes, KWEditCommands *edit, KWCommandGuard *guard,
                               const KWBackups::Clock &clock)
    : QObject(parent)
    , m_ui(ui)
    , m_window(window)
    , m_panes(panes)
    , m_edit(edit)
    , m_guard(guard)
    , m_backups(this, clock)
    , m_recentPlans(window->userSettings())
    , m_planDir(QDir::current())
{
    m_planDir.cd(u"plans"_s);
    using Commands = KWFileCommands;
    connect(ui->m_fileNewAction, &QAction::triggered, this, &Commands::fileNew);
    connect(ui->m_fileOpenAction, &QAction::triggered, this, &Commands::fileOpen);
    connect(ui->m_openRecentAction, &QAction::triggered, this, &Commands::fileOpenRecent);
    connect(ui->m_fileSaveAction, &QAction::triggered, this, &Commands::fileSave);
    connect(ui->m_fileSaveAsAction, &QAction::triggered, this, &Commands::fileSaveAs);
    connect(&m_backups, &KWBackups::due, this, &Commands::autoSave);
    setExampleOpener([commands = QPointer(this)](const QString &path) {
        if (commands)
            commands->openExample(path);
    });
}

QString KWFileCommands::planDirPath() const
{
    return QDir::toNativeSeparators(m_planDir.path() + u'/');
}

QString KWFileCommands::docPath() const
{
    return m_window->document()->fileName();
}

KWFileCommands::SaveAnswer KWFileCommands::askToSave()
{
    switch (warningBox(tr("Save changes to this plan?"), tr("&Save"), tr("&Don't save"),
                       tr("&Cancel"))) {
    case 0:
        return Save;
    case 1:
        return DontSave;
    default:
        return Cancel;
    }
}

void KWFileCommands::fileNew()
{
    m_edit->clearUndoStates();
    m_backups.setChangedSinceBackup(false);
    if (m_window->document()->isModified()) {
        switch (askToSave()) {
        case Save: {
            const KWBusy busy;
            // Whatever comes of it, the new plan follows.
            fileSave();
            break;
        }
        case DontSave:
            break;
        case Cancel:
            return;
        }
    }
    const KWBusy busy;
    m_window->document()->clear();
    m_panes->showAllColumns();
    m_window->setActiveView(nullptr);
    m_panes->resizeFloorPlan();
    m_panes->refreshFloorPlan();
    updateMostRecentAction();
}

void KWFileCommands::fileOpen()
{
    if (m_window->document()->isModified()) {
        const SaveAnswer answer = askToSave();
        if (answer == Cancel)
            return;
        if (answer == Save) {
            const KWBusy busy;
            fileSave();
        }
    }
    const QString filters =
        tr("Ambrelune (*.%1);;Ambrelune backup (*.%2)").arg(planExtension, backupExtension);
    const QString path = prompts()
                             .askFile(m_window->widget(), {KWFileQuestion::Open, tr("Open"),
                                                           openDirPath(), filters, u"open plan"_s})
                             .path;
    if (path.isEmpty())
        return;
    m_planDir = QFileInfo(path).absoluteDir();
    openPlan(path);
}

void KWFileCommands::openExample(const QString &path)
{
    if (m_guard->isOff())
        return;
    if (m_window->document()->isModified()) {
        const SaveAnswer answer = askToSave();
        if (answer == Save)
            fileSave();
        // Who follows a link does not expect to lose a plan that was not saved after all.
        if (answer == Cancel || (answer == Save && m_window->document()->isModified()))
            return;
    }
    openPlan(path);
    m_window->widget()->activateWindow();
}

QString KWFileCommands::openDirPath() const
{
    const bool knowsNoPlan =
        m_recentPlans.paths().isEmpty() && docPath().isEmpty() && m_planDir == QDir::current() &&
        m_planDir.entryList({u"*."_s + planExtension.toString()}, QDir::Files).isEmpty();
    return knowsNoPlan && QFileInfo(exampleDirectory()).isDir() ? exampleDirectory()
                                                                : planDirPath();
}

bool KWFileCommands::openPlan(const QString &path)
{
    KWDocument *plan = m_window->document();
    bool otherVersion = false;
    bool isOpen = false;
    {
        const KWBusy busy;
        const KWCommandGuard::Hold hold(m_guard);
        const QScopedValueRollback transferring(m_transferring, true);
        m_window->showStatusMessage(tr("Loading %1").arg(path));
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        {
            const KWUpdateBlock block(m_panes->floorPlan());
            KWViewSettings settings;
            const int result = loadPlan(path, settings, otherVersion);
            isOpen = result == KWDocument::FileOk;
            if (isOpen) {
                m_panes->setViewSettings(settings);
                plan->announceRefresh();
                m_backups.setChangedSinceBackup(false);
                m_edit->clearUndoStates();
                noteUse(path);
            } else {
                // Or saving would put the empty plan in the place of the file.
                plan->setFileName(QString());
                reportLoadResult(result, path);
            }
            updateMostRecentAction();
            m_panes->resizeFloorPlan();
        }
        m_panes->refreshFloorPlan();
        m_window->updateActionsOnViewChange();
    }
    if (isOpen && otherVersion)
        warnOfOtherVersion();
    return isOpen;
}

void KWFileCommands::noteUse(const QString &path)
{
    m_planDir = QFileInfo(path).absoluteDir();
    m_recentPlans.add(path);
    updateMostRecentAction();
}

int KWFileCommands::loadPlan(const QString &path, KWViewSettings &settings, bool &otherVersion)
{
    const QFileInfo file(path);
    if (file.exists() && !file.isFile()) {
        // Reading a pipe or a device might never end.
        m_window->document()->clear();
        return KWDocument::FileCannotOpen;
    }
    return m_window->document()->load(path, settings, otherVersion);
}

void KWFileCommands::reportLoadResult(int result, const QString &path)
{
    if (result == KWDocument::FileNotAPlan)
        errorBox(tr("File '%1' incorrectly formatted and cannot be read.").arg(path), tr("&OK"));
    else
        errorBox(tr("Unable to open file '%1'").arg(path), tr("&OK"));
}

void KWFileCommands::warnOfOtherVersion()
{
    const int answer =
        warningBox(tr("This plan was created with a different version of the software.\n"
                      "Some information may not be readable.\n"
                      "Information may be lost if you overwrite the existing plan.\n"
                      "It is recommended that you save it to a new plan file before continuing."),
                   tr("&Save as"), tr("&Continue"));
    if (answer == 0)
        fileSaveAs();
}

void KWFileCommands::fileOpenRecent()
{
    KWRecentlyOpenedDlgImpl dialog(m_window->widget(), m_recentPlans.paths(), docPath(),
                                   m_window->userSettings());
    if (dialog.exec() == QDialog::Accepted)
        openPlan(dialog.selectedFile());
}

void KWFileCommands::fileSave()
{
    if (docPath().isEmpty())
        fileSaveAs();
    else
        savePlan(docPath());
}

void KWFileCommands::fileSaveAs()
{
    QString start = docPath();
    if (start.isEmpty())
        start = u"%1%2.%3"_s.arg(planDirPath(), u"plan"_s, planExtension);
    QString path = QDir::toNativeSeparators(
        prompts()
            .askFile(m_window->widget(),
                     {KWFileQuestion::Save, tr("Save As"), start,
                      tr("Ambrelune (*.%1)").arg(planExtension), u"save plan"_s})
            .path);
    if (path.isEmpty())
        return;
    // The whole path counts: a dot in the name of a directory is enough.
    if (!path.contains(u'.'))
        path = u"%1.%2"_s.arg(path, planExtension);
    if (QFile::exists(path) &&
        warningBox(tr("Do you wish to overwrite the existing file '%1'?").arg(path), tr("&OK"),
                   tr("&Cancel")) != 0) {
        return;
    }
    m_planDir = QFileInfo(path).absoluteDir();
    savePlan(path);
}

void KWFileCommands::savePlan(const QString &path)
{
    const KWBusy busy;
    const KWCommandGuard::Hold hold(m_guard);
    const QScopedValueRollback transferring(m_transferring, true);
    m_window->showStatusMessage(tr("Saving %1").arg(path));
    // A backup that failed was logged and does not keep the user from saving.
    if (m_window->userSettings()->backupOnSave() && QFileInfo(path).isFile())
        m_backups.backupPlan(path);
    m_backups.setChangedSinceBackup(false);
    if (m_window->document()->save(path, m_panes->viewSettings()) == KWDocument::FileOk) {
        m_window->showStatusMessage(tr("Saved %1").arg(path));
        m_edit->planSaved();
        noteUse(path);
    } else {
        errorBox(tr("Unable to save plan to '%1'\nThe file may be read-only or you may have "
                    "insufficient access to save here.")
                     .arg(path),
                 tr("&OK"));
    }
}

bool KWFileCommands::maySaveAndClose()
{
    if (!m_window->document()->isModified())
        return true;
    const SaveAnswer answer = askToSave();
    if (answer == Save)
        fileSave();
    return answer != Cancel;
}

void KWFileCommands::autoSave()
{
    // A file that is being read or written is not copied; then nothing is due any more.
    if (!m_transferring && m_backups.autoSave(*m_window->document()))
        m_window->showStatusMessage(tr("Auto-save %1").arg(QFileInfo(docPath()).fileName()));
}

void KWFileCommands::updateMostRecentAction()
{
    m_ui->m_openRecentAction->setEnabled(m_recentPlans.hasOtherThan(docPath()));
}
