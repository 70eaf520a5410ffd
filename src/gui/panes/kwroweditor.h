#pragma once

#include "gui/panes/kwlistviewdelegate.h"

#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QTimer>

class QTreeWidget;

/// Lets the cells of a KWListView be edited in their place, one at a time, and paints them: the
/// toolkit asks its delegate for both. A text is kept with Return, or with Tab on the way to the
/// next cell, and by nothing else: whatever the toolkit takes for the end of an edit drops it.
class KWRowEditor : public KWListViewDelegate
{
    Q_OBJECT

public:
    /// `list`, whose rows are KWListViewItems, owns it.
    explicit KWRowEditor(QTreeWidget *list);

    /// Opens the cell, or if that cannot be edited and seen the first one of its row that can be;
    /// false if there is none.
    bool open(const QModelIndex &cell);
    /// Opens the cell if it is still the current one when it is clear that a click was no half of
    /// a double click, and forget() was not called.
    void openSoon(const QModelIndex &cell);
    void forget();
    /// Closes what is open, without keeping its text.
    void drop();

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void destroyEditor(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

signals:
    /// The user has changed the text of a cell to this.
    void kept(const QModelIndex &cell, const QString &text);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool canEdit(const QModelIndex &cell) const;
    void openCell(const QModelIndex &cell);
    static bool handleShortcut(QKeyEvent &key);
    bool handleKey(const QKeyEvent &key);
    void keep();
    void keepAndMove(int step);
    QModelIndex neighbour(QModelIndex cell, int step) const;

    QTreeWidget *m_list;
    QTimer m_delay;
    /// What the delay is for.
    QPersistentModelIndex m_asked;
    QPersistentModelIndex m_cell;
    /// A line edit, but for the moment in which it is destroyed.
    mutable QPointer<QObject> m_field;
};
