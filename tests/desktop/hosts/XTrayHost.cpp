#include <xcb/xcb.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

constexpr std::uint16_t kSide = 24;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

xcb_atom_t Atom(xcb_connection_t* display, const char* name) {
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(xcb_intern_atom_reply(
        display, xcb_intern_atom(display, 0, static_cast<std::uint16_t>(std::strlen(name)), name),
        nullptr));
    return reply->atom;
}

// Tells programs that a tray has come.
void Announce(xcb_connection_t* display, xcb_window_t root, xcb_window_t tray, xcb_atom_t name) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = root;
    message.type = Atom(display, "MANAGER");
    message.data.data32[1] = name;
    message.data.data32[2] = tray;
    xcb_send_event(display, 0, root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
}

}  // namespace

// A tray of one icon in the corner of an X display. Protocol: System Tray Protocol 0.3 of
// freedesktop.org.
int main() {
    xcb_connection_t* display = xcb_connect(nullptr, nullptr);
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(display)).data;
    const xcb_window_t tray = xcb_generate_id(display);
    const std::uint32_t unmanaged = 1;
    xcb_create_window(display, XCB_COPY_FROM_PARENT, tray, screen->root, 0, 0, kSide, kSide, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_OVERRIDE_REDIRECT,
                      &unmanaged);
    xcb_map_window(display, tray);
    const xcb_atom_t name = Atom(display, "_NET_SYSTEM_TRAY_S0");
    xcb_set_selection_owner(display, tray, name, XCB_CURRENT_TIME);
    Announce(display, screen->root, tray, name);
    const xcb_atom_t request = Atom(display, "_NET_SYSTEM_TRAY_OPCODE");
    xcb_flush(display);
    std::puts("ready");
    std::fflush(stdout);
    while (const std::unique_ptr<xcb_generic_event_t, Free> event{xcb_wait_for_event(display)}) {
        if ((event->response_type & 0x7FU) != XCB_CLIENT_MESSAGE) continue;
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(*event);
        if (message.type != request) continue;
        const xcb_window_t icon = message.data.data32[2];
        const std::uint32_t size[] = {kSide, kSide};
        xcb_reparent_window(display, icon, tray, 0, 0);
        xcb_configure_window(display, icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                             size);
        xcb_map_window(display, icon);
        xcb_flush(display);
    }
    return 0;
}
