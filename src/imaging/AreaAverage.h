#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "platform/gdi/PixelRun.h"
#include "platform/gdi/Surface.h"

namespace kestrel::imaging {

// Brings a picture of 0xAABBGGRR pixels into another size: each pixel is the average of the area it
// covers, in which a colour counts as much as it is opaque. Enlarged to a whole multiple, pixels
// are merely repeated. The picture is not held: it is added piece by piece, in any order.
class AreaAverager {
  public:
    // Sides of the picture are at most 8192, those of the result 1024, and none is 0.
    AreaAverager(gdi::Size from, gdi::Size to);

    // Each pixel of the picture has to be added once.
    void Add(const gdi::PixelRun& run);
    gdi::Surface Average() const;

  private:
    // Sums over a part of what a pixel of the result covers: red, green and blue weighted by alpha,
    // and alpha.
    using Sums = std::array<std::uint64_t, 4>;

    gdi::Size from_;
    gdi::Size to_;
    std::vector<Sums> sums_;
    // Of the run that is being added.
    std::vector<Sums> row_;
};

// A whole picture, whose sides are at most 1024.
gdi::Surface AreaAverage(const gdi::Surface& picture, gdi::Size size);

}  // namespace kestrel::imaging
