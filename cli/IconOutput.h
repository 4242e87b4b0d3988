#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Result.h"
#include "platform/gdi/IconPlanes.h"

namespace kestrel::cli {

// Where an icon goes to: a file's name or "-" for standard output, and "ico", "cur" or "png". Where
// no format is asked for, the name's extension tells it; what is no file takes an icon file.
struct IconTarget {
    std::string name;
    std::string format;
};

// The name of a format in any letter case, as its files' names end; an empty one stays.
Result<std::string_view> FormatNamed(std::string_view format);
// "ico", "cur" or "png"; empty when it cannot be told which is wanted.
std::string_view FormatOf(const IconTarget& target);
// Fails before anything is read or written when it cannot be told which format is wanted.
Result<void> CheckTarget(const IconTarget& target);
// And when a terminal would be written to, which shows no pictures, unless that is forced.
Result<void> CheckTerminal(const std::string& name, bool forced);
// The target has been checked; the hotspot is a cursor's.
std::vector<std::uint8_t> EncodeIcon(const IconTarget& target, const gdi::IconPlanes& icon,
                                     gdi::Point hotspot = {});

// A file is replaced wholly or not at all. What exists and is no regular file is written to as it
// stands, and so is a link, as /dev/stdout, to where standard output leads. A failure begins with
// the file's name.
Result<void> WriteOutput(const std::string& name, std::span<const std::uint8_t> bytes);
Result<void> WriteText(const std::string& name, std::string_view text);

}  // namespace kestrel::cli
