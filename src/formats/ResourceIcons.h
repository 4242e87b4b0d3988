#pragma once

#include <vector>

#include "formats/IconTable.h"

namespace kestrel::formats {

// Types of resources, the same in programs of 16, 32 and 64 bits.
inline constexpr std::uint32_t kIconResource = 3;
inline constexpr std::uint32_t kIconGroupResource = 14;

// The icons among a program's resources, given in stored order: the groups, names before numbers;
// without any group, the images themselves. Nothing of them is read.
IconTable ListResources(std::vector<IconPlace> groups, std::vector<IconPlace> images);

void KeepReadable(SourceReader& file, IconTable& table);

std::vector<ImageEntry> ResourceImages(SourceReader& file, const IconTable& table,
                                       const IconPlace& icon);

}  // namespace kestrel::formats
