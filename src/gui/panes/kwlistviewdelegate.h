#pragma once

#include <QStyledItemDelegate>

/// Paints the cells of a KWListView. A picture stands in the middle of the column if the header's
/// text does.
class KWListViewDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The same height for every row, whatever is in it.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};
