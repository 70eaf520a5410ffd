#include "gui/exchange/kwx11textrequest.h"

#include <QGuiApplication>

#include <cstdlib>

#include <xcb/xcb.h>

std::unique_ptr<KWX11TextRequest> KWX11TextRequest::watch()
{
    const auto *x11 =
        qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    // Other platforms may have the interface without a connection behind it.
    xcb_connection_t *connection = x11 ? x11->connection() : nullptr;
    if (!connection)
        return nullptr;
    constexpr QByteArrayView name("text/plain");
    const auto request =
        xcb_intern_atom(connection, false, static_cast<uint16_t>(name.size()), name.data());
    xcb_intern_atom_reply_t *reply = xcb_intern_atom_reply(connection, request, nullptr);
    if (!reply)
        return nullptr;
    std::unique_ptr<KWX11TextRequest> watcher(new KWX11TextRequest(reply->atom));
    std::free(reply);
    qGuiApp->installNativeEventFilter(watcher.get());
    return watcher;
}

KWX11TextRequest::KWX11TextRequest(quint32 plainTextAtom)
    : m_plainTextAtom(plainTextAtom)
{
}

bool KWX11TextRequest::nativeEventFilter(const QByteArray &eventType, void *message,
                                         qintptr * /*result*/)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    // The highest bit marks what another client has sent.
    const bool isRequest = (event->response_type & 0x7f) == XCB_SELECTION_REQUEST;
    const auto *request = static_cast<const xcb_selection_request_event_t *>(message);
    m_wantsUtf8 = isRequest && request->target != m_plainTextAtom;
    return false;
}
