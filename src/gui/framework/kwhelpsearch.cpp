#include "gui/framework/kwhelpsearch.h"

#include "gui/framework/kwhelpfile.h"
#include "gui/framework/kwhelpsafety.h"

#include <QTextDocument>

#include <algorithm>

KWHelpSearch::KWHelpSearch(const KWHelpFile *file, const QStringList &pages)
    : m_file(file)
    , m_pages(pages.first(std::min<qsizetype>(pages.size(), 100)))
{
}

QStringList KWHelpSearch::pagesWith(const QString &words)
{
    const QStringList wanted = words.simplified().split(u' ', Qt::SkipEmptyParts);
    if (!wanted.isEmpty() && m_texts.isEmpty())
        read();
    QStringList hits = m_pages;
    hits.removeIf([&](const QString &page) {
        return !std::ranges::all_of(wanted, [&](const QString &word) {
            return m_texts.value(page).contains(word, Qt::CaseInsensitive);
        });
    });
    return hits;
}

void KWHelpSearch::read()
{
    for (const QString &page : std::as_const(m_pages)) {
        const std::optional<QByteArray> html = m_file->object(page);
        QTextDocument text;
        if (html && isShowablePage(*html))
            text.setHtml(QString::fromUtf8(*html));
        m_texts.insert(page, text.toPlainText());
    }
}
