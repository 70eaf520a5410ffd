#pragma once

#include <QObject>

class KWMainWindow;

namespace Ui {
class KWMainWin;
}

/// The commands that put guests and tables into the plan, each through a dialog.
class KWInsertCommands : public QObject
{
    Q_OBJECT

public:
    /// `window` owns this object and its actions.
    KWInsertCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window);

public slots:
    void insertNewGuest();
    void insertNewCircularTable();
    void insertNewRectTable();
    void insertNewHeadTable();
    void insertNewCustomTable();

private:
    void insertTable(int shape);

    KWMainWindow *m_window;
};
