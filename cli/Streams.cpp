#include "cli/Streams.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

#include "platform/system/Characters.h"
#include "platform/system/SystemError.h"

namespace kestrel::cli {

using system::Retry;
using system::SystemFailure;

Result<std::vector<std::uint8_t>> ReadStream(int file, std::size_t limit) {
    std::array<std::uint8_t, 1U << 16> part{};
    std::vector<std::uint8_t> bytes;
    for (;;) {
        const ssize_t count = Retry([&] { return read(file, part.data(), part.size()); });
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

void Complain(std::string_view message) {
    const std::string line = "kestrel-icon: " + system::Printable(message) + "\n";
    // When even this cannot be written, the exit code is left to tell.
    (void)WriteStream(STDERR_FILENO, std::vector<std::uint8_t>(line.begin(), line.end()));
}

Result<void> ForEachFile(const std::vector<std::string>& files,
                         const std::function<Result<void>(const std::string&)>& work) {
    Result<void> all;
    for (const std::string& file : files) {
        Result<void> done = work(file);
        if (done) continue;
        if (!all) Complain(all.error().description);
        all = std::move(done);
    }
    return all;
}

tl::unexpected<Error> FailureOf(std::string_view name, const Error& error) {
    return Fail(error.number,
                std::string(name.empty() ? "''" : name).append(": ").append(error.description));
}

}  // namespace kestrel::cli
