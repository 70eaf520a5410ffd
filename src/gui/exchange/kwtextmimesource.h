#pragma once

#include <QMimeData>

#include <memory>

class KWX11TextRequest;

/// A chart for the clipboard, which takes ownership: as the "HTML format" of other desktops with
/// its byte offsets, as HTML in UTF-16 and as plain text in Latin-1. Behind these stand two names
/// under which X11 programs ask for plain text in UTF-8.
///
/// A caller that asks for a string gets the text itself; so do the program's own editors.
class KWTextMimeSource : public QMimeData
{
    Q_OBJECT

public:
    KWTextMimeSource(const QString &html, const QString &plainText);
    ~KWTextMimeSource() override;

    QStringList formats() const override;
    /// In any letter case.
    bool hasFormat(const QString &mimeType) const override;

protected:
    QVariant retrieveData(const QString &mimeType, QMetaType type) const override;

private:
    QByteArray plainBytes() const;

    QString m_html;
    QString m_plainText;
    std::unique_ptr<KWX11TextRequest> m_request;
};
