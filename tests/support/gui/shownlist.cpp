#include "support/gui/shownlist.h"

#include "gui/exchange/kwdrag.h"

#include <QMouseEvent>

void DraggableList::runDrag(KWDrag *drag)
{
    QStringList names;
    for (const KWGuest *guest : KWDrag::decodeGuests(drag->mimeData(), document()))
        names.append(guest->displayName());
    drags.append(names.join(u' '));
    delete drag;
}

ShownList::ShownList(const QStringList &guests)
{
    list.resize(900, 400);
    list.show();
    list.activateWindow();
    for (const QString &name : guests)
        plan.addGuest({.display_name = name}, nullptr);
}

KWGuest *ShownList::guest(const char *displayName) const
{
    for (KWGuest *guest : plan.guests()) {
        if (guest->displayName() == s(displayName))
            return guest;
    }
    qFatal("no guest %s", displayName);
}

KWGuestListViewItem *ShownList::row(const char *displayName)
{
    return list.itemOfGuest(guest(displayName));
}

QString ShownList::names() const
{
    QStringList names;
    for (int i = 0; i < list.topLevelItemCount(); ++i)
        names.append(list.topLevelItem(i)->text(KWGuestListViewItem::DisplayName));
    return names.join(u' ');
}

QString ShownList::selected() const
{
    QStringList names;
    for (const QTreeWidgetItem *item : list.selectedRows())
        names.append(item->text(KWGuestListViewItem::DisplayName));
    return names.join(u' ');
}

void ShownList::select(const QList<const char *> &displayNames)
{
    list.clearSelection();
    for (const char *name : displayNames)
        row(name)->setSelected(true);
}

QPoint ShownList::middleOf(const char *displayName, int column)
{
    QTreeWidgetItem *item = row(displayName);
    list.scrollToItem(item);
    return list.visualRect(list.indexFromItem(item, column)).center();
}

void ShownList::click(const char *displayName, int column, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, middleOf(displayName, column));
}

void ShownList::press(Qt::MouseButton button, const QPoint &place)
{
    QTest::mousePress(list.viewport(), button, Qt::NoModifier, place);
}

void ShownList::moveTo(const QPoint &place)
{
    QMouseEvent move(QEvent::MouseMove, place, list.viewport()->mapToGlobal(place), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list.viewport(), &move);
}

void ShownList::release(Qt::MouseButton button, const QPoint &place)
{
    QTest::mouseRelease(list.viewport(), button, Qt::NoModifier, place);
}
