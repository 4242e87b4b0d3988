#include "cli/Interrupt.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>

namespace kestrel::cli {

namespace {

std::atomic<bool> asked{false};
// Can be read from once the program is asked to end; -1 while nobody watches.
std::atomic<int> wake{-1};

void Ask(int /*signal*/) {
    const int saved = errno;
    asked = true;
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = write(wake, &one, sizeof one);
    errno = saved;
}

}  // namespace

void WatchForInterrupt() {
    // What the caller ignores, as nohup and background jobs do, stays ignored.
    struct sigaction action {};
    if (wake >= 0 || sigaction(SIGINT, nullptr, &action) < 0 || action.sa_handler == SIG_IGN)
        return;
    wake = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    action = {};
    action.sa_handler = Ask;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(SIGINT, &action, nullptr);
}

bool IsInterrupted() {
    return asked;
}

bool WaitForInput(int file) {
    pollfd files[] = {{file, POLLIN, 0}, {wake, POLLIN, 0}};
    while (poll(files, 2, -1) < 0 && errno == EINTR) {
        if (asked) return false;
    }
    return !asked;
}

}  // namespace kestrel::cli
