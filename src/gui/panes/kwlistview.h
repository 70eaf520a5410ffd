#pragma once

#include "gui/framework/kwview.h"
#include "gui/panes/kwrowhost.h"

#include <QCollator>
#include <QTreeWidget>

#include <optional>

class KWDrag;
class KWRowEditor;
class QHelpEvent;

/// The base of the panes that are lists: becomes the active view where it is used, opens the
/// context menu of the selected row, and lets cells be edited in their place. Its rows are
/// KWListViewItems.
class KWListView : public QTreeWidget, public KWView, public KWRowHost
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

    /// The selected rows from the top, each once.
    QList<QTreeWidgetItem *> selectedRows() const;
    /// At the mouse, or at the row if the menu was asked for by a key.
    QPoint menuPosition() const override;
    const QCollator &collator() const override { return m_collator; }

public slots:
    /// Makes this the view that the commands go to.
    virtual void setThisViewActive();

signals:
    /// A click, of which the second half of a double click is none.
    void rowClicked(QTreeWidgetItem *item, int column);
    /// The user has edited a cell, which shows the new text.
    void itemRenamed(QTreeWidgetItem *item, int column, const QString &text);

protected:
    /// Starts a drag, which Qt deletes, and waits for its end.
    virtual void runDrag(KWDrag *drag);
    /// Closes the editor that is open in a row, without keeping its text.
    void dropEdit();

    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QList<int> &roles = {}) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;

    /// From a left press to its release or to the start of a drag.
    bool m_dragArmed = false;
    /// Where the left press was, in the viewport.
    QPoint m_pressPos;

private:
    void connectRows();
    void connectEditor();
    bool showWholeText(const QHelpEvent &help);
    void restripe();
    void updateCommands();
    void sortAnew();
    void columnResized(int column, int width);
    void fitLastColumn();

    QCollator m_collator;
    KWRowEditor *m_rowEditor;
    /// What selectedRows() has collected, until rows or the selection change.
    mutable std::optional<QList<QTreeWidgetItem *>> m_selectedRows;
    /// From the second press of a double click to the next press.
    bool m_secondPress = false;
    bool m_stripesOutdated = true;
    bool m_menuByKey = false;
    /// The width of the last column without what it takes to fill the list.
    int m_lastColumnWidth = 0;
    bool m_fitting = false;
    /// Ends what follows the base's parts before those go, which they announce.
    QObject m_follower;
};
