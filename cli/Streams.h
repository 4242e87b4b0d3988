#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Result.h"

namespace kestrel::cli {

// The name that stands for standard input or output.
inline constexpr std::string_view kStandardStream = "-";

// Reads to the end of an open file that cannot tell its size; EFBIG beyond `limit` bytes.
Result<std::vector<std::uint8_t>> ReadStream(int file, std::size_t limit);
Result<void> WriteStream(int file, std::span<const std::uint8_t> bytes);

// One line on standard error that a terminal only shows, whatever a file's name or an argument
// holds.
void Complain(std::string_view message);

// Runs this on every file, whether or not others fail. The last failure is returned, those before
// it are told at once.
Result<void> ForEachFile(const std::vector<std::string>& files,
                         const std::function<Result<void>(const std::string&)>& work);

// The failure of what was done to a file, with its name in front.
tl::unexpected<Error> FailureOf(std::string_view name, const Error& error);

}  // namespace kestrel::cli
