#include "gestures.h"

#include "gui/exchange/kwdrag.h"
#include "gui/floorplan/kwcanvasview.h"
#include "gui/floorplan/kwfloorplanitem.h"
#include "gui/panes/kwguestlistviewitem.h"
#include "gui/panes/kwguestslistview.h"
#include "gui/shell/kwmainwinimpl.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {
/// A plan that has grown beyond this takes no new guests or tables, or all would become slow.
constexpr int manyGuests = 40;
constexpr int manySeats = 150;

QString shown(const QPoint &place)
{
    return u"%1,%2"_s.arg(place.x()).arg(place.y());
}

/// What leads out of the program, and what waits for a click that would not come.
bool isOutOfPlay(const QAction &action)
{
    const QStringList out{u"m_helpWebPage"_s, u"m_helpWhatsThisAction"_s, u"m_fileExitAction"_s};
    return action.menu() || !action.objectName().startsWith(u"m_"_s) ||
           out.contains(action.objectName());
}

/// A widget that takes a key there; the window itself if no other has the keys.
QWidget *keyboard(QWidget &window)
{
    QWidget *focus = QApplication::focusWidget();
    return focus && focus->window() == &window ? focus : &window;
}
} // namespace

Gestures::Gestures(KWMainWinImpl &window, Dice &dice, GestureLog &log, RandomUser &user,
                   UndoWatch &watch)
    : m_window(window)
    , m_dice(dice)
    , m_log(log)
    , m_user(user)
    , m_watch(watch)
    , m_floorPlan(*window.findChild<KWCanvasView *>())
    , m_list(*window.findChild<KWGuestsListView *>())
{
}

bool Gestures::doOne(int step)
{
    struct Gesture
    {
        const char *name;
        int weight;
        void (Gestures::*act)();
        bool changesBeforeUndo;
    };
    static constexpr Gesture all[] = {
        {"a command", 8, &Gestures::command, false},
        {"a key", 4, &Gestures::key, false},
        {"a click on the floor plan", 5, &Gestures::clickFloorPlan, false},
        {"a drag on the floor plan", 4, &Gestures::dragOnFloorPlan, true},
        {"a drop", 5, &Gestures::drop, false},
        {"the wheel", 1, &Gestures::wheel, false},
        {"a click in the list", 5, &Gestures::clickList, false},
        {"keys in the list", 4, &Gestures::keysInList, true},
        {"an edit in a row", 4, &Gestures::editInRow, true},
        {"a drag from the list", 1, &Gestures::dragFromList, false},
        {"a panel", 4, &Gestures::panel, false},
        {"the find box", 1, &Gestures::find, false},
        {"the size of the window", 1, &Gestures::resize, false},
    };
    if (m_dice.oneIn(6) && bringSomethingToDo(step))
        return false;
    int total = 0;
    for (const Gesture &gesture : all)
        total += gesture.weight;
    int drawn = m_dice.below(total);
    for (const Gesture &gesture : all) {
        drawn -= gesture.weight;
        if (drawn < 0) {
            m_log.begin(step, QString::fromLatin1(gesture.name));
            (this->*gesture.act)();
            return gesture.changesBeforeUndo;
        }
    }
    Q_UNREACHABLE();
}

// In an empty plan, and with the panes hidden, most gestures do nothing.
bool Gestures::bringSomethingToDo(int step)
{
    const bool isEmpty = m_window.document()->isEmpty();
    if (!isEmpty && m_floorPlan.isVisible() && m_list.isVisible())
        return false;
    const QString name = isEmpty              ? u"m_fileOpenAction"_s
                         : m_list.isVisible() ? u"m_viewTopPaneAction"_s
                                              : u"m_viewLeftPaneAction"_s;
    m_log.begin(step, name);
    m_window.findChild<QAction *>(name)->trigger();
    return true;
}

void Gestures::command()
{
    const KWDocument &plan = *m_window.document();
    const bool isFull = plan.guestCount() > manyGuests || plan.seatCount() > manySeats;
    QList<QAction *> enabled;
    for (QAction *action : m_window.findChildren<QAction *>()) {
        if (action->isEnabled() && !isOutOfPlay(*action) &&
            !(isFull && action->objectName().startsWith(u"m_insert"_s)))
            enabled.append(action);
    }
    QAction *action = m_dice.oneOf(enabled);
    m_log.note(action->objectName());
    if (action->objectName() == u"m_editUndoAction"_s)
        m_watch.undo();
    else if (action->objectName() == u"m_editRedoAction"_s)
        m_watch.redo();
    else
        action->trigger();
}

void Gestures::press(const QString &keys)
{
    m_log.note(keys);
    const auto act = [&] { QTest::keySequence(keyboard(m_window), QKeySequence(keys)); };
    if (keys == u"Ctrl+Z"_s || keys == u"Ctrl+Y"_s)
        m_watch.expect(keys == u"Ctrl+Z"_s, act);
    else
        act();
}

