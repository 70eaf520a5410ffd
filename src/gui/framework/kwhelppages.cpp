#include "gui/framework/kwhelppages.h"

#include "gui/framework/kwhelpfile.h"
#include "gui/framework/kwhelpsearch.h"

#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int pageRole = Qt::UserRole;

/// The file of a page, without the place in it.
QString fileOf(const QTreeWidgetItem *item)
{
    return item->data(0, pageRole).toString().section(u'#', 0, 0);
}
} // namespace

KWHelpPages::KWHelpPages(QWidget *parent)
    : QWidget(parent)
    , m_searchEdit(new QLineEdit(this))
    , m_tree(new QTreeWidget(this))
    , m_noHitsLabel(new QLabel(tr("Not found on any page"), this))
{
    m_searchEdit->setObjectName(u"searchEdit"_s);
    m_searchEdit->setPlaceholderText(tr("Find on all pages"));
    m_searchEdit->setAccessibleName(tr("Find on all pages"));
    m_searchEdit->setToolTip(tr("Leaves the pages in sight that have these words (Ctrl+Shift+F)"));
    m_searchEdit->setClearButtonEnabled(true);
    m_tree->setHeaderHidden(true);
    m_tree->setToolTip(tr("The pages of the help"));
    m_tree->setAccessibleName(tr("Contents"));
    m_noHitsLabel->setObjectName(u"noHitsLabel"_s);
    m_noHitsLabel->setWordWrap(true);
    m_noHitsLabel->setMargin(4);
    m_noHitsLabel->hide();

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(2);
    column->addWidget(m_searchEdit);
    column->addWidget(m_noHitsLabel);
    column->addWidget(m_tree, 1);

    connect(m_tree, &QTreeWidget::currentItemChanged, this, &KWHelpPages::choose);
    connect(m_searchEdit, &QLineEdit::textChanged, this, &KWHelpPages::showHits);
    connect(m_searchEdit, &QLineEdit::returnPressed, this, &KWHelpPages::chooseFirstHit);
}

KWHelpPages::~KWHelpPages() = default;

void KWHelpPages::setFile(const KWHelpFile *file)
{
    const QSignalBlocker blocker(m_tree);
    m_tree->clear();
    m_homePage.clear();
    QStringList pages;
    QList<QTreeWidgetItem *> branch;
    for (const KWHelpEntry &entry : file->contents()) {
        branch.resize(entry.depth);
        auto *item =
            branch.isEmpty() ? new QTreeWidgetItem(m_tree) : new QTreeWidgetItem(branch.last());
        item->setText(0, entry.title);
        item->setData(0, pageRole, entry.page);
        branch.append(item);
        if (m_homePage.isEmpty())
            m_homePage = entry.page;
        if (const QString page = fileOf(item); !page.isEmpty() && !pages.contains(page))
            pages.append(page);
    }
    m_tree->expandAll();
    m_search = std::make_unique<KWHelpSearch>(file, pages);
    showHits();
}

void KWHelpPages::setCurrentPage(const QString &page)
{
    QTreeWidgetItem *shown = nullptr;
    for (QTreeWidgetItem *item : lines()) {
        const QString entry = item->data(0, pageRole).toString();
        if (!shown && !page.isEmpty() && entry.compare(page, Qt::CaseInsensitive) == 0)
            shown = item;
    }
    const QSignalBlocker blocker(m_tree);
    m_tree->setCurrentItem(shown);
}

QString KWHelpPages::words() const
{
    return m_searchEdit->text().simplified();
}

void KWHelpPages::startSearch()
{
    m_searchEdit->setFocus();
    m_searchEdit->selectAll();
}

void KWHelpPages::endSearch()
{
    m_searchEdit->clear();
}

void KWHelpPages::choose(const QTreeWidgetItem *item)
{
    if (item)
        emit pageChosen(item->data(0, pageRole).toString());
}

void KWHelpPages::showHits()
{
    if (!m_search)
        return;
    const QStringList hits = m_search->pagesWith(words());
    for (QTreeWidgetItem *item : lines())
        item->setHidden(!hits.contains(fileOf(item)) && !words().isEmpty());
    // A line stays with those below it.
    for (const QTreeWidgetItem *item : lines()) {
        for (QTreeWidgetItem *outer = item->parent(); outer && !item->isHidden();
             outer = outer->parent())
            outer->setHidden(false);
    }
    m_noHitsLabel->setVisible(hits.isEmpty() && !words().isEmpty());
}

void KWHelpPages::chooseFirstHit()
{
    const QStringList hits = m_search ? m_search->pagesWith(words()) : QStringList();
    for (QTreeWidgetItem *item : lines()) {
        if (!hits.contains(fileOf(item)))
            continue;
        m_tree->setFocus();
        m_tree->setCurrentItem(item);
        choose(item);
        return;
    }
}

QList<QTreeWidgetItem *> KWHelpPages::lines() const
{
    QList<QTreeWidgetItem *> all;
    for (QTreeWidgetItemIterator item(m_tree); *item; ++item)
        all.append(*item);
    return all;
}
