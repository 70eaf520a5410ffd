#pragma once

#include <QObject>

class KWGroup;
class KWGuest;
class KWMainWindow;
class KWTable;

namespace Ui {
class KWMainWin;
}

/// The commands that open a dialog and leave all else to it: for new guests and tables, for the
/// properties of those that there are, for the facts of the plan and for the preferences.
class KWDialogCommands : public QObject
{
    Q_OBJECT

public:
    /// `window` owns this object and its actions.
    KWDialogCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window);

    void editGuest(KWGuest *guest);
    void editGroup(KWGroup *group);
    void editTable(KWTable *table);

public slots:
    void insertNewGuest();
    void insertNewCircularTable();
    void insertNewRectTable();
    void insertNewHeadTable();
    void insertNewCustomTable();
    void fileInformation();
    void preferences();

signals:
    /// The user has accepted the preferences.
    void preferencesChanged();

private:
    void insertTable(int shape);

    KWMainWindow *m_window;
};
