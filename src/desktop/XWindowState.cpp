#include "desktop/XWindowState.h"

#include <cstring>

#include "desktop/XConnection.h"

namespace kestrel::desktop {
namespace {

xcb_atom_t AtomOf(xcb_connection_t* connection, const char* name) {
    const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection,
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name),
        nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

}  // namespace

void XWindowState::Set(bool set) {
    xcb_connection_t* connection = XConnection();
    if (connection == nullptr || !window_.isVisible()) return;
    if (kind_ == XCB_ATOM_NONE) {
        kind_ = AtomOf(connection, "_NET_WM_STATE");
        state_ = AtomOf(connection, name_);
    }
    constexpr std::uint32_t kFromAProgram = 1;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window_.winId());
    message.type = kind_;
    message.data.data32[0] = set ? 1 : 0;
    message.data.data32[1] = state_;
    message.data.data32[3] = kFromAProgram;
    xcb_send_event(connection, 0, xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection);
}

}  // namespace kestrel::desktop
