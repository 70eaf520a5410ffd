#include "gui/panes/kwroweditor.h"

#include "gui/framework/kwonelinetext.h"
#include "gui/panes/kweditkeys.h"
#include "gui/panes/kwlistviewitem.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTreeWidget>

namespace {

QString withoutBlanksAtEnd(QString text)
{
    while (!text.isEmpty() && text.back().isSpace())
        text.chop(1);
    return text;
}
} // namespace

KWRowEditor::KWRowEditor(QTreeWidget *list)
    : KWListViewDelegate(list)
    , m_list(list)
{
    m_delay.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this, [this] {
        if (m_asked == m_list->currentIndex() && canEdit(m_asked))
            openCell(m_asked);
    });
}

bool KWRowEditor::canEdit(const QModelIndex &cell) const
{
    const auto *row = dynamic_cast<KWListViewItem *>(m_list->itemFromIndex(cell));
    return row && row->isRenameEnabled(cell.column()) && m_list->columnWidth(cell.column()) > 0;
}

bool KWRowEditor::open(const QModelIndex &cell)
{
    QModelIndex wanted = cell;
    for (int place = 0; !canEdit(wanted); ++place) {
        if (place == m_list->columnCount())
            return false;
        wanted = cell.siblingAtColumn(m_list->header()->logicalIndex(place));
    }
    openCell(wanted);
    return true;
}

void KWRowEditor::openCell(const QModelIndex &cell)
{
    forget();
    drop();
    m_cell = cell;
    m_list->selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    m_list->edit(cell);
}

void KWRowEditor::openSoon(const QModelIndex &cell)
{
    m_asked = cell;
    m_delay.start(QApplication::doubleClickInterval());
}

void KWRowEditor::forget()
{
    m_delay.stop();
}

void KWRowEditor::drop()
{
    if (auto *field = qobject_cast<QLineEdit *>(m_field)) {
        m_field = nullptr;
        emit closeEditor(field);
    }
}

QWidget *KWRowEditor::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    QWidget *editor = KWListViewDelegate::createEditor(parent, option, index);
    auto *field = qobject_cast<QLineEdit *>(editor);
    m_field = field;
    if (field)
        keepToOneLine(field);
    return editor;
}

void KWRowEditor::destroyEditor(QWidget *editor, const QModelIndex &index) const
{
    if (editor == m_field)
        m_field = nullptr;
    KWListViewDelegate::destroyEditor(editor, index);
}

// The view calls it at many an end of an edit, also when it is cleared of rows whose objects are
// gone.
void KWRowEditor::setModelData(QWidget *, QAbstractItemModel *, const QModelIndex &) const {}

bool KWRowEditor::eventFilter(QObject *object, QEvent *event)
{
    // The base would take the text with Tab, and wherever the focus goes.
    if (object != m_field)
        return false;
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        return handleShortcut(*static_cast<QKeyEvent *>(event));
    case QEvent::KeyPress:
        return handleKey(*static_cast<QKeyEvent *>(event));
    case QEvent::FocusOut:
        // The field's own menu is no farewell.
        if (static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason)
            drop();
        return false;
    default:
        return false;
    }
}

bool KWRowEditor::handleShortcut(QKeyEvent &key)
{
    const bool escape = key.key() == Qt::Key_Escape;
    key.setAccepted(escape);
    return escape || isEditCommand(key);
}

bool KWRowEditor::handleKey(const QKeyEvent &key)
{
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        keep();
        return true;
    case Qt::Key_Escape:
        drop();
        return true;
    case Qt::Key_Tab:
        keepAndMove(1);
        return true;
    case Qt::Key_Backtab:
        keepAndMove(-1);
        return true;
    default:
        return false;
    }
}

void KWRowEditor::keep()
{
    const QPersistentModelIndex cell = m_cell;
    const QString typed = qobject_cast<QLineEdit *>(m_field)->text();
    const QString text = withoutBlanksAtEnd(typed);
    const QString before = cell.data().toString();
    drop();
    if (typed != before && text != before)
        emit kept(cell, text);
}

void KWRowEditor::keepAndMove(int step)
{
    const QPersistentModelIndex cell = m_cell;
    keep();
    const QModelIndex next = neighbour(cell, step);
    if (!next.isValid())
        return;
    m_list->setCurrentIndex(next);
    openCell(next);
}

// The next cell that can be edited, as a person reads, or the one before; none behind the last.
QModelIndex KWRowEditor::neighbour(QModelIndex cell, int step) const
{
    const QHeaderView *header = m_list->header();
    int place = header->visualIndex(cell.column());
    while (cell.isValid()) {
        for (place += step; place >= 0 && place < header->count(); place += step) {
            const QModelIndex other = cell.siblingAtColumn(header->logicalIndex(place));
            if (canEdit(other))
                return other;
        }
        cell = step > 0 ? m_list->indexBelow(cell) : m_list->indexAbove(cell);
        place = step > 0 ? -1 : header->count();
    }
    return {};
}
