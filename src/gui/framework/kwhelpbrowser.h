#pragma once

#include <QTextBrowser>

class KWHelpFile;

/// Shows pages of a help file. Everything, pages, style sheets and pictures, comes from that file
/// and from nowhere else, neither from the disk nor from the network, whatever a page refers to.
/// Links are not followed, only reported by anchorClicked().
class KWHelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit KWHelpBrowser(QWidget *parent);

    /// The address of a page, such as "Main_window.htm" or "Main_window.htm#panes".
    static QUrl pageUrl(const QString &page);
    /// The page of an address of that kind, without the place in it; empty for other addresses.
    static QString pageOf(const QUrl &url);

    /// Not owned; to be set anew before the file goes.
    void setHelpFile(const KWHelpFile *file) { m_file = file; }

    QVariant loadResource(int type, const QUrl &name) override;

private:
    const KWHelpFile *m_file = nullptr;
};
