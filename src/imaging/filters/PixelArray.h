#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/gdi/Surface.h"

namespace kestrel::filters {

// The channels of a pixel in the order in which filters take them.
inline constexpr int kBlue = 0;
inline constexpr int kGreen = 1;
inline constexpr int kRed = 2;
inline constexpr int kChannels = 3;

// A picture taken apart: a plane of bytes for each channel, rows from the top.
class PixelArray {
  public:
    explicit PixelArray(const gdi::Surface& picture);

    int Width() const { return width_; }
    int Height() const { return height_; }

    // One row of one channel; `y` must lie inside.
    std::uint8_t* Row(int channel, int y) { return values_.data() + Index(channel, y); }
    const std::uint8_t* Row(int channel, int y) const { return values_.data() + Index(channel, y); }
    // All values of one channel, row by row.
    std::span<const std::uint8_t> Plane(int channel) const {
        return std::span(values_).subspan(Index(channel, 0), Index(1, 0));
    }

    // Puts the picture together again; it has the size of the one it came from.
    void CopyTo(gdi::Surface& picture) const;

  private:
    std::size_t Index(int channel, int y) const {
        return static_cast<std::size_t>(channel * height_ + y) * static_cast<std::size_t>(width_);
    }

    int width_;
    int height_;
    std::vector<std::uint8_t> values_;
};

}  // namespace kestrel::filters
