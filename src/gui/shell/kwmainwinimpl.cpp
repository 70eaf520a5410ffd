#include "gui/shell/kwmainwinimpl.h"

#include "core/model/kwmodelhooks.h"
#include "gui/appearance/kwcolours.h"
#include "gui/appearance/kwpixmaps.h"
#include "gui/dialogs/kwgettingstarteddlgimpl.h"
#include "gui/floorplan/kwcanvasview.h"
#include "gui/framework/kwaccel.h"
#include "gui/framework/kwbusy.h"
#include "gui/framework/kwmessages.h"
#include "gui/framework/kwprogress.h"
#include "gui/framework/kwtooltips.h"
#include "gui/framework/kwusersettings.h"
#include "gui/framework/kwview.h"
#include "gui/framework/kwwhatsthishelper.h"
#include "gui/shell/kwbottomtab.h"
#include "gui/shell/kwcommandguard.h"
#include "gui/shell/kwdialogcommands.h"
#include "gui/shell/kweditcommands.h"
#include "gui/shell/kwexportcommands.h"
#include "gui/shell/kwfilecommands.h"
#include "gui/shell/kwhelpcommands.h"
#include "gui/shell/kwlayoutcommands.h"
#include "gui/shell/kwlefttab.h"
#include "gui/shell/kwpanes.h"
#include "gui/shell/kwsplashscreen.h"
#include "gui/shell/kwstatusbar.h"
#include "gui/shell/kwtoptab.h"
#include "gui/shell/kwviewcommands.h"
#include "ui_kwmainwin.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QPointer>
#include <QPrinter>
#include <QThread>
#include <QTimer>
#include <QWindow>

namespace {
constexpr int messageTime = 2000;
constexpr int splashTime = 1000;

/// Until the window manager has done what it was asked for, but not for ever: it may not. Messages
/// and dialogs stand over the window where it is by then.
void waitUntil(const std::function<bool()> &isDone)
{
    constexpr int patience = 500;
    QElapsedTimer timer;
    timer.start();
    while (!isDone() && timer.elapsed() < patience) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(1);
    }
}

} // namespace

KWMainWinImpl::KWMainWinImpl(QWidget *parent, const Clock &clock)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::KWMainWin>())
{
    m_ui->setupUi(this);
    setObjectName(QStringLiteral("main window"));
    m_ui->m_exportMenu->setIcon(m_ui->m_exportAction->icon());
    disableUnbuiltCommands();
    connect(&m_document, &KWDocument::eventDocumentNameChange, this, &KWMainWinImpl::updateCaption);
    // Its message waits until the views have followed the plan that the error is about.
    connect(&m_document, &KWDocument::error, this, &KWMainWinImpl::handleDocError,
            Qt::QueuedConnection);
    connect(&m_document, qOverload<>(&KWDocument::eventScoreChange), this,
            &KWMainWinImpl::updateScore);
    m_userSettings = std::make_unique<KWUserSettings>();
    setToolTipsEnabled(m_userSettings->miscShowToolTips());
    m_printer = std::make_unique<QPrinter>(QPrinter::ScreenResolution);
    setModelHooks();

    makeCommands(clock);
}

void KWMainWinImpl::makeCommands(const Clock &clock)
{
    m_guard = new KWCommandGuard(this);
    m_panes = new KWPanes(this);
    m_viewCommands = new KWViewCommands(this, m_ui.get(), &m_document, m_panes, m_guard);
    m_editCommands = new KWEditCommands(this, m_ui.get(), this, m_panes);
    m_fileCommands =
        new KWFileCommands(this, m_ui.get(), this, m_panes, m_editCommands, m_guard, clock);
    m_helpCommands = new KWHelpCommands(this, m_ui.get(), this);
    m_dialogCommands = new KWDialogCommands(this, m_ui.get(), this);
    m_layoutCommands = new KWLayoutCommands(this, m_ui.get(), this, m_editCommands, m_guard);
    m_exportCommands = new KWExportCommands(this, this, m_panes, m_fileCommands);
    connect(m_ui->m_exportFloorPlanAction, &QAction::triggered, m_exportCommands,
            &KWExportCommands::fileExportFloorPlan);
    connect(m_editCommands, &KWEditCommands::planExchanged, this, [this] {
        updateCaption(m_document.fileName());
        m_fileCommands->updateMostRecentAction();
    });
    connect(m_dialogCommands, &KWDialogCommands::preferencesChanged, this,
            &KWMainWinImpl::setupAutoSave);
    connect(m_ui->m_fileExitAction, &QAction::triggered, this, &QWidget::close);
}

