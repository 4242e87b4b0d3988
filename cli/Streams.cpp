#include "cli/Streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

#include "cli/Interrupt.h"
#include "platform/system/Characters.h"
#include "platform/system/SystemError.h"

namespace kestrel::cli {

using system::Retry;
using system::SystemFailure;

Result<std::vector<std::uint8_t>> ReadStream(int file, std::size_t limit) {
    std::array<std::uint8_t, 1U << 16> part{};
    std::vector<std::uint8_t> bytes;
    bool waits = (fcntl(file, F_GETFL) & O_NONBLOCK) == 0;
    for (;;) {
        if (waits && !WaitForInput(file)) return SystemFailure(EINTR);
        const ssize_t count = Retry([&] { return read(file, part.data(), part.size()); });
        if (count < 0 && errno == EAGAIN) {
            waits = true;
            continue;
        }
        if (count < 0) return SystemFailure(errno);
        if (count == 0) return bytes;
        bytes.insert(bytes.end(), part.begin(), part.begin() + count);
        if (bytes.size() > limit) return SystemFailure(EFBIG);
    }
}

Result<void> WriteStream(int file, std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t count = Retry([&] { return write(file, bytes.data(), bytes.size()); });
        if (count < 0) return SystemFailure(errno);
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return {};
}

void Tell(std::string_view text) {
    // When even this cannot be written, the exit code is left to tell.
    (void)WriteStream(STDERR_FILENO,
                      {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

void Complain(std::string_view message) {
    Tell("kestrel-icon: " + system::Printable(message) + "\n");
}

tl::unexpected<Error> FailureOf(std::string_view name, const Error& error) {
    return Fail(error.number,
                std::string(name.empty() ? "''" : name).append(": ").append(error.description));
}

}  // namespace kestrel::cli
