#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/gdi/IconPlanes.h"

namespace kestrel::editing {

// Both planes of an icon, a word a pixel, row by row: the colour, and in a bit whether the mask is
// white. Masks hold nothing but black and white, so nothing is lost.
using PackedPicture = std::array<std::uint32_t, std::size_t{gdi::kIconSize} * gdi::kIconSize>;
inline constexpr std::uint32_t kMaskBit = 1U << 24;

// The planes are 32 x 32 pixels.
PackedPicture Pack(const gdi::IconPlanes& icon);
void Unpack(const PackedPicture& picture, gdi::IconPlanes& icon);
// That of the empty icon, which is transparent all over.
PackedPicture EmptyPicture();

// What differs between two pictures: the pixels' exclusive or, which leads from either of the two
// to the other. Takes 12 bytes for one pixel, 3360 for all of them.
class PictureDifference {
  public:
    // That of two pictures that are alike.
    PictureDifference() = default;
    PictureDifference(const PackedPicture& one, const PackedPicture& other);
    // Out of the bytes of one; nothing where they are not those of any.
    static std::optional<PictureDifference> Read(std::span<const std::uint8_t> bytes);

    std::span<const std::uint8_t> Bytes() const { return bytes_; }
    void ApplyTo(PackedPicture& picture) const;

  private:
    // For each row that differs: its number, a bit for each column that differs, a bit for each
    // mask pixel that does, and three bytes of exclusive or of the colours in each of the columns.
    std::vector<std::uint8_t> bytes_;
};

}  // namespace kestrel::editing