void Gestures::key()
{
    const QStringList keys{u"Ctrl+Z"_s, u"Ctrl+Y"_s, u"Ctrl+Z"_s,    u"Ctrl+S"_s,    u"Ctrl+K"_s,
                           u"Ctrl+U"_s, u"Ctrl+E"_s, u"Ctrl+R"_s,    u"Ctrl+L"_s,    u"Ctrl+C"_s,
                           u"Del"_s,    u"F5"_s,     u"Tab"_s,       u"Shift+Tab"_s, u"Esc"_s,
                           u"Space"_s,  u"Return"_s, u"Ctrl+Left"_s, u"Ctrl+Up"_s,   u"F1"_s,
                           u"Ctrl+A"_s, u"Menu"_s};
    press(m_dice.oneOf(keys));
}

void Gestures::moveTo(QWidget *viewport, const QPoint &place, Qt::MouseButtons buttons)
{
    m_log.note(u"moves to "_s + shown(place));
    QMouseEvent move(QEvent::MouseMove, place, viewport->mapToGlobal(place), Qt::NoButton, buttons,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &move);
}

// Mostly where a table or a seat is, since the floor is large.
QPoint Gestures::placeOnFloorPlan()
{
    const QRect seen = m_floorPlan.viewport()->rect();
    const KWDocument &plan = *m_window.document();
    const KWTable *table = plan.tableAt(m_dice.below(plan.tableCount()));
    const int kind = m_dice.below(10);
    if (table && kind < 8) {
        KWCanvas &canvas = *m_floorPlan.canvas();
        const QGraphicsItem *item = canvas.itemOfTable(table);
        if (kind < 5 && table->seatCount() > 0)
            item = canvas.itemOfSeat(table, m_dice.below(table->seatCount()));
        QPoint place = m_floorPlan.mapFromScene(item->pos());
        place += QPoint(m_dice.below(5) - 2, m_dice.below(5) - 2);
        if (seen.contains(place))
            return place;
    }
    const int x = m_dice.below(seen.width());
    return {x, m_dice.below(seen.height())};
}

QPoint Gestures::placeInList()
{
    const QRect seen = m_list.viewport()->rect();
    if (m_list.topLevelItemCount() == 0 || m_dice.oneIn(8)) {
        const int x = m_dice.below(seen.width());
        return {x, m_dice.below(seen.height())};
    }
    QTreeWidgetItem *item = m_list.topLevelItem(m_dice.below(m_list.topLevelItemCount()));
    const int column = m_dice.below(m_list.columnCount());
    const QModelIndex cell = m_list.model()->index(m_list.indexOfTopLevelItem(item), column);
    m_list.scrollTo(cell);
    return m_list.visualRect(cell).center();
}

void Gestures::click(QAbstractScrollArea *view, const QPoint &place)
{
    const QList<Qt::KeyboardModifiers> modifiers{Qt::NoModifier, Qt::NoModifier, Qt::NoModifier,
                                                 Qt::ControlModifier, Qt::ShiftModifier};
    const int kind = m_dice.below(8);
    if (kind == 0) {
        m_log.note(u"double click at "_s + shown(place));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, place);
    } else if (kind == 1) {
        m_log.note(u"right click at "_s + shown(place));
        QTest::mouseClick(view->viewport(), Qt::RightButton, {}, place);
    } else if (kind == 2) {
        m_log.note(u"middle click at "_s + shown(place));
        QTest::mouseClick(view->viewport(), Qt::MiddleButton, {}, place);
    } else {
        const Qt::KeyboardModifiers held = m_dice.oneOf(modifiers);
        m_log.note(u"click at %1 with %2"_s.arg(shown(place)).arg(static_cast<int>(held)));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, held, place);
    }
}

void Gestures::clickFloorPlan()
{
    if (m_floorPlan.isVisible())
        click(&m_floorPlan, placeOnFloorPlan());
}

void Gestures::dragOnFloorPlan()
{
    if (!m_floorPlan.isVisible())
        return;
    const QStringList keys{u"Esc"_s, u"Del"_s, u"Ctrl+Z"_s, u"Ctrl+Y"_s, u"Ctrl+U"_s, u"Ctrl+K"_s,
                           u"F5"_s,  u"Tab"_s, u"Ctrl+R"_s, u"Ctrl+E"_s, u"Ctrl+L"_s, u"Ctrl+Up"_s};
    QWidget *viewport = m_floorPlan.viewport();
    QPoint place = placeOnFloorPlan();
    m_log.note(u"presses at "_s + shown(place));
    QTest::mousePress(viewport, Qt::LeftButton, {}, place);
    for (int i = m_dice.below(5); i >= 0; --i) {
        place += QPoint(m_dice.below(121) - 60, m_dice.below(121) - 60);
        moveTo(viewport, place, Qt::LeftButton);
        if (m_dice.oneIn(4))
            press(m_dice.oneOf(keys));
    }
    if (m_dice.oneIn(5))
        moveTo(viewport, place, Qt::NoButton);
    else
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, place);
}

