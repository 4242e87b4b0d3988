#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "cli/IconInput.h"
#include "platform/Result.h"
#include "platform/gdi/Surface.h"

namespace kestrel::cli {

// At most 16 sides in pixels, from 1 to 256, each once, parted by commas.
Result<std::vector<int>> ReadSizes(std::string_view list);

// What an icon or cursor file of several sizes is made of.
struct SizedIcon {
    // In the order of the file; not empty.
    std::vector<int> sizes;
    // The files that the images come from, and which icons and images of them.
    std::vector<InputFile> sources;
    IconChoice choice;
    bool cursor = false;
    // In pixels of the first size; that of the image it is made of when left out.
    std::optional<gdi::Point> hotspot;
};

// The bytes of the file. Each size is made of the image that serves it best: the smallest that is
// large enough, else the largest. Alpha is kept; what is no square stands in the middle of one.
Result<std::vector<std::uint8_t>> SizedIconBytes(const SizedIcon& icon);

}  // namespace kestrel::cli
