#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class KWHelpFile;

/// Finds words in all pages of a help file, which are read at the first question.
class KWHelpSearch
{
public:
    /// `file` is not owned and lives at least as long; `pages` are the names of those to look into,
    /// of which no more than a hundred count.
    KWHelpSearch(const KWHelpFile *file, const QStringList &pages);

    /// The pages that have all the words, in whatever order and case; a word may be a part of a
    /// longer one. Without a word all pages.
    QStringList pagesWith(const QString &words);

private:
    void read();

    const KWHelpFile *m_file;
    QStringList m_pages;
    /// The text of each page, once it is read.
    QMap<QString, QString> m_texts;
};