KWMainWinImpl::~KWMainWinImpl()
{
    modelHooks() = {};
    m_viewCommands->setActiveView(nullptr);
    for (KWCloseableTabWidget *tab : findChildren<KWCloseableTabWidget *>())
        tab->blockSignals(true);
    // The focus goes from one view to the next while they go.
    m_panes->blockSignals(true);
    // The views look into the plan, which would go before them.
    delete takeCentralWidget();
}

void KWMainWinImpl::initialise(KWSplashScreen *splash, const QStringList &arguments)
{
    m_fileCommands->updateMostRecentAction();
    m_panes->create(this, &m_document);
    connectPanes();
    finishActions();
    delete statusBar();
    m_statusBar = new KWStatusBar(this);
    setStatusBar(m_statusBar);
    connect(m_viewCommands, &KWViewCommands::activeViewChanged, m_statusBar,
            &KWStatusBar::setViewIcon);
    connect(&m_document, &KWDocument::eventModified, this, &KWMainWinImpl::updateChangedDoc);
    updateChangedDoc();
    m_fileCommands->backups()->setChangedSinceBackup(false);
    resize(QSize(725, 519).expandedTo(minimumSizeHint()));
    m_panes->leftTab()->guestsView()->setFocus();
    show();
    raise();
    const QPointer<KWSplashScreen> shownSplash = splash;
    if (splash)
        QTimer::singleShot(splashTime, splash, &QWidget::close);
    updateCaption(QString());
    waitUntil([this] { return windowHandle()->isExposed(); });
    if (shownSplash)
        shownSplash->standBefore(*this);
    const bool isPlanOpen = arguments.size() > 1 && m_fileCommands->openPlan(arguments.at(1));
    // Not before the plan is open, or it would be backed up at once.
    setupAutoSave();
    if (m_userSettings->appearanceMaximised()) {
        const QSize before = size();
        showMaximized();
        waitUntil([this, before] { return size() != before; });
    }
    showStartDialogs(isPlanOpen);
    makeHiddenShortcuts();
    new KWWhatsThisHelper(this);
}

void KWMainWinImpl::setupAutoSave()
{
    m_fileCommands->backups()->setupAutoSave(m_userSettings->backupAutoOn(),
                                             m_userSettings->backupAutoInterval());
}

void KWMainWinImpl::setModelHooks()
{
    KWModelHooks &hooks = modelHooks();
    hooks.progress = [](int done, int total) { ::setProgress(done, total); };
    hooks.progressFinished = [] { ::setProgress(100); };
    hooks.selectionColour = [] { return KWColours::highlightColour(); };
    hooks.printFooter = [this] { return m_userSettings->value("misc/print_footer").toString(); };
}

void KWMainWinImpl::disableUnbuiltCommands()
{
    auto *unbuilt = new QActionGroup(this);
    unbuilt->setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
    unbuilt->setEnabled(false);
    for (QAction *action :
         {m_ui->m_importDataAction, m_ui->m_exportDataAction, m_ui->m_exportTableChartAction,
          m_ui->m_exportGuestChartAction, m_ui->m_insertNewGuestCoupleAction,
          m_ui->m_insertNewFamilyGuestAction, m_ui->m_insertNewFriendsAction})
        unbuilt->addAction(action);
}

