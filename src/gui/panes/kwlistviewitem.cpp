#include "gui/panes/kwlistviewitem.h"

#include "gui/panes/kwlistview.h"

#include <cmath>

namespace {

constexpr QColor stripe(224, 224, 255);

/// Relative luminance, 0 for black to 1 for white.
double luminance(const QColor &colour)
{
    const auto linear = [](float channel) {
        const auto part = static_cast<double>(channel);
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// 1 for equal colours to 21 for black on white.
double contrast(const QColor &a, const QColor &b)
{
    const double light = std::max(luminance(a), luminance(b));
    const double dark = std::min(luminance(a), luminance(b));
    return (light + 0.05) / (dark + 0.05);
}

/// `text` itself if it can be read on the background, else black or white.
QColor legible(const QColor &text, const QColor &background)
{
    constexpr double enough = 4.5;
    if (contrast(text, background) >= enough)
        return text;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return contrast(black, background) > contrast(white, background) ? black : white;
}
} // namespace

KWListViewItem::KWListViewItem() = default;

KWListViewItem::KWListViewItem(QTreeWidget *parent)
    : QTreeWidgetItem(parent)
{
}

KWListViewItem::KWListViewItem(QTreeWidget *parent, QTreeWidgetItem *after)
    : QTreeWidgetItem(parent, after)
{
}

KWListViewItem::KWListViewItem(QTreeWidgetItem *parent)
    : QTreeWidgetItem(parent)
{
}

QString KWListViewItem::key(int column) const
{
    return text(column);
}

void KWListViewItem::prepareToPaint(QStyleOptionViewItem &) {}

void KWListViewItem::setRenameEnabled(int column, bool enabled)
{
    const unsigned bit = 1U << column;
    m_renamable = enabled ? m_renamable | bit : m_renamable & ~bit;
    setFlags(flags().setFlag(Qt::ItemIsEditable, m_renamable != 0));
}

bool KWListViewItem::operator<(const QTreeWidgetItem &other) const
{
    const auto *list = dynamic_cast<const KWListView *>(treeWidget());
    const auto *row = dynamic_cast<const KWListViewItem *>(&other);
    if (!list || !row)
        return QTreeWidgetItem::operator<(other);
    const int column = list->sortColumn();
    return list->collator().compare(key(column), row->key(column)) < 0;
}

QColor KWShadedListViewItem::shade()
{
    // Taken at the first call, once and for all lists.
    static const QColor plain = treeWidget()->palette().color(QPalette::Base);
    m_shade = plain;
    if (treeWidget()->topLevelItem(0) == this)
        return m_shade;
    const auto *above = dynamic_cast<KWShadedListViewItem *>(treeWidget()->itemAbove(this));
    if (above && above->m_shade != stripe)
        m_shade = stripe;
    return m_shade;
}

void KWShadedListViewItem::prepareToPaint(QStyleOptionViewItem &option)
{
    const QColor background = shade();
    for (const QPalette::ColorGroup group :
         {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor text = option.palette.color(group, QPalette::Text);
        option.palette.setColor(group, QPalette::Base, background);
        option.palette.setColor(group, QPalette::Text, legible(text, background));
    }
}
