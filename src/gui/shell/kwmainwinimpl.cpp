#include "gui/shell/kwmainwinimpl.h"

#include "core/model/kwmodelhooks.h"
#include "gui/appearance/kwcolours.h"
#include "gui/appearance/kwpixmaps.h"
#include "gui/dialogs/kwgettingstarteddlgimpl.h"
#include "gui/dialogs/kwguestdlgimpl.h"
#include "gui/dialogs/kwtabledlgimpl.h"
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
#include "gui/shell/kweditcommands.h"
#include "gui/shell/kwexportcommands.h"
#include "gui/shell/kwfilecommands.h"
#include "gui/shell/kwhelpcommands.h"
#include "gui/shell/kwinsertcommands.h"
#include "gui/shell/kwlayoutcommands.h"
#include "gui/shell/kwlefttab.h"
#include "gui/shell/kwpanes.h"
#include "gui/shell/kwsplashscreen.h"
#include "gui/shell/kwstatusbar.h"
#include "gui/shell/kwtoptab.h"
#include "gui/shell/kwviewcommands.h"
#include "ui_kwmainwin.h"

#include <QCloseEvent>
#include <QElapsedTimer>
#include <QPrinter>
#include <QThread>
#include <QTimer>
#include <QWindow>

namespace {
constexpr int messageTime = 2000;
constexpr int splashTime = 1000;

/// Until the window has its place on the screen, over which a message about the plan will stand.
void waitUntilPlaced(const QWidget &window)
{
    constexpr int patience = 500;
    QElapsedTimer timer;
    timer.start();
    while (!window.windowHandle()->isExposed() && timer.elapsed() < patience) {
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

    m_panes = new KWPanes(this);
    m_viewCommands = new KWViewCommands(this, m_ui.get(), &m_document, m_panes);
    m_editCommands = new KWEditCommands(this, m_ui.get(), this, m_panes);
    m_fileCommands = new KWFileCommands(this, m_ui.get(), this, m_panes, m_editCommands, clock);
    m_helpCommands = new KWHelpCommands(this, m_ui.get(), this);
    m_insertCommands = new KWInsertCommands(this, m_ui.get(), this);
    m_layoutCommands = new KWLayoutCommands(this, m_ui.get(), this);
    m_exportCommands = new KWExportCommands(this, this, m_panes, m_fileCommands);
    connect(m_ui->m_exportFloorPlanAction, &QAction::triggered, m_exportCommands,
            &KWExportCommands::fileExportFloorPlan);
    connect(m_editCommands, &KWEditCommands::planExchanged, this, [this] {
        updateCaption(m_document.fileName());
        m_fileCommands->updateMostRecentAction();
    });
    connect(m_ui->m_fileExitAction, &QAction::triggered, this, &QWidget::close);
}

KWMainWinImpl::~KWMainWinImpl()
{
    modelHooks() = {};
    m_viewCommands->setActiveView(nullptr, m_statusBar);
    for (KWCloseableTabWidget *tab : findChildren<KWCloseableTabWidget *>())
        tab->blockSignals(true);
    // The views look into the plan, which would go before them.
    delete takeCentralWidget();
}

void KWMainWinImpl::initialise(KWSplashScreen *splash, const QStringList &arguments)
{
    m_fileCommands->loadRecentFiles();
    m_panes->create(this, &m_document);
    connectPanes();
    finishActions();
    delete statusBar();
    m_statusBar = new KWStatusBar(this);
    setStatusBar(m_statusBar);
    connect(&m_document, &KWDocument::eventModified, this, &KWMainWinImpl::updateChangedDoc);
    updateChangedDoc();
    m_fileCommands->setChangedSinceBackup(false);
    resize(QSize(725, 519).expandedTo(minimumSizeHint()));
    show();
    raise();
    if (splash)
        QTimer::singleShot(splashTime, splash, &QWidget::close);
    updateCaption(QString());
    if (arguments.size() > 1) {
        waitUntilPlaced(*this);
        m_fileCommands->openPlan(arguments.at(1));
    }
    // Not before the plan is open, or it would be backed up at once.
    m_fileCommands->setupAutoSave(m_userSettings->backupAutoOn(),
                                  m_userSettings->backupAutoInterval());
    if (m_userSettings->appearanceMaximised())
        showMaximized();
    showStartDialogs();
    makeHiddenShortcuts();
    new KWWhatsThisHelper(this);
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
    for (QAction *action :
         {m_ui->m_importDataAction, m_ui->m_exportDataAction, m_ui->m_exportTableChartAction,
          m_ui->m_exportGuestChartAction, m_ui->m_insertNewGuestCoupleAction,
          m_ui->m_insertNewFamilyGuestAction, m_ui->m_insertNewFriendsAction})
        action->setEnabled(false);
}

void KWMainWinImpl::connectPanes()
{
    connect(m_panes->leftTab(), &KWCloseableTabWidget::visibilityChange, m_ui->m_viewLeftPaneAction,
            &QAction::setChecked);
    connect(m_panes->topTab(), &KWCloseableTabWidget::visibilityChange, m_ui->m_viewTopPaneAction,
            &QAction::setChecked);
    connect(m_panes->bottomTab(), &KWCloseableTabWidget::visibilityChange,
            m_ui->m_viewBottomPaneAction, &QAction::setChecked);
    for (KWCloseableTabWidget *tab : {static_cast<KWCloseableTabWidget *>(m_panes->topTab()),
                                      static_cast<KWCloseableTabWidget *>(m_panes->leftTab())}) {
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

void KWMainWinImpl::showStartDialogs()
{
    if (m_userSettings->helpShowGettingStarted()) {
        const KWArrowCursor arrow;
        KWGettingStartedDlgImpl(this, m_userSettings.get()).exec();
    }
    if (m_userSettings->mostRecentShowAtStart() && !m_fileCommands->recentFiles().isEmpty() &&
        m_fileCommands->docPath().isEmpty())
        m_fileCommands->fileOpenRecent();
}

void KWMainWinImpl::saveUndoState(const QString &label)
{
    m_editCommands->saveUndoState(label);
}

void KWMainWinImpl::setActiveView(KWView *view)
{
    m_viewCommands->setActiveView(view, m_statusBar);
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
    KWGuestDlgImpl(this, &m_document, guest).exec();
    updateActionsOnViewChange();
}

void KWMainWinImpl::editGroup(KWGroup *group)
{
    KWGuestDlgImpl(this, &m_document, group).exec();
    updateActionsOnViewChange();
}

void KWMainWinImpl::editTable(KWTable *table)
{
    KWTableDlgImpl(this, &m_document, table).exec();
    updateActionsOnViewChange();
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
    m_fileCommands->setChangedSinceBackup(true);
    updateScore();
    m_ui->m_exportFloorPlanAction->setEnabled(!m_document.isEmpty());
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
    if (m_layoutCommands->isRunning()) {
        // The session ends, for one; the plan has to be whole before it can be saved.
        m_document.abortProcessing();
        connect(m_layoutCommands, &KWLayoutCommands::finished, this, &KWMainWinImpl::close,
                static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::UniqueConnection |
                                                Qt::SingleShotConnection));
        event->ignore();
        return;
    }
    event->setAccepted(m_fileCommands->maySaveAndClose());
    m_userSettings->setAppearanceMaximised(isMaximized());
}

void KWMainWinImpl::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        languageChange();
}

bool KWMainWinImpl::focusNextPrevChild(bool next)
{
    const bool moved = QMainWindow::focusNextPrevChild(next);
    if (auto *view = dynamic_cast<KWView *>(focusWidget()))
        setActiveView(view);
    return moved;
}
