#include "gui/panes/kwlistviewitem.h"

#include "gui/appearance/kwcontrast.h"
#include "gui/panes/kwrowhost.h"

#include <QCollator>

namespace {

/// What the rows of all lists are painted on.
struct Grounds
{
    QColor plain;
    QColor stripe;
};

// As far from a dark ground as the stripe for light ones is from white.
QColor stripeOn(const QPalette &palette)
{
    const QColor ground = palette.color(QPalette::Base);
    return isDark(ground) ? mixed(ground, palette.color(QPalette::Highlight), 0.12F)
                          : QColor(224, 224, 255);
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

QString KWListViewItem::wholeText(int column) const
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
    const auto *host = dynamic_cast<const KWRowHost *>(treeWidget());
    const auto *row = dynamic_cast<const KWListViewItem *>(&other);
    if (!host || !row)
        return QTreeWidgetItem::operator<(other);
    const int column = treeWidget()->sortColumn();
    return host->collator().compare(key(column), row->key(column)) < 0;
}

QColor KWShadedListViewItem::shade()
{
    // Taken at the first call, once and for all lists.
    static const Grounds grounds{treeWidget()->palette().color(QPalette::Base),
                                 stripeOn(treeWidget()->palette())};
    m_shade = grounds.plain;
    if (treeWidget()->topLevelItem(0) == this)
        return m_shade;
    const auto *above = dynamic_cast<KWShadedListViewItem *>(treeWidget()->itemAbove(this));
    if (above && above->m_shade != grounds.stripe)
        m_shade = grounds.stripe;
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
