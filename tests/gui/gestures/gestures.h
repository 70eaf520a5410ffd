#pragma once

#include "dice.h"
#include "gesturelog.h"
#include "randomuser.h"
#include "undowatch.h"

class KWCanvasView;
class KWGuestsListView;
class KWMainWinImpl;
class QAbstractScrollArea;

/// What a person can do with the main window, each by chance.
class Gestures
{
public:
    Gestures(KWMainWinImpl &window, Dice &dice, GestureLog &log, RandomUser &user,
             UndoWatch &watch);

    /// Does one of them. Whether the plan may have changed before an undo point of it was made: a
    /// table's move and an edit in a row have no undo.
    bool doOne(int step);

private:
    bool bringSomethingToDo(int step);
    void command();
    void key();
    void clickFloorPlan();
    void dragOnFloorPlan();
    void drop();
    void wheel();
    void clickList();
    void keysInList();
    void editInRow();
    void dragFromList();
    void panel();
    void find();
    void resize();

    void press(const QString &keys);
    void click(QAbstractScrollArea *view, const QPoint &place);
    void moveTo(QWidget *viewport, const QPoint &place, Qt::MouseButtons buttons);
    QPoint placeOnFloorPlan();
    QPoint placeInList();
    QStringList guestsToDrag();

    KWMainWinImpl &m_window;
    Dice &m_dice;
    GestureLog &m_log;
    RandomUser &m_user;
    UndoWatch &m_watch;
    KWCanvasView &m_floorPlan;
    KWGuestsListView &m_list;
};
