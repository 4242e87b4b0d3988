// Starts a program and looks at one pixel of the screen: pixel_watch <x> <y> <RRGGBB> <program>
// [argument...] prints the milliseconds from exec until the pixel has that colour, and until the
// program has ended.

#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;
constexpr std::chrono::microseconds kPoll{200};
constexpr std::chrono::seconds kPatience{10};
constexpr int kFirstArgument = 4;

struct Free {
    void operator()(xcb_get_image_reply_t* reply) const { std::free(reply); }
};

// As 0xRRGGBB, on a screen of that order.
std::uint32_t PixelAt(xcb_connection_t* connection, std::int16_t x, std::int16_t y) {
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const std::unique_ptr<xcb_get_image_reply_t, Free> image(xcb_get_image_reply(
        connection, xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, root, x, y, 1, 1, ~0U),
        nullptr));
    std::uint32_t pixel = ~0U;
    if (image) std::memcpy(&pixel, xcb_get_image_data(image.get()), sizeof pixel);
    return image ? pixel & 0xFFFFFF : pixel;
}

}  // namespace

int main(int argc, char** argv) {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (argc <= kFirstArgument || xcb_connection_has_error(connection) != 0) {
        std::fputs("pixel_watch <x> <y> <RRGGBB> <program>, on an X display\n", stderr);
        return 2;
    }
    const auto x = static_cast<std::int16_t>(std::atoi(argv[1]));
    const auto y = static_cast<std::int16_t>(std::atoi(argv[2]));
    const auto color = static_cast<std::uint32_t>(std::strtoul(argv[3], nullptr, 16));
    const auto start = Clock::now();
    const pid_t process = fork();
    if (process == 0) {
        execvp(argv[kFirstArgument], argv + kFirstArgument);
        _exit(127);
    }
    Milliseconds ended{0};
    while (PixelAt(connection, x, y) != color) {
        if (Clock::now() - start > kPatience) {
            std::fprintf(stderr, "the pixel is %06x\n", PixelAt(connection, x, y));
            return 1;
        }
        if (ended.count() == 0 && waitpid(process, nullptr, WNOHANG) == process) {
            ended = Clock::now() - start;
        }
        std::this_thread::sleep_for(kPoll);
    }
    const Milliseconds shown = Clock::now() - start;
    if (ended.count() == 0) {
        waitpid(process, nullptr, 0);
        ended = Clock::now() - start;
    }
    std::printf("%.1f %.1f\n", shown.count(), ended.count());
    return 0;
}
