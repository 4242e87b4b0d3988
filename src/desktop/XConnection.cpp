#include "desktop/XConnection.h"

#include <QGuiApplication>

namespace kestrel::desktop {

xcb_connection_t* XConnection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 == nullptr ? nullptr : x11->connection();
}

}  // namespace kestrel::desktop
