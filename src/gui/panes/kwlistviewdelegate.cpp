#include "gui/panes/kwlistviewdelegate.h"

#include "gui/panes/kwlistview.h"

#include <QFocusEvent>
#include <QPainter>

#include <algorithm>

namespace {

/// The pictures are made for a light ground, which the colour of selected rows is not.
QPixmap onLightGround(const QPixmap &picture)
{
    QPixmap result(picture.size());
    result.setDevicePixelRatio(picture.devicePixelRatio());
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(QPointF(), picture.deviceIndependentSize()), 3, 3);
    painter.drawPixmap(0, 0, picture);
    return result;
}

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

QSize KWListViewDelegate::sizeHint(const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    constexpr int margins = 4;
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(std::max(option.fontMetrics.height(), option.decorationSize.height()) + margins);
    return size;
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
    const auto picture = index.data(Qt::DecorationRole).value<QPixmap>();
    if (!picture.isNull() && (option->state & QStyle::State_Selected))
        option->icon.addPixmap(onLightGround(picture), QIcon::Selected);
    if (m_list->headerItem()->textAlignment(index.column()) & Qt::AlignHCenter)
        option->decorationPosition = QStyleOptionViewItem::Top;
}
