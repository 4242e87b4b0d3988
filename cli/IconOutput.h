#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/Result.h"
#include "platform/gdi/IconPlanes.h"

namespace kestrel::cli {

// Where an icon goes to: a file's name or "-" for standard output, and "ico", "cur" or "png". Where
// no format is asked for, the name's extension tells it; what is no file takes an icon file.
struct IconTarget {
    std::string name;
    std::string format;
};

// "ico", "cur" or "png"; empty when it cannot be told which is wanted.
std::string_view FormatOf(const IconTarget& target);
// Fails before anything is read or written when it cannot be told which format is wanted.
Result<void> CheckTarget(const IconTarget& target);
// The hotspot is a cursor's.
Result<void> WriteIcon(const IconTarget& target, const gdi::IconPlanes& icon,
                       gdi::Point hotspot = {});

// A file is replaced wholly or not at all. What exists and is no regular file is written to as it
// stands, and so is a link, as /dev/stdout, to where standard output leads. A failure begins with
// the file's name.
Result<void> WriteOutput(const std::string& name, std::span<const std::uint8_t> bytes);
// The same, and where there is no such file, it is made as it stands, without waiting for the disk;
// of one that cannot be written whole nothing is left. A link that is there is not followed.
Result<void> WriteNew(const std::string& name, std::span<const std::uint8_t> bytes);
Result<void> WriteText(const std::string& name, std::string_view text);

}  // namespace kestrel::cli
