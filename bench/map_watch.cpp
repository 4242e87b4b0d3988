// Starts a program and measures it from outside: map_watch <title prefix> <program> [argument...]
// prints the milliseconds from exec to the first mapped window whose title starts so, and the peak
// resident memory in kB half a second later. Then it asks the window to close and waits.

#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds kPoll{1};
constexpr std::chrono::milliseconds kSettle{500};
constexpr std::chrono::seconds kPatience{30};

template <typename T>
struct Free {
    void operator()(T* value) const { std::free(value); }
};
template <typename T>
using Reply = std::unique_ptr<T, Free<T>>;

struct Display {
    xcb_connection_t* connection = nullptr;
    xcb_window_t root = 0;
};

xcb_atom_t Atom(const Display& display, std::string_view name) {
    const auto cookie = xcb_intern_atom(display.connection, 0,
                                        static_cast<std::uint16_t>(name.size()), name.data());
    const Reply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(display.connection, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

std::string Title(const Display& display, xcb_window_t window) {
    static const xcb_atom_t name = Atom(display, "_NET_WM_NAME");
    const auto cookie =
        xcb_get_property(display.connection, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, 64);
    const Reply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(display.connection, cookie, nullptr));
    if (!reply) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

// Asks for the events of a new window before the window manager maps it.
void Watch(const Display& display, xcb_window_t window) {
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(display.connection, window, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(display.connection);
}

// The first mapped window with such a title, or 0 when patience ends.
xcb_window_t WaitForWindow(const Display& display, std::string_view prefix,
                           Clock::time_point start) {
    while (Clock::now() - start < kPatience) {
        const Reply<xcb_generic_event_t> event(xcb_poll_for_event(display.connection));
        if (!event) {
            std::this_thread::sleep_for(kPoll);
            continue;
        }
        const unsigned type = event->response_type & 0x7FU;
        if (type == XCB_CREATE_NOTIFY) {
            xcb_create_notify_event_t created;
            std::memcpy(&created, event.get(), sizeof created);
            Watch(display, created.window);
        } else if (type == XCB_MAP_NOTIFY) {
            xcb_map_notify_event_t mapped;
            std::memcpy(&mapped, event.get(), sizeof mapped);
            if (Title(display, mapped.window).starts_with(prefix)) {
                return mapped.window;
            }
        }
    }
    return 0;
}

void AskToClose(const Display& display, xcb_window_t window) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = Atom(display, "WM_PROTOCOLS");
    message.data.data32[0] = Atom(display, "WM_DELETE_WINDOW");
    xcb_send_event(display.connection, 0, window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(display.connection);
}

// Peak resident memory of the process in kB.
long PeakMemory(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    std::string word;
    long value = 0;
    while (status >> word) {
        if (word == "VmHWM:") {
            status >> value;
            break;
        }
    }
    return value;
}

Display Open() {
    Display display;
    display.connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(display.connection) != 0) {
        return {};
    }
    display.root = xcb_setup_roots_iterator(xcb_get_setup(display.connection)).data->root;
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(display.connection, display.root, XCB_CW_EVENT_MASK, &mask);
    Atom(display, "_NET_WM_NAME");  // The reply says that the event mask is in force.
    return display;
}

}  // namespace

int main(int argc, char** argv) {
    const Display display = argc < 3 ? Display{} : Open();
    if (display.root == 0) {
        std::fputs("map_watch <title prefix> <program> [argument...], on an X display\n", stderr);
        return 2;
    }
    const auto start = Clock::now();
    const pid_t process = fork();
    if (process == 0) {
        execv(argv[2], argv + 2);
        _exit(127);
    }
    const xcb_window_t window = WaitForWindow(display, argv[1], start);
    const std::chrono::duration<double, std::milli> elapsed = Clock::now() - start;
    if (window == 0) {
        std::fputs("no such window appeared\n", stderr);
        kill(process, SIGKILL);
        return 1;
    }
    std::this_thread::sleep_for(kSettle);
    std::printf("%.1f %ld\n", elapsed.count(), PeakMemory(process));
    AskToClose(display, window);
    int status = 0;
    waitpid(process, &status, 0);
    xcb_disconnect(display.connection);
    return status == 0 ? 0 : 1;
}
