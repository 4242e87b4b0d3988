// A window without a background that repaints late, as busy programs do: what lay over it is seen
// until then. slow_window <x> <y> <width> <height> <milliseconds>; it is orange, and no window
// manager moves it.

#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <thread>

namespace {

constexpr std::uint32_t kOrange = 0xFF8800;

struct Free {
    void operator()(xcb_generic_event_t* event) const { std::free(event); }
};

}  // namespace

int main(int argc, char** argv) {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (argc != 6 || xcb_connection_has_error(connection) != 0) return 2;
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t window = xcb_generate_id(connection);
    const std::uint32_t values[] = {1, XCB_EVENT_MASK_EXPOSURE};
    const auto number = [argv](int i) { return static_cast<std::uint16_t>(std::atoi(argv[i])); };
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root,
                      static_cast<std::int16_t>(number(1)), static_cast<std::int16_t>(number(2)),
                      number(3), number(4), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    const xcb_gcontext_t context = xcb_generate_id(connection);
    xcb_create_gc(connection, context, window, XCB_GC_FOREGROUND, &kOrange);
    xcb_map_window(connection, window);
    const std::uint32_t lowest = XCB_STACK_MODE_BELOW;
    xcb_configure_window(connection, window, XCB_CONFIG_WINDOW_STACK_MODE, &lowest);
    xcb_flush(connection);
    const xcb_rectangle_t all{0, 0, number(3), number(4)};
    while (const std::unique_ptr<xcb_generic_event_t, Free> event{xcb_wait_for_event(connection)}) {
        if ((event->response_type & 0x7FU) != XCB_EXPOSE) continue;
        std::this_thread::sleep_for(std::chrono::milliseconds(number(5)));
        xcb_poly_fill_rectangle(connection, window, context, 1, &all);
        xcb_flush(connection);
    }
    return 0;
}
