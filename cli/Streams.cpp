#include "cli/Streams.h"

#include <unistd.h>

#include <cerrno>

#include "platform/system/SystemError.h"

namespace kestrel::cli {

using system::Retry;
using system::SystemFailure;

Result<std::vector<std::uint8_t>> ReadStream(int file, std::size_t limit) {
    constexpr std::size_t kFirstRoom = 1U << 14;
    std::vector<std::uint8_t> bytes(kFirstRoom);
    std::size_t filled = 0;
    for (;;) {
        const ssize_t count =
            Retry([&] { return read(file, bytes.data() + filled, bytes.size() - filled); });
        if (count < 0) return SystemFailure(errno);
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
        if (filled > limit) return SystemFailure(EFBIG);
        if (filled == bytes.size()) bytes.resize(2 * filled);
    }
    bytes.resize(filled);
    return bytes;
}

Result<void> WriteStream(int file, std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t count = Retry([&] { return write(file, bytes.data(), bytes.size()); });
        if (count < 0) return SystemFailure(errno);
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return {};
}

tl::unexpected<Error> FailureOf(std::string_view name, const Error& error) {
    return Fail(error.number,
                std::string(name.empty() ? "''" : name).append(": ").append(error.description));
}

}  // namespace kestrel::cli
