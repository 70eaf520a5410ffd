#pragma once

#include "core/model/kwdocument.h"
#include "gui/framework/kwmainwindow.h"

#include <QDateTime>
#include <QMainWindow>

#include <functional>
#include <memory>

class KWCommandGuard;
class KWDialogCommands;
class KWEditCommands;
class KWExportCommands;
class KWFileCommands;
class KWHelpCommands;
class KWLayoutCommands;
class KWPanes;
class KWSplashScreen;
class KWStatusBar;
class KWUserSettings;
class KWViewCommands;
class QPrinter;

namespace Ui {
class KWMainWin;
}

/// The main window: owns the live plan, the panes, the settings, the printer and the commands, and
/// joins them. The commands themselves are in classes by topic.
class KWMainWinImpl : public QMainWindow, public KWMainWindow
{
    Q_OBJECT

public:
    using Clock = std::function<QDateTime()>;

    /// Makes nothing that can be seen; initialise() does. `clock` tells the present moment.
    explicit KWMainWinImpl(QWidget *parent = nullptr,
                           const Clock &clock = QDateTime::currentDateTime);
    ~KWMainWinImpl() override;

    /// Makes the panes and shows the window, opens the plan named by the second of `arguments`, if
    /// any, and starts the timed backups; then the dialogs of the start. To be called once. Closes
    /// `splash`, which may be null, a second after the window was shown.
    void initialise(KWSplashScreen *splash, const QStringList &arguments);

    QWidget *widget() override { return this; }
    KWDocument *document() override { return &m_document; }
    KWUserSettings *userSettings() override { return m_userSettings.get(); }
    QPrinter *printer() override { return m_printer.get(); }
    void saveUndoState(const QString &label) override;
    void setActiveView(KWView *view) override;
    KWView *activeView() const override;
    QAction *editAction(EditAction action) override;
    void editGuest(KWGuest *guest) override;
    void editGroup(KWGroup *group) override;
    void editTable(KWTable *table) override;
    QPoint floorPlanCentre() override;
    void placeNewTable(KWTable *table) override;
    void showNewTable(KWTable *table) override;
    void showStatusMessage(const QString &text) override;
    void setProgress(int percent) override;

    KWFileCommands *fileCommands() const { return m_fileCommands; }
    KWPanes *panes() const { return m_panes; }

public slots:
    /// An empty path stands for a plan without a file.
    void updateCaption(const QString &docPath);
    void updateActionsOnPaneViewChange(QWidget *page);
    void updateActionsOnViewChange() override;
    void updatePrintAction() override;
    void updateCopyAction() override;
    void updateChangedDoc();
    void updateScore();
    void handleDocError(const QString &err);
    void languageChange();
    /// Leaving is what close() does; nothing calls this.
    void fileExit();

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setModelHooks();
    void makeCommands(const Clock &clock);
    /// Of commands that come with what they need: they stay off whatever else enables them.
    void disableUnbuiltCommands();
    void setupAutoSave();
    /// Not while the plan is being read, written or laid out: then when that is done.
    void closeLater();
    void connectPanes();
    void finishActions();
    /// What the form cannot say about the actions, in the language of the moment.
    void translateActions();
    void makeHiddenShortcuts();
    /// A list of recent plans would only cover one that is open.
    void showStartDialogs(bool isPlanOpen);

    std::unique_ptr<Ui::KWMainWin> m_ui;
    KWDocument m_document;
    std::unique_ptr<KWUserSettings> m_userSettings;
    std::unique_ptr<QPrinter> m_printer;
    KWStatusBar *m_statusBar = nullptr;
    KWPanes *m_panes;
    KWCommandGuard *m_guard;
    KWViewCommands *m_viewCommands;
    KWEditCommands *m_editCommands;
    KWFileCommands *m_fileCommands;
    KWHelpCommands *m_helpCommands;
    KWDialogCommands *m_dialogCommands;
    KWExportCommands *m_exportCommands;
    KWLayoutCommands *m_layoutCommands;
};
