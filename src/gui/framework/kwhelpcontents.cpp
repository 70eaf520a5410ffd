#include "gui/framework/kwhelpcontents.h"

#include <QMap>
#include <QStringView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int deepest = 16;
constexpr int mostEntries = 5000;

QString withoutEntities(QString text)
{
    // The ampersand last, or "&amp;lt;" would lose more than one layer.
    return text.replace(u"&quot;"_s, u"\""_s)
        .replace(u"&lt;"_s, u"<"_s)
        .replace(u"&gt;"_s, u">"_s)
        .replace(u"&amp;"_s, u"&"_s)
        .trimmed();
}

bool isNameEnd(QChar c)
{
    return c.isSpace() || c == u'=' || c == u'>' || c == u'/';
}

/// One tag, from behind its "<": the name and the attributes, names in lower case.
class Tag
{
public:
    explicit Tag(QStringView text)
        : m_rest(text)
    {
        name = takeName();
        while (!m_rest.isEmpty()) {
            const QString attribute = takeName();
            if (attribute.isEmpty())
                m_rest = m_rest.sliced(std::min<qsizetype>(1, m_rest.size()));
            else
                attributes.insert(attribute, takeValue());
        }
    }

    QString name;
    QMap<QString, QString> attributes;

private:
    QString takeUntil(auto isEnd)
    {
        const auto end = std::find_if(m_rest.begin(), m_rest.end(), isEnd);
        const QString taken = m_rest.first(end - m_rest.begin()).toString();
        m_rest = m_rest.sliced(taken.size());
        return taken;
    }

    QString takeName()
    {
        m_rest = m_rest.trimmed();
        const QString closing = m_rest.startsWith(u'/') ? u"/"_s : QString();
        m_rest = m_rest.sliced(closing.size());
        return closing + takeUntil(isNameEnd).toLower();
    }

    QString takeValue()
    {
        m_rest = m_rest.trimmed();
        if (!m_rest.startsWith(u'='))
            return {};
        m_rest = m_rest.sliced(1).trimmed();
        if (!m_rest.startsWith(u'"') && !m_rest.startsWith(u'\''))
            return takeUntil(isNameEnd);
        const QChar quote = m_rest.front();
        m_rest = m_rest.sliced(1);
        const QString value = takeUntil([quote](QChar c) { return c == quote; });
        m_rest = m_rest.sliced(std::min<qsizetype>(1, m_rest.size()));
        return value;
    }

    QStringView m_rest;
};

/// The end of the tag that begins at `from`; a ">" in quotes does not end it.
qsizetype tagEnd(QStringView text, qsizetype from)
{
    QChar quote;
    for (qsizetype i = from; i < text.size(); ++i) {
        const QChar c = text[i];
        if (!quote.isNull())
            quote = c == quote ? QChar() : quote;
        else if (c == u'"' || c == u'\'')
            quote = c;
        else if (c == u'>')
            return i;
    }
    return text.size();
}

class ContentsReader
{
public:
    void read(const Tag &tag)
    {
        if (tag.name == "ul"_L1)
            ++m_level;
        else if (tag.name == "/ul"_L1)
            m_level = std::max(0, m_level - 1);
        else if (tag.name == "object"_L1)
            startObject(tag);
        else if (tag.name == "param"_L1 && m_inObject)
            readParameter(tag);
        else if (tag.name == "/object"_L1)
            endObject();
    }

    const QList<KWHelpEntry> &entries() const { return m_entries; }

private:
    void startObject(const Tag &tag)
    {
        m_inObject = tag.attributes.value(u"type"_s).toLower() == "text/sitemap"_L1;
        m_entry = {};
    }

    void readParameter(const Tag &tag)
    {
        const QString name = tag.attributes.value(u"name"_s).toLower();
        const QString value = withoutEntities(tag.attributes.value(u"value"_s));
        if (name == "name"_L1)
            m_entry.title = value;
        else if (name == "local"_L1)
            m_entry.page = value;
    }

    void endObject()
    {
        const int previous = m_entries.isEmpty() ? -1 : m_entries.last().depth;
        m_entry.depth = std::clamp(m_level - 1, 0, std::min(previous + 1, deepest));
        if (m_inObject && !m_entry.title.isEmpty() && m_entries.size() < mostEntries)
            m_entries.append(m_entry);
        m_inObject = false;
    }

    QList<KWHelpEntry> m_entries;
    KWHelpEntry m_entry;
    int m_level = 0;
    bool m_inObject = false;
};
} // namespace

QList<KWHelpEntry> parseHelpContents(const QByteArray &hhc)
{
    const QString text = QString::fromUtf8(hhc);
    ContentsReader reader;
    for (qsizetype at = text.indexOf(u'<'); at >= 0; at = text.indexOf(u'<', at)) {
        const qsizetype end = tagEnd(text, at);
        reader.read(Tag(QStringView(text).sliced(at + 1, end - at - 1)));
        at = end;
    }
    return reader.entries();
}
