#include "gui/framework/kwhelpbrowser.h"

#include "gui/framework/kwhelpfile.h"
#include "gui/framework/kwhelpsafety.h"

using namespace Qt::StringLiterals;

namespace {

QVariant nothing(int type)
{
    if (type != QTextDocument::ImageResource)
        return {};
    // Without any picture the text document would look for one of that name on the disk.
    QImage empty(1, 1, QImage::Format_ARGB32);
    empty.fill(Qt::transparent);
    return empty;
}
} // namespace

KWHelpBrowser::KWHelpBrowser(QWidget *parent)
    : QTextBrowser(parent)
{
    setOpenLinks(false);
    document()->setDocumentMargin(14);
    document()->setIndentWidth(24);
    // What was found stays well visible while the focus is on the words looked for.
    QPalette colours = palette();
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
        colours.setColor(QPalette::Inactive, role, colours.color(QPalette::Active, role));
    setPalette(colours);
}

QUrl KWHelpBrowser::pageUrl(const QString &page)
{
    QUrl url;
    url.setScheme(u"help"_s);
    url.setPath(u'/' + page.section(u'#', 0, 0));
    if (page.contains(u'#'))
        url.setFragment(page.section(u'#', 1));
    return url;
}

QString KWHelpBrowser::pageOf(const QUrl &url)
{
    return url.scheme() == "help"_L1 && url.host().isEmpty() ? url.path().mid(1) : QString();
}

QVariant KWHelpBrowser::loadResource(int type, const QUrl &name)
{
    // source() is still that of the page before while a page is loaded.
    static const QUrl root(u"help:/"_s);
    const QString object = pageOf(root.resolved(name));
    const std::optional<QByteArray> bytes = m_file ? m_file->object(object) : std::nullopt;
    if (!bytes)
        return nothing(type);
    if (type != QTextDocument::ImageResource)
        return *bytes;
    const QImage image = plainPicture(*bytes);
    return image.isNull() ? nothing(type) : image;
}
