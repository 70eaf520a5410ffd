#pragma once

#include <QStyledItemDelegate>

class KWListView;

/// Paints and edits the cells of a KWListView, which owns it. An edit is kept with Return and
/// dropped when it loses the focus. A picture stands in the middle of the
/// column if the header's text does.
class KWListViewDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit KWListViewDelegate(KWListView *list);

    /// The same height for every row, whatever is in it.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    KWListView *m_list;
};
