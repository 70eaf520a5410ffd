#pragma once

#include "gui/shell/kwbackups.h"
#include "gui/shell/kwrecentplans.h"

#include <QDir>

class KWCommandGuard;
class KWEditCommands;
class KWMainWindow;
class KWPanes;
struct KWViewSettings;

namespace Ui {
class KWMainWin;
}

/// The commands on plan files: new, open and save, with their backups and the list of recent plans.
class KWFileCommands : public QObject
{
    Q_OBJECT

public:
    /// None of the pointers is owned. File dialogs start in the subdirectory "plans" of the
    /// current directory if there is one, else in the current directory itself; later where the
    /// last plan was opened or saved.
    KWFileCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window, KWPanes *panes,
                   KWEditCommands *edit, KWCommandGuard *guard, const KWBackups::Clock &clock);

    KWBackups *backups() { return &m_backups; }
    const KWRecentPlans &recentPlans() const { return m_recentPlans; }

    /// Replaces the plan by a file's and tells of all that goes wrong; after a failure the plan is
    /// empty and has no file. Whether it was opened.
    bool openPlan(const QString &path);
    /// Opens a plan that a page of the help offers, if the user does not want to keep the present
    /// one.
    void openExample(const QString &path);
    /// Saves the plan and tells of a failure; the plan then stays modified.
    void savePlan(const QString &path);

    /// With a separator at its end, and native ones.
    QString planDirPath() const;
    /// Empty for a plan without a file.
    QString docPath() const;

    /// Asks what to do with changes that are not saved, and saves if wanted; false if the user
    /// does not want to go on.
    bool maySaveAndClose();

public slots:
    void fileNew();
    void fileOpen();
    void fileOpenRecent();
    void fileSave();
    void fileSaveAs();
    /// Backs the plan's file up if the plan has changed since the last backup.
    void autoSave();
    void updateMostRecentAction();

private:
    enum SaveAnswer { Save, DontSave, Cancel };
    SaveAnswer askToSave();
    /// A file that was opened or saved is the last one used.
    void noteUse(const QString &path);
    /// Where opening begins: a user who has no plan yet is shown the examples.
    QString openDirPath() const;
    /// The result of KWDocument::load(), which is left to read files only.
    int loadPlan(const QString &path, KWViewSettings &settings, bool &otherVersion);
    void reportLoadResult(int result, const QString &path);
    void warnOfOtherVersion();

    Ui::KWMainWin *m_ui;
    KWMainWindow *m_window;
    KWPanes *m_panes;
    KWEditCommands *m_edit;
    KWCommandGuard *m_guard;
    KWBackups m_backups;
    KWRecentPlans m_recentPlans;
    QDir m_planDir;
    /// A plan is being read or written.
    bool m_transferring = false;
};
