#pragma once

#include <QColor>
#include <QStyleOptionViewItem>
#include <QTreeWidget>

/// A row of a KWListView, which owns it.
class KWListViewItem : public QTreeWidgetItem
{
public:
    /// A row that is in no list yet.
    KWListViewItem();
    explicit KWListViewItem(QTreeWidget *parent);
    KWListViewItem(QTreeWidget *parent, QTreeWidgetItem *after);
    explicit KWListViewItem(QTreeWidgetItem *parent);

    /// Shows the commands for the row at the mouse and runs the one that is chosen.
    virtual void contextMenu() = 0;

    /// What the row is sorted by in a column, by default its text. The direction plays no part.
    virtual QString key(int column) const;
    /// What a cell that cannot show all of its text tells as a tip.
    virtual QString wholeText(int column) const;
    /// Sets how the row is painted: its background is the palette's base. The palette comes with
    /// the list's colours.
    virtual void prepareToPaint(QStyleOptionViewItem &option);

    /// Whether the user may edit the cell in its place; at first no cell.
    void setRenameEnabled(int column, bool enabled);
    bool isRenameEnabled(int column) const { return (m_renamable & (1U << column)) != 0; }

    /// By the keys, as the list's locale sorts names.
    bool operator<(const QTreeWidgetItem &other) const override;

private:
    unsigned m_renamable = 0;
};

/// A row with every other one of them striped, by their places in the list from the top.
class KWShadedListViewItem : public KWListViewItem
{
public:
    using KWListViewItem::KWListViewItem;

    /// Works out the row's background from that of the row above, which must be right: ask from
    /// the top.
    virtual QColor shade();

    void prepareToPaint(QStyleOptionViewItem &option) override;

private:
    QColor m_shade;
};
