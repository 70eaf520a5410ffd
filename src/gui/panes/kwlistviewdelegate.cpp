#include "gui/panes/kwlistviewdelegate.h"

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
} // namespace

QSize KWListViewDelegate::sizeHint(const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    constexpr int margins = 4;
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(std::max(option.fontMetrics.height(), option.decorationSize.height()) + margins);
    return size;
}

void KWListViewDelegate::initStyleOption(QStyleOptionViewItem *option,
                                         const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const auto picture = index.data(Qt::DecorationRole).value<QPixmap>();
    if (!picture.isNull() && (option->state & QStyle::State_Selected))
        option->icon.addPixmap(onLightGround(picture), QIcon::Selected);
    const QVariant alignment =
        index.model()->headerData(index.column(), Qt::Horizontal, Qt::TextAlignmentRole);
    if (alignment.toInt() & Qt::AlignHCenter)
        option->decorationPosition = QStyleOptionViewItem::Top;
}
