#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/gdi/IconPlanes.h"

namespace kestrel::editing {

// Both planes of an icon, a word a pixel, row by row: the colour, and in bit 24 whether the mask is
// white. Masks hold nothing but black and white, so nothing is lost.
using PackedPicture = std::array<std::uint32_t, std::size_t{gdi::kIconSize} * gdi::kIconSize>;

// The planes are 32 x 32 pixels.
PackedPicture Pack(const gdi::IconPlanes& icon);
void Unpack(const PackedPicture& picture, gdi::IconPlanes& icon);

// What differs between two pictures: the pixels' exclusive or, which leads from either of the two
// to the other. Takes 12 bytes for one pixel, 3360 for all of them.
class PictureDifference {
  public:
    PictureDifference(const PackedPicture& one, const PackedPicture& other);

    void ApplyTo(PackedPicture& picture) const;

  private:
    // For each row that differs: its number, a bit for each column that differs, a bit for each
    // mask pixel that does, and three bytes of exclusive or of the colours in each of the columns.
    std::vector<std::uint8_t> bytes_;
};

}  // namespace kestrel::editing
