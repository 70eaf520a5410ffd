#include "gui/panes/kwlistview.h"

#include "gui/exchange/kwdrag.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/panes/kwlistviewitem.h"
#include "gui/panes/kwroweditor.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <map>

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
    , m_rowEditor(new KWRowEditor(this))
{
    setObjectName(name);
    setAllColumnsShowFocus(true);
    setUniformRowHeights(true);
    setItemDelegate(m_rowEditor);
    header()->setStretchLastSection(false);
    // A column can be dragged down to nothing.
    header()->setMinimumSectionSize(0);
    connect(header(), &QHeaderView::sectionResized, &m_follower,
            [this](int column, int, int width) { columnResized(column, width); });
    connect(this, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem *item) { edit(item); });
    connect(this, &QTreeWidget::itemSelectionChanged, &m_follower, [this] { updateCommands(); });
    // Another row is the first of the selection when they are sorted, which comes behind this.
    connect(
        header(), &QHeaderView::sortIndicatorChanged, &m_follower, [this] { updateCommands(); },
        Qt::QueuedConnection);
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem *item, int column) {
        if (!m_secondPress)
            emit rowClicked(item, column);
    });
    connectRows();
    connectEditor();
}

void KWListView::connectRows()
{
    const auto outdate = [this] {
        m_stripesOutdated = true;
        m_selectedRows.reset();
    };
    connect(model(), &QAbstractItemModel::rowsInserted, &m_follower, outdate);
    connect(model(), &QAbstractItemModel::rowsRemoved, &m_follower, outdate);
    connect(model(), &QAbstractItemModel::rowsMoved, &m_follower, outdate);
    connect(model(), &QAbstractItemModel::layoutChanged, &m_follower, outdate);
    connect(model(), &QAbstractItemModel::modelReset, &m_follower, outdate);
    connect(this, &QTreeView::expanded, &m_follower, outdate);
    connect(this, &QTreeView::collapsed, &m_follower, outdate);
}

void KWListView::connectEditor()
{
    connect(m_rowEditor, &KWRowEditor::kept, this,
            [this](const QModelIndex &cell, const QString &text) {
                QTreeWidgetItem *item = itemFromIndex(cell);
                // The row may get another place by its new text, where the cell is another.
                const int column = cell.column();
                item->setText(column, text);
                emit itemRenamed(item, column, text);
            });
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
    if (m_selectedRows)
        return *m_selectedRows;
    // A row of the top level goes before those under it. One that was sorted anew may be selected
    // in several ranges of columns.
    using Place = std::pair<int, int>;
    std::map<Place, QTreeWidgetItem *> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const QModelIndex parent = range.parent();
            const Place place = parent.isValid() ? Place(parent.row(), row) : Place(row, -1);
            rows.emplace(place, itemFromIndex(model()->index(row, 0, parent)));
        }
    }
    m_selectedRows.emplace();
    for (const auto &[place, item] : rows)
        m_selectedRows->append(item);
    return *m_selectedRows;
}

void KWListView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    m_selectedRows.reset();
    QTreeWidget::selectionChanged(selected, deselected);
}

void KWListView::runDrag(KWDrag *drag)
{
    drag->exec(Qt::MoveAction);
}

void KWListView::dropEdit()
{
    m_rowEditor->drop();
}

void KWListView::mousePressEvent(QMouseEvent *event)
{
    m_secondPress = false;
    m_rowEditor->forget();
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
}

void KWListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        mousePressEvent(event);
        return;
    }
    m_rowEditor->forget();
    m_dragArmed = false;
    m_secondPress = true;
    QTreeWidget::mouseDoubleClickEvent(event);
    // The base passes it on as a first press where the row is another now.
    m_secondPress = true;
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

// By whatever way it comes.
void KWListView::focusInEvent(QFocusEvent *event)
{
    QTreeWidget::focusInEvent(event);
    setThisViewActive();
}

void KWListView::focusOutEvent(QFocusEvent *event)
{
    m_rowEditor->forget();
    QTreeWidget::focusOutEvent(event);
}

bool KWListView::viewportEvent(QEvent *event)
{
    return (event->type() == QEvent::ToolTip && showWholeText(*static_cast<QHelpEvent *>(event))) ||
           QTreeWidget::viewportEvent(event);
}

// The pane's own tip stays for the rest.
bool KWListView::showWholeText(const QHelpEvent &help)
{
    const QModelIndex cell = indexAt(help.pos());
    auto *row = dynamic_cast<KWListViewItem *>(itemFromIndex(cell));
    if (!row)
        return false;
    constexpr int longest = 1000;
    const QString text = row->wholeText(cell.column()).left(longest);
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    row->prepareToPaint(option);
    const QRect place = visualRect(cell);
    const bool fits = itemDelegate()->sizeHint(option, cell).width() <= place.width();
    if (text.isEmpty() || (fits && text == row->text(cell.column())))
        return false;
    // Text could be taken for mark-up, and long text is broken into lines only as such.
    constexpr int oneLine = 80;
    const bool asMarkup = Qt::mightBeRichText(text) || text.size() > oneLine;
    QToolTip::showText(help.globalPos(),
                       asMarkup ? QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped())
                                : text,
                       viewport(), place);
    return true;
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
    if (trigger == AllEditTriggers)
        return QTreeWidget::edit(index, trigger, event);
    if (trigger == EditKeyPressed)
        return m_rowEditor->open(index);
    // A click into several selected rows leaves the one, and means no more than that.
    if (trigger == SelectedClicked && !m_secondPress && numSelected() == 1)
        m_rowEditor->openSoon(index);
    return false;
}

// How a whole row is painted may depend on any of its cells.
void KWListView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                             const QList<int> &roles)
{
    QTreeWidget::dataChanged(topLeft, bottomRight, roles);
    const QRect rows = visualRect(topLeft).united(visualRect(bottomRight));
    viewport()->update(0, rows.top(), viewport()->width(), rows.height());
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
