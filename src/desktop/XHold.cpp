#include "desktop/XHold.h"

#include <chrono>

#include "desktop/XConnection.h"

namespace kestrel::desktop {

namespace {

constexpr std::chrono::milliseconds kBetweenTries{100};

xcb_window_t NewFence(xcb_connection_t* connection, gdi::Rect area) {
    const xcb_window_t fence = xcb_generate_id(connection);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const std::uint32_t unmanaged = 1;
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, fence, root,
                      static_cast<std::int16_t>(area.left), static_cast<std::int16_t>(area.top),
                      static_cast<std::uint16_t>(area.width),
                      static_cast<std::uint16_t>(area.height), 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &unmanaged);
    // Below all others: it must not take what is meant for them.
    const std::uint32_t lowest = XCB_STACK_MODE_BELOW;
    xcb_configure_window(connection, fence, XCB_CONFIG_WINDOW_STACK_MODE, &lowest);
    xcb_map_window(connection, fence);
    return fence;
}

}  // namespace

// The program's windows get their events as ever. A fence that is crossed by a pen or by a program
// that moves the pointer is no fence: a grab also keeps those inside, which barriers do not.
XHold::XHold(xcb_connection_t* connection, xcb_window_t window, gdi::Rect area)
    : connection_(connection), window_(window), fence_(NewFence(connection, area)) {
    if (Grab()) return;
    again_.callOnTimeout([this] {
        if (Grab()) again_.stop();
    });
    again_.start(kBetweenTries);
}

bool XHold::Grab() {
    constexpr std::uint16_t kEvents =
        XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE | XCB_EVENT_MASK_POINTER_MOTION;
    const auto askedPointer =
        xcb_grab_pointer(connection_, 1, window_, kEvents, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC,
                         fence_, XCB_NONE, XCB_CURRENT_TIME);
    const auto askedKeys = xcb_grab_keyboard(connection_, 1, window_, XCB_CURRENT_TIME,
                                             XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const XReply<xcb_grab_pointer_reply_t> pointer(
        xcb_grab_pointer_reply(connection_, askedPointer, nullptr));
    const XReply<xcb_grab_keyboard_reply_t> keys(
        xcb_grab_keyboard_reply(connection_, askedKeys, nullptr));
    return pointer && pointer->status == XCB_GRAB_STATUS_SUCCESS && keys &&
           keys->status == XCB_GRAB_STATUS_SUCCESS;
}

XHold::~XHold() {
    xcb_ungrab_keyboard(connection_, XCB_CURRENT_TIME);
    xcb_ungrab_pointer(connection_, XCB_CURRENT_TIME);
    xcb_destroy_window(connection_, fence_);
    xcb_flush(connection_);
}

}  // namespace kestrel::desktop