void KWMainWinImpl::connectPanes()
{
    const auto follow = [this](KWCloseableTabWidget *tab, QAction *action) {
        connect(tab, &KWCloseableTabWidget::visibilityChange, action, &QAction::setChecked);
        connect(tab, &KWCloseableTabWidget::visibilityChange, m_viewCommands,
                &KWViewCommands::dropHiddenView);
    };
    follow(m_panes->leftTab(), m_ui->m_viewLeftPaneAction);
    follow(m_panes->topTab(), m_ui->m_viewTopPaneAction);
    follow(m_panes->bottomTab(), m_ui->m_viewBottomPaneAction);
    connect(m_panes, &KWPanes::viewFocused, this, &KWMainWinImpl::setActiveView);
    for (KWCloseableTabWidget *tab : m_panes->tabs()) {
        if (tab == m_panes->bottomTab())
            continue;
        connect(tab, &QTabWidget::currentChanged, this,
                [this, tab](int index) { updateActionsOnPaneViewChange(tab->widget(index)); });
    }
}

void KWMainWinImpl::finishActions()
{
    const KWPixmaps &pixmaps = KWPixmaps::instance();
    m_ui->m_viewLeftPaneAction->setIcon(pixmaps.leftPane());
    m_ui->m_viewTopPaneAction->setIcon(pixmaps.topPane());
    m_ui->m_viewBottomPaneAction->setIcon(pixmaps.bottomPane());
    m_ui->m_helpWhatsThisAction->setIcon(pixmaps.whatsThis());
    m_ui->m_helpContextSensitiveAction->setShortcut(QStringLiteral("F1"));
    m_ui->m_helpWhatsThisAction->setShortcut(QStringLiteral("Shift+F1"));
    // It stands in no menu of the window, whose keys it needs.
    addAction(m_ui->m_showGuestInPlanAction);
    translateActions();
}

void KWMainWinImpl::translateActions()
{
    m_ui->m_proximityMenu->menuAction()->setToolTip(tr("Set desired proximity"));
    // A tool button takes the text of its action, again at each of its changes.
    for (QAction *action : findChildren<QAction *>())
        action->setWhatsThis(action->toolTip());
}

void KWMainWinImpl::makeHiddenShortcuts()
{
    addAccel(this, Qt::CTRL | Qt::Key_F12, m_helpCommands, &KWHelpCommands::creditsDlg);
    addAccel(this, Qt::Key_F12, m_helpCommands, &KWHelpCommands::creditsDlg);
    addAccel(this, Qt::Key_F5, m_viewCommands, &KWViewCommands::refreshAll);
}

void KWMainWinImpl::showStartDialogs(bool isPlanOpen)
{
    if (m_userSettings->helpShowGettingStarted()) {
        const KWArrowCursor arrow;
        KWGettingStartedDlgImpl(this, m_userSettings.get()).exec();
    }
    if (m_userSettings->mostRecentShowAtStart() && !isPlanOpen &&
        !m_fileCommands->recentPlans().paths().isEmpty())
        m_fileCommands->fileOpenRecent();
}

void KWMainWinImpl::saveUndoState(const QString &label)
{
    m_editCommands->saveUndoState(label);
}

void KWMainWinImpl::setActiveView(KWView *view)
{
    m_viewCommands->setActiveView(view);
}

KWView *KWMainWinImpl::activeView() const
{
    return m_viewCommands->activeView();
}

QAction *KWMainWinImpl::editAction(EditAction action)
{
    switch (action) {
    case EditProperties:
        return m_ui->m_editPropertiesAction;
    case ShowGuestInPlan:
        return m_ui->m_showGuestInPlanAction;
    case SetAffinity:
        return m_ui->m_proximityMenu->menuAction();
    case RotateTable:
        return m_ui->m_editRotateTableAction;
    case Lock:
        return m_ui->m_editLockAction;
    case Accepted:
        return m_ui->m_editAcceptedAction;
    case Unassign:
        return m_ui->m_editUnassignSeatAction;
    case Delete:
        return m_ui->m_editDeleteAction;
    }
    Q_UNREACHABLE();
}

