#pragma once

#include <vector>

#include "platform/gdi/Surface.h"

namespace kestrel::gdi {

// The size in proportion, no longer than `side` pixels and at least one each way. Never larger.
Size SizeWithin(Size size, int side);

// Which pixels are taken of a picture: where these columns cross these rows. Both ascend; a column
// or row may be named several times.
struct Samples {
    std::vector<int> columns;
    std::vector<int> rows;
};

// The pixels that are left or repeated when a picture takes another size: pixel i of the new one is
// pixel floor(i * from / to).
Samples StretchSamples(Size from, Size to);

// A picture of any size, of which only those pixels are kept that it shows in its own size or in
// less, where that is at most 32 x 32: 324 columns and rows at most.
class SampledPicture {
  public:
    // All pixels are still to be filled in.
    explicit SampledPicture(Size size);
    explicit SampledPicture(const Surface& picture);

    Size FullSize() const { return size_; }
    // The pixels that are kept, and their places in the picture.
    const Samples& Kept() const { return kept_; }
    Surface& Pixels() { return pixels_; }
    const Surface& Pixels() const { return pixels_; }

    // The picture in another size, by repeating or dropping pixels; neither side is longer than 32.
    Surface In(Size size) const;

  private:
    Size size_;
    Samples kept_;
    Surface pixels_;
};

}  // namespace kestrel::gdi