void Gestures::drop()
{
    KWDocument &plan = *m_window.document();
    if (!m_floorPlan.isVisible() || plan.guestCount() == 0)
        return;
    QList<KWGuest *> guests;
    for (int i = m_dice.oneIn(2) ? 0 : m_dice.below(4); i >= 0; --i) {
        KWGuest *guest = plan.guestAt(m_dice.below(plan.guestCount()));
        // As the views, which drag nobody who is locked.
        if (!guest->isLocked() && !guests.contains(guest))
            guests.append(guest);
    }
    const QPoint place = placeOnFloorPlan();
    QStringList names;
    for (const KWGuest *guest : guests)
        names.append(guest->displayName());
    m_log.note(u"%1 at %2"_s.arg(names.join(u", "_s), shown(place)));
    QWidget *viewport = m_floorPlan.viewport();
    const std::unique_ptr<KWDrag> drag(new KWDrag(&plan, guests, viewport));
    QDragEnterEvent enter(place, Qt::MoveAction, drag->mimeData(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(viewport, &enter);
    QDragMoveEvent move(place, Qt::MoveAction, drag->mimeData(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(viewport, &move);
    if (m_dice.oneIn(8) || !move.isAccepted()) {
        m_log.note(u"leaves"_s);
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(viewport, &leave);
    } else {
        QDropEvent dropped(place, Qt::MoveAction, drag->mimeData(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(viewport, &dropped);
    }
}

void Gestures::wheel()
{
    if (!m_floorPlan.isVisible())
        return;
    const QPoint place = m_floorPlan.viewport()->rect().center();
    const int turn = (m_dice.oneIn(2) ? 1 : -1) * QWheelEvent::DefaultDeltasPerStep;
    const Qt::KeyboardModifiers held = m_dice.oneIn(2) ? Qt::ControlModifier : Qt::NoModifier;
    QWheelEvent event(place, m_floorPlan.viewport()->mapToGlobal(place), {}, QPoint(0, turn),
                      Qt::NoButton, held, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_floorPlan.viewport(), &event);
}

void Gestures::clickList()
{
    if (!m_list.isVisible())
        return;
    if (m_dice.oneIn(8)) {
        QHeaderView *header = m_list.header();
        const int column = m_dice.below(header->count());
        m_log.note(u"sorts by column %1"_s.arg(column));
        const QPoint place(header->sectionViewportPosition(column) + 5, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    } else {
        click(&m_list, placeInList());
    }
}

void Gestures::keysInList()
{
    if (!m_list.isVisible())
        return;
    const QStringList keys{u"Down"_s,
                           u"Up"_s,
                           u"Shift+Down"_s,
                           u"Shift+Up"_s,
                           u"Home"_s,
                           u"Shift+End"_s,
                           u"A"_s,
                           u"F2"_s,
                           u"Ctrl+A"_s,
                           u"Ctrl+Space"_s,
                           u"Ctrl+Shift+Down"_s,
                           u"Menu"_s};
    m_list.setFocus();
    for (int i = m_dice.below(4); i >= 0; --i)
        press(m_dice.oneOf(keys));
}

void Gestures::editInRow()
{
    if (!m_list.isVisible() || m_list.topLevelItemCount() == 0)
        return;
    QTest::mouseClick(m_list.viewport(), Qt::LeftButton, {}, placeInList());
    press(u"F2"_s);
    QWidget *editor = QApplication::focusWidget();
    if (!qobject_cast<QLineEdit *>(editor))
        return;
    m_user.use(editor);
    const QStringList ends{u"Return"_s,    u"Return"_s, u"Esc"_s,    u"Tab"_s,
                           u"Shift+Tab"_s, u"F5"_s,     u"Ctrl+L"_s, QString()};
    const QString end = m_dice.oneOf(ends);
    if (!end.isEmpty())
        press(end);
}

void Gestures::dragFromList()
{
    if (!m_list.isVisible())
        return;
    const QPoint place = placeInList();
    m_log.note(u"presses at "_s + shown(place));
    QTest::mousePress(m_list.viewport(), Qt::LeftButton, {}, place);
    moveTo(m_list.viewport(), place + QPoint(40, 5), Qt::LeftButton);
    QTest::mouseRelease(m_list.viewport(), Qt::LeftButton, {}, place + QPoint(40, 5));
}

void Gestures::panel()
{
    QWidget &view = m_dice.oneIn(2) ? static_cast<QWidget &>(m_list) : m_floorPlan;
    const QList<QWidget *> parts = RandomUser::usableParts(*view.parentWidget());
    if (!parts.isEmpty())
        m_user.use(m_dice.oneOf(parts));
}

void Gestures::find()
{
    auto *box = m_list.parentWidget()->findChild<QLineEdit *>();
    if (!box || !box->isVisible())
        return;
    box->setFocus();
    const QStringList texts{u"G1"_s, u"a"_s, u"["_s, u".*"_s, u"nobody"_s};
    box->setText(m_dice.oneOf(texts));
    m_log.note(box->text());
    const QStringList ends{u"Return"_s, u"Down"_s, u"Esc"_s};
    press(m_dice.oneOf(ends));
}

void Gestures::resize()
{
    const int width = 300 + m_dice.below(900);
    m_window.resize(width, 200 + m_dice.below(700));
}
