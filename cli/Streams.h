#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/Result.h"

namespace kestrel::cli {

// The name that stands for standard input or output.
inline constexpr std::string_view kStandardStream = "-";

// Reads to the end of an open file that cannot tell its size; EFBIG beyond `limit` bytes. Nothing
// comes from a pipe without a writer that was opened not to wait.
Result<std::vector<std::uint8_t>> ReadStream(int file, std::size_t limit);
Result<void> WriteStream(int file, std::span<const std::uint8_t> bytes);

// Writes to standard error as it stands.
void Tell(std::string_view text);
// One line on standard error that a terminal only shows, whatever a file's name or an argument
// holds.
void Complain(std::string_view message);

// The failure of what was done to a file, with its name in front.
tl::unexpected<Error> FailureOf(std::string_view name, const Error& error);

}  // namespace kestrel::cli
