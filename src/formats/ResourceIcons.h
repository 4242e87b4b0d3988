#pragma once

#include <vector>

#include "formats/IconTable.h"

namespace kestrel::formats {

// Types of resources, the same in programs of 16, 32 and 64 bits.
inline constexpr std::uint32_t kIconResource = 3;
inline constexpr std::uint32_t kIconGroupResource = 14;

// The icons among a program's resources, given in stored order: the groups of which an image can be
// read, names before numbers; without any group, the images themselves.
IconTable ListResources(SourceReader& file, std::vector<IconPlace> groups,
                        std::vector<IconPlace> images);

std::vector<ImageEntry> ResourceImages(SourceReader& file, const IconTable& table,
                                       const ListedIcon& icon);

}  // namespace kestrel::formats
