#pragma once

#include <QWidget>

#include <memory>

class KWHelpFile;
class KWHelpSearch;
class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

/// The pages of a help file as a tree, and above it a field that leaves those pages in sight that
/// have the words typed into it.
class KWHelpPages : public QWidget
{
    Q_OBJECT

public:
    explicit KWHelpPages(QWidget *parent);
    ~KWHelpPages() override;

    /// `file` is not owned and lives until the next call.
    void setFile(const KWHelpFile *file);
    /// The first page of the contents; empty if there is none.
    const QString &homePage() const { return m_homePage; }
    /// Marks the line of a page, or none if it has no line.
    void setCurrentPage(const QString &page);

    /// The words that are looked for.
    QString words() const;
    void startSearch();
    /// Brings all pages back into sight.
    void endSearch();

signals:
    /// The user wants to read a page.
    void pageChosen(const QString &page);

private:
    void choose(const QTreeWidgetItem *item);
    void showHits();
    void chooseFirstHit();
    QList<QTreeWidgetItem *> lines() const;

    QLineEdit *m_searchEdit;
    QTreeWidget *m_tree;
    QLabel *m_noHitsLabel;
    std::unique_ptr<KWHelpSearch> m_search;
    QString m_homePage;
};
