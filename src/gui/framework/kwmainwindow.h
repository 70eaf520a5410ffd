#pragma once

#include <QPoint>
#include <QString>

class KWDocument;
class KWGroup;
class KWGuest;
class KWTable;
class KWUserSettings;
class KWView;
class QAction;
class QPrinter;
class QWidget;

/// What panes and dialogs need from the main window. mainWin() gives the one there is.
class KWMainWindow
{
public:
    virtual ~KWMainWindow();
    KWMainWindow(const KWMainWindow &) = delete;
    KWMainWindow &operator=(const KWMainWindow &) = delete;

    /// The caption of every message box.
    static QString productName();
    static int majorVersion();
    static int minorVersion();
    static int patchVersion();
    /// "1.2.14"
    static QString versionText();

    /// The window itself, as the parent of dialogs.
    virtual QWidget *widget() = 0;
    /// The live plan.
    virtual KWDocument *document() = 0;
    virtual KWUserSettings *userSettings() = 0;
    /// The only printer of the program; it keeps the user's choices.
    virtual QPrinter *printer() = 0;

    /// The undo point: called once before each change that the user can undo, with the translated
    /// words for the menu. Ends the possibility of a redo.
    virtual void saveUndoState(const QString &label) = 0;

    /// `view` receives the commands of the Edit menu from now on; null for none. Every view calls
    /// this when it is clicked or gets the keyboard focus.
    virtual void setActiveView(KWView *view) = 0;
    virtual KWView *activeView() const = 0;
    /// To be called when what the active view can do may have changed.
    virtual void updateActionsOnViewChange() = 0;
    virtual void updatePrintAction() = 0;
    virtual void updateCopyAction() = 0;

    /// The commands of the menu bar that context menus show, too. They are enabled for the active
    /// view. SetAffinity opens the menu of proximities.
    enum EditAction {
        EditProperties,
        ShowGuestInPlan,
        SetAffinity,
        RotateTable,
        Lock,
        Accepted,
        Unassign,
        Delete
    };
    virtual QAction *editAction(EditAction action) = 0;

    /// Opens the dialog of a guest, a group or a table and returns when it is closed.
    virtual void editGuest(KWGuest *guest) = 0;
    virtual void editGroup(KWGroup *group) = 0;
    virtual void editTable(KWTable *table) = 0;

    /// The middle of what the floor plan shows, in canvas units.
    virtual QPoint floorPlanCentre() = 0;
    /// Moves a table that has just been made to a free place near where it stands.
    virtual void placeNewTable(KWTable *table) = 0;
    /// Shows the last of the tables that have just been made on the floor plan, which takes the
    /// focus.
    virtual void showNewTable(KWTable *table) = 0;

    /// Shows a short text on the status bar for two seconds.
    virtual void showStatusMessage(const QString &text) = 0;
    /// How far long work has come, on the status bar; 100 ends it.
    virtual void setProgress(int percent) = 0;

protected:
    /// Makes this the window that mainWin() gives; the destructor takes it back.
    KWMainWindow();
};

/// The main window, or null when there is none.
KWMainWindow *mainWin();
