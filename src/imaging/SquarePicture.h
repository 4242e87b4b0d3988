#pragma once

#include "imaging/AreaAverage.h"
#include "platform/gdi/PixelRun.h"
#include "platform/gdi/Surface.h"

namespace kestrel::imaging {

// Where a picture of any proportions lies in a square: as large as it fits, in the middle.
gdi::Rect PlaceInSquare(gdi::Size picture, int side);

// Brings a picture into a square like that, transparent beside it.
class SquarePicture {
  public:
    SquarePicture(gdi::Size from, int side);

    void Add(const gdi::PixelRun& run) { averager_.Add(run); }
    // Pixels of 0xAABBGGRR, when all of the picture has been added.
    gdi::Surface Square() const;

  private:
    int side_;
    gdi::Rect place_;
    AreaAverager averager_;
};

}  // namespace kestrel::imaging
