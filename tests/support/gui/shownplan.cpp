#include "support/gui/shownplan.h"

#include "gui/exchange/kwdrag.h"

#include <QMouseEvent>

void DraggablePlan::runDrag(KWDrag *drag)
{
    QStringList names;
    for (const KWGuest *guest : KWDrag::decodeGuests(drag->mimeData(), document()))
        names.append(guest->displayName());
    drags.append(names.join(u' '));
    delete drag;
}

ShownPlan::ShownPlan()
{
    plan.setRoomXSize(10);
    plan.setRoomYSize(8);
    plan.setChairSize(0.5);
    canvas.resizeToRoom();
    view.resize(800, 600);
    view.show();
    view.activateWindow();
    if (!QTest::qWaitForWindowActive(&view))
        qFatal("no keys");
}

KWTable *ShownPlan::table(const char *name, int shape, int seats, const QPoint &centre)
{
    return plan.addTable(shape, s(name), seats, 0, 0, 0, centre, {});
}

KWGuest *ShownPlan::seat(const char *name, KWTable *table, int seat, bool locked)
{
    KWGuest *guest = addGuest(plan, {name});
    plan.assignGuest(guest, table, seat, false);
    plan.setGuestLocked(guest, locked);
    return guest;
}

QString ShownPlan::guestAt(const KWTable *table, int seat) const
{
    KWGuest *guest = nullptr;
    return plan.guestAtSeat(table, seat, &guest) ? guest->displayName() : QString();
}

QPoint ShownPlan::placeOf(const KWTable *table) const
{
    return placeOf(canvas.itemOfTable(table)->pos());
}

QPoint ShownPlan::placeOf(const KWTable *table, int seat) const
{
    return placeOf(canvas.itemOfSeat(table, seat)->pos());
}

void ShownPlan::press(Qt::MouseButton button, const QPoint &place)
{
    QTest::mousePress(view.viewport(), button, {}, place);
}

void ShownPlan::moveTo(const QPoint &place, Qt::MouseButtons buttons)
{
    QMouseEvent move(QEvent::MouseMove, place, view.viewport()->mapToGlobal(place), Qt::NoButton,
                     buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(view.viewport(), &move);
}

void ShownPlan::release(Qt::MouseButton button, const QPoint &place)
{
    QTest::mouseRelease(view.viewport(), button, {}, place);
}

void ShownPlan::click(const QPoint &place)
{
    press(Qt::LeftButton, place);
    release(Qt::LeftButton, place);
}

bool ShownPlan::dragOver(const QMimeData *data, const QPoint &place)
{
    QDragEnterEvent enter(place, Qt::MoveAction, data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view.viewport(), &enter);
    QDragMoveEvent move(place, Qt::MoveAction, data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view.viewport(), &move);
    return enter.isAccepted() && move.isAccepted();
}

bool ShownPlan::takes(const QList<KWGuest *> &guests, const QPoint &place)
{
    const std::unique_ptr<KWDrag> drag(new KWDrag(&plan, guests, view.viewport()));
    return dragOver(drag->mimeData(), place);
}

bool ShownPlan::drop(const QList<KWGuest *> &guests, const QPoint &place)
{
    const std::unique_ptr<KWDrag> drag(new KWDrag(&plan, guests, view.viewport()));
    dragOver(drag->mimeData(), place);
    QDropEvent drop(place, Qt::MoveAction, drag->mimeData(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(view.viewport(), &drop);
    return drop.isAccepted();
}
