#include "desktop/TopmostWindow.h"

#include <string_view>

#include "desktop/XConnection.h"

namespace kestrel::desktop {

namespace {

// Of the window manager's message about a window's state.
constexpr std::uint32_t kRemove = 0;
constexpr std::uint32_t kAdd = 1;
constexpr std::uint32_t kFromProgram = 1;

xcb_atom_t AtomOf(xcb_connection_t* connection, std::string_view name) {
    const XReply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        connection,
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data()),
        nullptr));
    return atom ? atom->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

}  // namespace

TopmostWindow::TopmostWindow(QWidget& window) : window_(window), connection_(XConnection()) {
    if (connection_ == nullptr) return;
    stateAtom_ = AtomOf(connection_, "_NET_WM_STATE");
    aboveAtom_ = AtomOf(connection_, "_NET_WM_STATE_ABOVE");
}

void TopmostWindow::Set(bool topmost) {
    if (connection_ == nullptr || !window_.isVisible()) return;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window_.winId());
    message.type = stateAtom_;
    message.data.data32[0] = topmost ? kAdd : kRemove;
    message.data.data32[1] = aboveAtom_;
    message.data.data32[3] = kFromProgram;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
    xcb_send_event(connection_, 0, root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    // Among windows that are all above, the one raised last is seen.
    if (topmost) window_.raise();
    xcb_flush(connection_);
}

}  // namespace kestrel::desktop
