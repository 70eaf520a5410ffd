#include "support/gui/dialogchecks.h"

#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {

QString nameOf(const QWidget *widget)
{
    return widget->objectName().isEmpty() ? QString::fromLatin1(widget->metaObject()->className())
                                          : widget->objectName();
}

template <typename Widget>
QList<Widget *> visible(const QWidget *window)
{
    QList<Widget *> result;
    for (Widget *widget : window->findChildren<Widget *>()) {
        if (widget->isVisibleTo(window) && widget->window() == window->window())
            result.append(widget);
    }
    return result;
}

QChar mnemonicOf(const QString &text)
{
    const QKeySequence keys = QKeySequence::mnemonic(text);
    return keys.isEmpty() ? QChar() : QChar(keys[0].key());
}

bool isPartOf(const QWidget *widget, const char *outer)
{
    return widget->parentWidget() && widget->parentWidget()->inherits(outer);
}

/// What the user types or picks something in, as a whole.
QList<QWidget *> fields(const QWidget *window)
{
    QList<QWidget *> result;
    for (QWidget *widget : visible<QWidget>(window)) {
        const bool isField =
            qobject_cast<QLineEdit *>(widget) || qobject_cast<QAbstractSpinBox *>(widget) ||
            qobject_cast<QComboBox *>(widget) || qobject_cast<QTextEdit *>(widget) ||
            qobject_cast<QPlainTextEdit *>(widget);
        if (isField && !isPartOf(widget, "QAbstractSpinBox") && !isPartOf(widget, "QComboBox"))
            result.append(widget);
    }
    return result;
}

bool isInGroupOfItsOwn(const QWidget *field)
{
    for (const QWidget *outer = field->parentWidget(); outer; outer = outer->parentWidget()) {
        if (const auto *group = qobject_cast<const QGroupBox *>(outer))
            return !group->title().isEmpty() && fields(group).size() == 1;
    }
    return false;
}

/// What the Tab key goes through, in its order.
QList<QWidget *> tabStops(QWidget *window)
{
    QList<QWidget *> result;
    for (QWidget *widget = window->nextInFocusChain(); widget != window;
         widget = widget->nextInFocusChain()) {
        const bool takesTabs = (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
        if (takesTabs && widget->window() == window && widget->isVisibleTo(window) &&
            !isPartOf(widget, "QAbstractSpinBox") && !isPartOf(widget, "QComboBox"))
            result.append(widget);
    }
    return result;
}

/// The ancestor of a widget, or the widget itself, that is a child of `container`.
const QWidget *childHolding(const QWidget *container, const QWidget *widget)
{
    while (widget->parentWidget() != container)
        widget = widget->parentWidget();
    return widget;
}

bool isBackward(const QWidget *from, const QWidget *to)
{
    const QWidget *container = from->parentWidget();
    while (!container->isAncestorOf(to))
        container = container->parentWidget();
    const QRect a = childHolding(container, from)->geometry();
    const QRect b = childHolding(container, to)->geometry();
    const bool sameRow = a.top() <= b.bottom() && b.top() <= a.bottom();
    return sameRow ? b.right() < a.left() : b.bottom() < a.top();
}

void addMnemonics(QMap<QChar, QStringList> &owners, const QWidget *widget)
{
    const auto add = [&](const QString &text) {
        if (const QChar letter = mnemonicOf(text); !letter.isNull())
            owners[letter].append(nameOf(widget));
    };
    if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            add(tabs->tabText(i));
    } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        const QString keys = button->shortcut().toString(QKeySequence::PortableText);
        if (keys.startsWith("Alt+"_L1))
            add(u'&' + keys.mid(4));
    } else if (const auto *group = qobject_cast<const QGroupBox *>(widget)) {
        add(group->title());
    } else if (const auto *label = qobject_cast<const QLabel *>(widget); label && label->buddy()) {
        add(label->text());
    }
}

bool fits(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        if (label->wordWrap())
            return label->heightForWidth(label->width()) <= label->height();
        return label->minimumSizeHint().width() <= label->width() &&
               label->minimumSizeHint().height() <= label->height();
    }
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        return !edit->isReadOnly() ||
               edit->fontMetrics().horizontalAdvance(edit->text()) + 8 <= edit->width();
    if (const auto *spin = qobject_cast<const QSpinBox *>(widget)) {
        // A hint may be of the time before the box looked as it does now.
        constexpr int margins = 4;
        const auto *edit = spin->findChild<QLineEdit *>();
        if (edit->width() < edit->fontMetrics().horizontalAdvance(edit->text()) + margins)
            return false;
    }
    if (qobject_cast<const QGroupBox *>(widget))
        return widget->minimumSizeHint().width() <= widget->width();
    if (qobject_cast<const QAbstractButton *>(widget) ||
        qobject_cast<const QAbstractSpinBox *>(widget) || qobject_cast<const QTabBar *>(widget))
        return widget->sizeHint().width() <= widget->width() &&
               widget->sizeHint().height() <= widget->height();
    return true;
}

