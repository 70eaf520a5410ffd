#pragma once

#include <QAbstractNativeEventFilter>

#include <memory>

/// Knows in which encoding the X11 client wants its text whose request Qt is answering.
///
/// Qt takes the bytes of "text/plain" for UTF-8 and serves the targets UTF8_STRING, STRING and TEXT
/// from them, without telling the QMimeData which of them it is about. Only a client that asks for
/// the target "text/plain" gets the bytes as they are.
class KWX11TextRequest : public QAbstractNativeEventFilter
{
public:
    /// Watches the requests while it lives; null on any other platform.
    static std::unique_ptr<KWX11TextRequest> watch();

    /// Whether "text/plain" has to be in UTF-8 for the request in progress.
    bool wantsUtf8() const { return m_wantsUtf8; }

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    explicit KWX11TextRequest(quint32 plainTextAtom);

    quint32 m_plainTextAtom;
    bool m_wantsUtf8 = false;
};
