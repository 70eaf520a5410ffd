#include "gui/panes/kwlistview.h"

#include "gui/exchange/kwdrag.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/panes/kwlistviewdelegate.h"
#include "gui/panes/kwlistviewitem.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>

namespace {

/// The locale whose order of names the lists follow.
QLocale localeOfNames()
{
    // Without one, letters would go by their numbers, and É behind z.
    const QLocale locale = QLocale().collation();
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}
} // namespace

KWListView::KWListView(KWDocument *document, QWidget *parent, const QString &name)
    : QTreeWidget(parent)
    , KWView(document)
    , m_collator(localeOfNames())
{
    setObjectName(name);
    setAllColumnsShowFocus(true);
    setUniformRowHeights(true);
    setEditTriggers(SelectedClicked | EditKeyPressed);
    setItemDelegate(new KWListViewDelegate(this));
    header()->setStretchLastSection(false);
    // A column can be dragged down to nothing.
    header()->setMinimumSectionSize(0);
    connect(header(), &QHeaderView::sectionResized, &m_follower,
            [this](int column, int, int width) { columnResized(column, width); });
    connect(this, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem *item) { edit(item); });
    connect(this, &QTreeWidget::itemSelectionChanged, &m_follower, [this] { updateCommands(); });
    connectStripes();
}

void KWListView::connectStripes()
{
    const auto outdate = [this] { m_stripesOutdated = true; };
    connect(model(), &QAbstractItemModel::rowsInserted, &m_follower, outdate);
    connect(model(), &QAbstractItemModel::rowsRemoved, &m_follower, outdate);
    connect(model(), &QAbstractItemModel::rowsMoved, &m_follower, outdate);
    connect(model(), &QAbstractItemModel::layoutChanged, &m_follower, outdate);
    connect(model(), &QAbstractItemModel::modelReset, &m_follower, outdate);
    connect(this, &QTreeView::expanded, &m_follower, outdate);
    connect(this, &QTreeView::collapsed, &m_follower, outdate);
}

void KWListView::setThisViewActive()
{
    if (KWMainWindow *window = mainWin())
        window->setActiveView(this);
}

void KWListView::updateCommands()
{
    KWMainWindow *window = mainWin();
    if (window && window->activeView() == this)
        window->updateActionsOnViewChange();
}

void KWListView::showSelectedContextMenu()
{
    for (QTreeWidgetItem *item : selectedRows()) {
        if (auto *row = dynamic_cast<KWListViewItem *>(item)) {
            row->contextMenu();
            return;
        }
    }
}

int KWListView::numSelected()
{
    return static_cast<int>(selectedRows().size());
}

void KWListView::refreshContents()
{
    viewport()->update();
}

void KWListView::editProperties()
{
    const QList<QTreeWidgetItem *> rows = selectedRows();
    if (!rows.isEmpty())
        edit(rows.first());
}

void KWListView::keyboardSearch(const QString &search)
{
    QTreeWidget::keyboardSearch(search);
    setThisViewActive();
}

QList<QTreeWidgetItem *> KWListView::selectedRows() const
{
    // A row of the top level goes before those under it.
    using Place = std::pair<int, int>;
    std::vector<std::pair<Place, QTreeWidgetItem *>> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const QModelIndex parent = range.parent();
            const Place place = parent.isValid() ? Place(parent.row(), row) : Place(row, -1);
            rows.emplace_back(place, itemFromIndex(model()->index(row, 0, parent)));
        }
    }
    std::sort(rows.begin(), rows.end());
    QList<QTreeWidgetItem *> result;
    for (const auto &[place, item] : rows)
        result.append(item);
    return result;
}

void KWListView::runDrag(KWDrag *drag)
{
    drag->exec(Qt::MoveAction);
}

void KWListView::mousePressEvent(QMouseEvent *event)
{
    cancelPendingEdit();
    QTreeWidget::mousePressEvent(event);
    setThisViewActive();
    m_dragArmed = event->button() == Qt::LeftButton;
    if (m_dragArmed)
        m_pressPos = event->position().toPoint();
    else
        showSelectedContextMenu();
}

void KWListView::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeWidget::mouseReleaseEvent(event);
    m_dragArmed = false;
    m_doubleClicking = false;
}

void KWListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        mousePressEvent(event);
        return;
    }
    cancelPendingEdit();
    m_dragArmed = false;
    m_doubleClicking = true;
    QTreeWidget::mouseDoubleClickEvent(event);
}

// A click on a selected row opens an editor after a while, on whatever is the current cell then.
void KWListView::cancelPendingEdit()
{
    QTreeWidget::edit(currentIndex(), DoubleClicked, nullptr);
}

void KWListView::contextMenuEvent(QContextMenuEvent *event)
{
    // The mouse opens it at the press.
    if (event->reason() != QContextMenuEvent::Keyboard)
        return;
    setThisViewActive();
    m_menuByKey = true;
    showSelectedContextMenu();
    m_menuByKey = false;
}

QPoint KWListView::menuPosition() const
{
    const QList<QTreeWidgetItem *> rows = selectedRows();
    if (!m_menuByKey || rows.isEmpty())
        return QCursor::pos();
    const QRect row = visualItemRect(rows.first()).intersected(viewport()->rect());
    return viewport()->mapToGlobal(row.center());
}

void KWListView::keyReleaseEvent(QKeyEvent *event)
{
    QWidget::keyReleaseEvent(event);
    const bool moves = event->key() >= Qt::Key_Home && event->key() <= Qt::Key_PageDown;
    // The release of Ctrl itself comes without it among the modifiers.
    if (moves || event->key() == Qt::Key_Control || (event->modifiers() & Qt::ControlModifier))
        setThisViewActive();
}

void KWListView::paintEvent(QPaintEvent *event)
{
    if (m_stripesOutdated)
        restripe();
    QTreeWidget::paintEvent(event);
}

// Each row takes its colour from the one above, painted or not.
void KWListView::restripe()
{
    for (QTreeWidgetItem *item = topLevelItem(0); item; item = itemBelow(item)) {
        if (auto *row = dynamic_cast<KWShadedListViewItem *>(item))
            row->shade();
    }
    m_stripesOutdated = false;
}

void KWListView::resizeEvent(QResizeEvent *event)
{
    QTreeWidget::resizeEvent(event);
    fitLastColumn();
}

void KWListView::changeEvent(QEvent *event)
{
    QTreeWidget::changeEvent(event);
    if (event->type() == QEvent::LocaleChange)
        sortAnew();
}

void KWListView::sortAnew()
{
    m_collator = QCollator(localeOfNames());
    sortByColumn(sortColumn(), header()->sortIndicatorOrder());
}

bool KWListView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    QModelIndex cell = index;
    const auto *row = dynamic_cast<KWListViewItem *>(itemFromIndex(index));
    if (row && trigger == EditKeyPressed && !row->isRenameEnabled(index.column())) {
        // The key means the row: take the first cell that can be edited and seen.
        for (int column = 0; column < columnCount(); ++column) {
            if (row->isRenameEnabled(column) && columnWidth(column) > 0) {
                cell = index.siblingAtColumn(column);
                break;
            }
        }
    }
    if (row && !row->isRenameEnabled(cell.column()))
        return false;
    // A click into several selected rows leaves the one, and means no more than that.
    if (trigger == SelectedClicked && numSelected() != 1)
        return false;
    return QTreeWidget::edit(cell, trigger, event);
}

void KWListView::drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    if (auto *item = dynamic_cast<KWListViewItem *>(itemFromIndex(index)))
        item->prepareToPaint(row);
    painter->fillRect(row.rect, row.palette.base());
    QTreeWidget::drawRow(painter, row, index);
}

void KWListView::columnResized(int column, int width)
{
    if (m_fitting)
        return;
    if (column == columnCount() - 1)
        m_lastColumnWidth = width;
    fitLastColumn();
}

// Other than the stretching of the header, this leaves the column its own width where there is no
// room, and leaves it hidden.
void KWListView::fitLastColumn()
{
    if (m_lastColumnWidth == 0)
        return;
    const int last = columnCount() - 1;
    const int room = viewport()->width() - (header()->length() - columnWidth(last));
    m_fitting = true;
    setColumnWidth(last, std::max(m_lastColumnWidth, room));
    m_fitting = false;
}
