#pragma once

#include "gui/framework/kwview.h"

#include <QCollator>
#include <QTreeWidget>

class KWDrag;

/// The base of the panes that are lists: becomes the active view where it is used, opens the
/// context menu of the selected row, and lets cells be edited in their place. Its rows are
/// KWListViewItems.
class KWListView : public QTreeWidget, public KWView
{
    Q_OBJECT

public:
    /// `document` is not owned and outlives the list.
    KWListView(KWDocument *document, QWidget *parent, const QString &name);

    /// Opens the dialog of what the row stands for; does nothing for null and other rows.
    virtual void edit(QTreeWidgetItem *item) = 0;
    using QTreeWidget::edit;
    /// Opens the menu of the first selected row, if there is one.
    virtual void showSelectedContextMenu();
    virtual int numSelected();
    virtual void refreshContents();

    void editProperties() override;
    void keyboardSearch(const QString &search) override;

    /// The selected rows from the top.
    QList<QTreeWidgetItem *> selectedRows() const;
    /// Where a context menu belongs: at the mouse, or at the row if it was asked for by a key.
    QPoint menuPosition() const;
    /// How the rows are sorted.
    const QCollator &collator() const { return m_collator; }

public slots:
    /// Makes this the view that the commands go to.
    virtual void setThisViewActive();

signals:
    /// The user has edited a cell, which shows the new text.
    void itemRenamed(QTreeWidgetItem *item, int column, const QString &text);

protected:
    /// Starts a drag, which Qt deletes, and waits for its end.
    virtual void runDrag(KWDrag *drag);

    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;

    /// From a left press to its release or to the start of a drag.
    bool m_dragArmed = false;
    /// The second press of a double click is no click of its own.
    bool m_doubleClicking = false;
    /// Where the left press was, in the viewport.
    QPoint m_pressPos;

private:
    void connectStripes();
    void cancelPendingEdit();
    void restripe();
    void updateCommands();
    void sortAnew();
    void columnResized(int column, int width);
    void fitLastColumn();

    QCollator m_collator;
    bool m_stripesOutdated = true;
    bool m_menuByKey = false;
    /// The width of the last column without what it takes to fill the list.
    int m_lastColumnWidth = 0;
    bool m_fitting = false;
    /// Ends what follows the base's parts before those go, which they announce.
    QObject m_follower;
};
