#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "formats/IconExport.h"

namespace kestrel::formats {

// One icon of a library: a name in ASCII, stored in capitals, or without one its place in the
// library counted from 1.
struct LibraryIcon {
    std::string name;
    std::vector<ImageBytes> images;
};

// A library of 32 bits that holds nothing but these icons. Those with names come first, sorted as
// the format wants them; the others keep their order. Fails with EFBIG where there are more than
// 65,535 icons or images, or more than 2 GB.
Result<std::vector<std::uint8_t>> LibraryBytes(std::span<const LibraryIcon> icons);

}  // namespace kestrel::formats