void KWMainWinImpl::editGuest(KWGuest *guest)
{
    m_dialogCommands->editGuest(guest);
}

void KWMainWinImpl::editGroup(KWGroup *group)
{
    m_dialogCommands->editGroup(group);
}

void KWMainWinImpl::editTable(KWTable *table)
{
    m_dialogCommands->editTable(table);
}

QPoint KWMainWinImpl::floorPlanCentre()
{
    const KWCanvasView *view = m_panes->floorPlan();
    return view ? view->centre().toPoint() : QPoint();
}

void KWMainWinImpl::placeNewTable(KWTable *table)
{
    if (KWCanvasView *view = m_panes->floorPlan())
        view->placeNewTable(table);
}

void KWMainWinImpl::showNewTable(KWTable *table)
{
    if (KWCanvasView *view = m_panes->floorPlan())
        view->showTable(table);
}

void KWMainWinImpl::showStatusMessage(const QString &text)
{
    if (m_statusBar)
        m_statusBar->showMessage(text, messageTime);
}

void KWMainWinImpl::setProgress(int percent)
{
    if (m_statusBar)
        m_statusBar->setProgress(percent);
}

void KWMainWinImpl::updateCaption(const QString &docPath)
{
    const QString file = docPath.isEmpty() ? tr("<unsaved>") : QFileInfo(docPath).fileName();
    // Qt takes "[*]" for the place of a mark of modified windows.
    setWindowTitle(productName() + QStringLiteral(" - ") +
                   QString(file).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

void KWMainWinImpl::updateActionsOnPaneViewChange(QWidget *page)
{
    setActiveView(m_panes->viewOn(page));
    updatePrintAction();
    updateCopyAction();
}

void KWMainWinImpl::updateActionsOnViewChange()
{
    m_viewCommands->updateActionsOnViewChange();
}

void KWMainWinImpl::updatePrintAction()
{
    m_viewCommands->updatePrintAction();
}

void KWMainWinImpl::updateCopyAction()
{
    m_viewCommands->updateCopyAction();
}

void KWMainWinImpl::updateChangedDoc()
{
    m_fileCommands->backups()->setChangedSinceBackup(true);
    updateScore();
    for (QAction *action : {m_ui->m_exportDataAction, m_ui->m_exportTableChartAction,
                            m_ui->m_exportGuestChartAction, m_ui->m_exportFloorPlanAction})
        action->setEnabled(!m_document.isEmpty());
    m_ui->m_fileAutoLayoutAction->setEnabled(m_document.guestCount() > 0);
    updatePrintAction();
    updateCopyAction();
}

void KWMainWinImpl::updateScore()
{
    if (m_statusBar)
        m_statusBar->setCounts(m_document.guestCount(), m_document.seatCount(),
                               m_document.totalScore());
}

void KWMainWinImpl::handleDocError(const QString &err)
{
    errorBox(err, tr("&OK"));
}

void KWMainWinImpl::languageChange()
{
    m_ui->retranslateUi(this);
    translateActions();
    m_editCommands->updateUndoActions();
    updateScore();
    updatePrintAction();
    updateCopyAction();
    updateCaption(m_document.fileName());
}

void KWMainWinImpl::fileExit()
{
    qWarning("KWMainWin::fileExit(): Not implemented yet");
}

void KWMainWinImpl::closeEvent(QCloseEvent *event)
{
    if (m_guard->isHeld()) {
        // The session ends, for one; the plan has to be whole before it can be saved.
        closeLater();
        event->ignore();
        return;
    }
    event->setAccepted(m_fileCommands->maySaveAndClose());
    m_userSettings->setAppearanceMaximised(isMaximized());
}

void KWMainWinImpl::closeLater()
{
    m_document.abortProcessing();
    connect(m_guard, &KWCommandGuard::released, this, &KWMainWinImpl::close,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::UniqueConnection |
                                            Qt::SingleShotConnection));
}

void KWMainWinImpl::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        languageChange();
}
