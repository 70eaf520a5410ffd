#include "kwlistviewdelegate.h"

#include "kwlistview.h"

#include <QFocusEvent>

namespace {

bool losesFocus(const QEvent &event)
{
    if (event.type() == QEvent::FocusOut)
        return static_cast<const QFocusEvent &>(event).reason() != Qt::PopupFocusReason;
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}
} // namespace

KWListViewDelegate::KWListViewDelegate(KWListView *list)
    : QStyledItemDelegate(list)
    , m_list(list)
{
}

void KWListViewDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                      const QModelIndex &index) const
{
    QStyledItemDelegate::setModelData(editor, model, index);
    QTreeWidgetItem *item = m_list->itemFromIndex(index);
    emit m_list->itemRenamed(item, index.column(), item->text(index.column()));
}

bool KWListViewDelegate::eventFilter(QObject *object, QEvent *event)
{
    auto *editor = qobject_cast<QWidget *>(object);
    if (!editor || !losesFocus(*event))
        return QStyledItemDelegate::eventFilter(object, event);
    emit closeEditor(editor, RevertModelCache);
    return event->type() == QEvent::KeyPress;
}

void KWListViewDelegate::initStyleOption(QStyleOptionViewItem *option,
                                         const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // Or a selected row's pictures would take on the colour that they stand on.
    const auto picture = index.data(Qt::DecorationRole).value<QPixmap>();
    if (!picture.isNull())
        option->icon.addPixmap(picture, QIcon::Selected);
    if (m_list->headerItem()->textAlignment(index.column()) & Qt::AlignHCenter)
        option->decorationPosition = QStyleOptionViewItem::Top;
}
