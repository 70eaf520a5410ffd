#include "gui/exchange/kwtextmimesource.h"

#include "gui/exchange/kwx11textrequest.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
enum Format { HtmlFormat, Html, PlainText, PlainTextUtf8, Utf8String };

const QStringList &names()
{
    static const QStringList all{u"HTML format"_s, u"text/html"_s, u"text/plain"_s,
                                 u"text/plain;charset=utf-8"_s, u"UTF8_STRING"_s};
    return all;
}

/// -1 for a name that is none of ours.
int formatOf(const QString &mimeType)
{
    const QString lowered = mimeType.toLower();
    const auto found =
        std::ranges::find(names(), lowered, [](const QString &name) { return name.toLower(); });
    return found == names().end() ? -1 : static_cast<int>(found - names().begin());
}

/// Where the parts of a page begin, in characters; -1 for a part that is missing.
struct Landmarks
{
    explicit Landmarks(const QString &page)
        : html(openingTag(page, "<html"_L1))
        , htmlEnd(page.indexOf("</html>"_L1))
        , fragmentEnd(page.indexOf("</body>"_L1))
    {
        const qsizetype body = openingTag(page, "<body"_L1);
        fragment = body < 0 ? -1 : page.indexOf(u'<', body + 1);
    }

    bool complete() const { return std::min({html, htmlEnd, fragment, fragmentEnd}) >= 0; }

    qsizetype html;
    qsizetype htmlEnd;
    qsizetype fragment = -1;
    qsizetype fragmentEnd;

private:
    /// The first tag that begins so, if it is closed anywhere behind.
    static qsizetype openingTag(const QString &page, QLatin1StringView begin)
    {
        const qsizetype position = page.indexOf(begin);
        return position >= 0 && page.indexOf(u'>', position) >= 0 ? position : -1;
    }
};

/// The page behind a header with the byte offsets of its parts; empty if it lacks one of them.
QByteArray htmlFormat(const QString &page)
{
    const Landmarks found(page);
    if (!found.complete())
        return {};

    // A place holder is as long as the number that takes its place, so the offsets can be
    // measured before.
    QByteArray header = "Version:0.9\r\nStartHTML:<  %1  >\r\nEndHTML:<  %2  >\r\n"
                        "StartFragment:<  %3  >\r\nEndFragment:<  %4  >\r\n";
    const qsizetype offset = header.size();
    const auto fill = [&header, offset](const char *placeHolder, qsizetype position) {
        header.replace(placeHolder, QByteArray::number(offset + position).rightJustified(8, '0'));
    };
    fill("<  %1  >", found.html);
    fill("<  %2  >", found.htmlEnd);
    fill("<  %3  >", found.fragment);
    fill("<  %4  >", found.fragmentEnd);
    return header + page.toLatin1();
}

/// UTF-16 in the processor's byte order with a NUL behind it.
QByteArray utf16(const QString &text)
{
    return {reinterpret_cast<const char *>(text.utf16()), (text.size() + 1) * 2};
}
} // namespace

KWTextMimeSource::KWTextMimeSource(const QString &html, const QString &plainText)
    : m_html(html)
    , m_plainText(plainText)
    , m_request(KWX11TextRequest::watch())
{
}

KWTextMimeSource::~KWTextMimeSource() = default;

QStringList KWTextMimeSource::formats() const
{
    return names();
}

bool KWTextMimeSource::hasFormat(const QString &mimeType) const
{
    return formatOf(mimeType) >= 0;
}

QVariant KWTextMimeSource::retrieveData(const QString &mimeType, QMetaType type) const
{
    const bool asString = type.id() == QMetaType::QString;
    switch (formatOf(mimeType)) {
    case HtmlFormat:
        return htmlFormat(m_html);
    case Html:
        return asString ? QVariant(m_html) : utf16(m_html);
    case PlainText:
        return asString ? QVariant(m_plainText) : plainBytes();
    case PlainTextUtf8:
    case Utf8String:
        return asString ? QVariant(m_plainText) : m_plainText.toUtf8();
    default:
        return {};
    }
}

QByteArray KWTextMimeSource::plainBytes() const
{
    return m_request && m_request->wantsUtf8() ? m_plainText.toUtf8() : m_plainText.toLatin1();
}