/// The buttons that a toolkit's widget draws for itself, such as those of a scrolling tab bar.
bool isInternal(const QWidget *widget)
{
    return isPartOf(widget, "QTabBar") || isPartOf(widget, "QLineEdit") ||
           isPartOf(widget, "QAbstractScrollArea");
}

struct Edges
{
    QStringList names;
    QSet<int> left;
    QSet<int> right;

    void add(const QWidget *widget)
    {
        names.append(nameOf(widget));
        left.insert(widget->geometry().left());
        right.insert(widget->geometry().right());
    }
    bool areRagged() const { return left.size() > 1 && right.size() > 1; }
};

QStringList raggedColumnsOf(const QGridLayout *grid, const QWidget *window)
{
    // By column, labels and fields apart.
    QMap<std::pair<int, bool>, Edges> columns;
    for (int i = 0; i < grid->count(); ++i) {
        const QWidget *widget = grid->itemAt(i)->widget();
        int row = 0, column = 0, rows = 0, width = 0;
        grid->getItemPosition(i, &row, &column, &rows, &width);
        if (!widget || !widget->isVisibleTo(window) || width > 1)
            continue;
        const bool isLabel = qobject_cast<const QLabel *>(widget);
        if (isLabel || fields(widget->parentWidget()).contains(const_cast<QWidget *>(widget)))
            columns[{column, isLabel}].add(widget);
    }
    QStringList faults;
    for (const Edges &edges : std::as_const(columns)) {
        if (edges.areRagged())
            faults.append("not in line: "_L1 + edges.names.join(", "_L1));
    }
    return faults;
}
} // namespace

namespace DialogChecks {

QStringList unnamedFields(QWidget *window)
{
    QStringList faults;
    QSet<const QWidget *> named;
    for (const QLabel *label : visible<QLabel>(window)) {
        named.insert(label->buddy());
        if (!mnemonicOf(label->text()).isNull() && !label->buddy() &&
            label->textFormat() != Qt::RichText && label->textFormat() != Qt::PlainText)
            faults.append("leads nowhere: "_L1 + nameOf(label));
    }
    for (const QWidget *field : fields(window)) {
        if (!named.contains(field) && field->accessibleName().isEmpty() &&
            !isInGroupOfItsOwn(field))
            faults.append("has no name: "_L1 + nameOf(field));
    }
    return faults;
}

QStringList backwardTabs(QWidget *window)
{
    QStringList faults;
    const QList<QWidget *> stops = tabStops(window);
    for (qsizetype i = 1; i < stops.size(); ++i) {
        if (isBackward(stops.at(i - 1), stops.at(i)))
            faults.append(u"%1 -> %2"_s.arg(nameOf(stops.at(i - 1)), nameOf(stops.at(i))));
    }
    return faults;
}

QStringList mnemonicClashes(QWidget *window)
{
    QMap<QChar, QStringList> owners;
    for (const QWidget *widget : visible<QWidget>(window)) {
        if (widget->isEnabled() && !isInternal(widget))
            addMnemonics(owners, widget);
    }
    QStringList faults;
    for (auto owner = owners.begin(); owner != owners.end(); ++owner) {
        owner->sort();
        if (owner->size() > 1)
            faults.append(u"Alt+%1: %2"_s.arg(owner.key()).arg(owner->join(", "_L1)));
    }
    return faults;
}

QStringList cutTexts(QWidget *window)
{
    QStringList faults;
    for (const QWidget *widget : visible<QWidget>(window)) {
        if (!isInternal(widget) && !fits(widget))
            faults.append(u"%1 has %2 x %3 and needs %4 x %5"_s.arg(nameOf(widget))
                              .arg(widget->width())
                              .arg(widget->height())
                              .arg(widget->sizeHint().width())
                              .arg(widget->sizeHint().height()));
    }
    return faults;
}

QStringList strayWidgets(QWidget *window)
{
    QStringList faults;
    for (const QWidget *widget : visible<QWidget>(window)) {
        const QWidget *parent = widget->parentWidget();
        const auto *area = parent->parentWidget()
                               ? qobject_cast<const QAbstractScrollArea *>(parent->parentWidget())
                               : nullptr;
        const bool scrolls = area && area->viewport() == parent;
        if (!scrolls && !widget->isWindow() && !isInternal(widget) &&
            !parent->rect().contains(widget->geometry()))
            faults.append("sticks out: "_L1 + nameOf(widget));
    }
    return faults;
}

QStringList raggedColumns(QWidget *window)
{
    QStringList faults;
    for (const QGridLayout *grid : window->findChildren<QGridLayout *>()) {
        if (grid->parentWidget() && grid->parentWidget()->isVisibleTo(window))
            faults += raggedColumnsOf(grid, window);
    }
    return faults;
}

QStringList onEachPage(QWidget *window, const Check &check)
{
    QTabWidget *tabs = visible<QTabWidget>(window).value(0);
    if (!tabs)
        return check(window);
    QStringList faults;
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        faults += check(window);
    }
    return faults;
}

} // namespace DialogChecks
