#pragma once

#include <tuple>
#include <vector>

#include "formats/IconFile.h"

namespace kestrel::formats {

// The first of several entries that lead to one image; their order stays.
std::vector<ImageEntry> WithoutRepeats(std::vector<ImageEntry> entries);

// The entries in the order in which they suit a 32 x 32 icon, best first: 32 x 32 before all
// others, with the most bits per pixel; then by the smallest max(|w - 32|, |h - 32|), the larger
// area, the deeper, the first. Without repeats.
std::vector<ImageEntry> BestFirst(std::vector<ImageEntry> entries);

// How well an image serves where this side is wanted, smaller is better: the smallest that needs no
// enlarging before the largest of the others; of one size the deepest.
std::tuple<bool, int, int> RankForSide(const ImageInfo& info, int side);

}  // namespace kestrel::formats
