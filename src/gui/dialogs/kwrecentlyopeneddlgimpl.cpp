#include "gui/dialogs/kwrecentlyopeneddlgimpl.h"

#include "gui/framework/kwusersettings.h"
#include "ui_kwrecentlyopeneddlg.h"

#include <QDir>
#include <QFileInfo>

namespace {

enum Column { File, Location };

QString absoluteNativePath(const QString &path)
{
    return QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
}
} // namespace

KWRecentlyOpenedDlgImpl::KWRecentlyOpenedDlgImpl(QWidget *parent, const QStringList &paths,
                                                 const QString &openPlan, KWUserSettings *settings)
    : KWHelpDialog(parent)
    , m_ui(std::make_unique<Ui::KWRecentlyOpenedDlg>())
    , m_settings(settings)
{
    m_ui->setupUi(this);
    m_ui->m_showAtStartCheckBox->setChecked(m_settings->mostRecentShowAtStart());
    addRows(paths, openPlan);
    fitToRows();

    connect(m_ui->m_filesListView, &QTreeWidget::itemSelectionChanged, this,
            &KWRecentlyOpenedDlgImpl::updateButtonStatus);
    connect(m_ui->m_filesListView, &QTreeWidget::itemDoubleClicked, this, &QDialog::accept);
    updateButtonStatus();
    finish(QStringLiteral("Most_recently_accessed_window.htm"), m_ui->m_helpButton);
}

KWRecentlyOpenedDlgImpl::~KWRecentlyOpenedDlgImpl() = default;

void KWRecentlyOpenedDlgImpl::addRows(const QStringList &paths, const QString &openPlan)
{
    const QString open = openPlan.isEmpty() ? QString() : absoluteNativePath(openPlan);
    for (const QString &path : paths) {
        const QString location = absoluteNativePath(path);
        const QFileInfo file(location);
        if (file.isFile() && location != open)
            new QTreeWidgetItem(m_ui->m_filesListView, {file.fileName(), location});
    }
    if (QTreeWidgetItem *first = m_ui->m_filesListView->topLevelItem(0))
        m_ui->m_filesListView->setCurrentItem(first);
}

// As wide as the paths need, within what a small screen has; beyond that the list scrolls.
void KWRecentlyOpenedDlgImpl::fitToRows()
{
    const int letter = fontMetrics().averageCharWidth();
    QTreeWidget *list = m_ui->m_filesListView;
    list->resizeColumnToContents(File);
    list->resizeColumnToContents(Location);
    list->setColumnWidth(File, qMax(20 * letter, list->columnWidth(File) + 2 * letter));
    const int wanted = list->columnWidth(File) + list->columnWidth(Location) + 2 * letter;
    list->setMinimumWidth(qBound(70 * letter, wanted, 110 * letter));
    adjustSize();
    list->setMinimumWidth(40 * letter);
}

QString KWRecentlyOpenedDlgImpl::selectedFile() const
{
    const QList<QTreeWidgetItem *> selected = m_ui->m_filesListView->selectedItems();
    return selected.isEmpty() ? QString() : selected.first()->text(Location);
}

void KWRecentlyOpenedDlgImpl::done(int result)
{
    m_settings->setMostRecentShowAtStart(m_ui->m_showAtStartCheckBox->isChecked());
    QDialog::done(result);
}

void KWRecentlyOpenedDlgImpl::updateButtonStatus()
{
    m_ui->m_okButton->setEnabled(!m_ui->m_filesListView->selectedItems().isEmpty());
}

void KWRecentlyOpenedDlgImpl::languageChange()
{
    m_ui->retranslateUi(this);
}
