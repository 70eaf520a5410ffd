#pragma once

#include <QDateTime>
#include <QDir>
#include <QObject>
#include <QStringList>

#include <functional>

class KWEditCommands;
class KWMainWindow;
class KWPanes;
class KWTimer;
struct KWViewSettings;

namespace Ui {
class KWMainWin;
}

/// The commands on plan files: new, open, save, the dated backups beside a plan and the list of
/// recent plans; and the dialogs of the plan's facts and of the preferences.
class KWFileCommands : public QObject
{
    Q_OBJECT

public:
    using Clock = std::function<QDateTime()>;

    /// None of the pointers is owned. File dialogs start in the subdirectory "plans" of the
    /// current directory if there is one, else in the current directory itself.
    KWFileCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window, KWPanes *panes,
                   KWEditCommands *edit, const Clock &clock);

    /// Fetches the list of recent plans from the settings.
    void loadRecentFiles();
    const QStringList &recentFiles() const { return m_recentFiles; }

    /// Replaces the plan by a file's and tells of all that goes wrong; after a failure the plan is
    /// empty and has no file.
    void openPlan(const QString &path);
    /// Opens a plan that a page of the help offers, if the user does not want to keep the present
    /// one.
    void openExample(const QString &path);
    /// Saves the plan and tells of a failure; the plan then stays modified.
    void savePlan(const QString &path);
    /// Copies the file of a plan to one beside it with the time in its name.
    bool backupPlan(const QString &path);
    /// Copies a file over another and makes the directory for it. True also when single blocks
    /// could not be read or written.
    static bool copyFile(const QString &from, const QString &to);
    /// Turns the timed backups on or off; `minutes` is the time between two.
    void setupAutoSave(bool on, int minutes);
    /// Backups stay out of the list.
    void addToRecentFiles(const QString &path);

    /// With a separator at its end, and native ones.
    QString planDirPath() const;
    /// Empty for a plan without a file.
    QString docPath() const;

    bool changedSinceBackup() const { return m_changedSinceBackup; }
    void setChangedSinceBackup(bool changed) { m_changedSinceBackup = changed; }

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
    void fileInformation();
    void preferences();

private:
    enum SaveAnswer { Save, DontSave, Cancel };
    SaveAnswer askToSave();
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
    Clock m_clock;
    QDir m_planDir;
    bool m_changedSinceBackup = false;
    KWTimer *m_autoSaveTimer = nullptr;
    /// The newest first, at most 5.
    QStringList m_recentFiles;
};
