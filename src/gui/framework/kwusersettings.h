#pragma once

#include <QSettings>
#include <QStringList>

/// What the program keeps for its user on this machine, apart from any plan. Every value is read
/// from and written to the store at each use; one that is missing or makes no sense gives its
/// default, and a number out of its range the nearest end of it.
class KWUserSettings : public QSettings
{
    Q_OBJECT

public:
    enum StopCriteria { StopAfterSeconds = 1, StopAfterGenerations = 2, StopAfterEither = 3 };

    explicit KWUserSettings(QObject *parent = nullptr);

    bool backupOnSave() const { return flag(u"backup/on_save", true); }
    void setBackupOnSave(bool on) { setValue(u"backup/on_save", on); }
    bool backupAutoOn() const { return flag(u"backup/auto_on", true); }
    void setBackupAutoOn(bool on) { setValue(u"backup/auto_on", on); }
    /// 1 to 60 minutes.
    int backupAutoInterval() const { return number(u"backup/auto_interval", 10, 1, 60); }
    void setBackupAutoInterval(int minutes) { setValue(u"backup/auto_interval", minutes); }

    /// Whether to show a warning, by its key such as "warning/delete_guest".
    bool warning(const QString &key) const { return flag(key, true); }
    void setWarning(const QString &key, bool on) { setValue(key, on); }
    bool warningDeleteGuest() const { return flag(u"warning/delete_guest", true); }
    void setWarningDeleteGuest(bool on) { setValue(u"warning/delete_guest", on); }
    bool warningDeleteTable() const { return flag(u"warning/delete_table", true); }
    void setWarningDeleteTable(bool on) { setValue(u"warning/delete_table", on); }
    bool warningAutolayoutUnassign() const { return flag(u"warning/autolayout_unassign", true); }
    void setWarningAutolayoutUnassign(bool on) { setValue(u"warning/autolayout_unassign", on); }
    bool warningDuplicateGuest() const { return flag(u"warning/duplicate_guest", true); }
    void setWarningDuplicateGuest(bool on) { setValue(u"warning/duplicate_guest", on); }

    bool helpShowGettingStarted() const { return flag(u"help/show_getting_started", true); }
    void setHelpShowGettingStarted(bool on) { setValue(u"help/show_getting_started", on); }
    bool miscShowToolTips() const { return flag(u"misc/show_tool_tips", true); }
    void setMiscShowToolTips(bool on) { setValue(u"misc/show_tool_tips", on); }
    bool miscCapitaliseNames() const { return flag(u"misc/capitalise_names", true); }
    void setMiscCapitaliseNames(bool on) { setValue(u"misc/capitalise_names", on); }
    bool appearanceMaximised() const { return flag(u"appearance/maximised", true); }
    void setAppearanceMaximised(bool on) { setValue(u"appearance/maximised", on); }

    /// 10 to 99999 seconds.
    int solverMaxSeconds() const { return number(u"solver/maxSeconds", 60, 10, 99999); }
    void setSolverMaxSeconds(int seconds) { setValue(u"solver/maxSeconds", seconds); }
    /// 1 to 99999 generations.
    int solverMaxGenerationsUnimproved() const
    {
        return number(u"solver/maxGenerationsUnimproved", 20, 1, 99999);
    }
    void setSolverMaxGenerationsUnimproved(int generations)
    {
        setValue(u"solver/maxGenerationsUnimproved", generations);
    }
    /// A StopCriteria, or whatever other number is stored.
    int solverStopCriteria() const;
    void setSolverStopCriteria(int criteria) { setValue(u"solver/stopCriteria", criteria); }

    /// Absolute paths, the newest first.
    QStringList mostRecentFiles() const { return value(u"most_recent/files").toStringList(); }
    void setMostRecentFiles(const QStringList &paths) { setValue(u"most_recent/files", paths); }
    bool mostRecentShowAtStart() const { return flag(u"most_recent/show_at_start", false); }
    void setMostRecentShowAtStart(bool on) { setValue(u"most_recent/show_at_start", on); }

private:
    bool flag(QAnyStringView key, bool missing) const;
    int number(QAnyStringView key, int missing, int smallest, int largest) const;
};
