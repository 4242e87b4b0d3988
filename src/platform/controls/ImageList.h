#pragma once

#include <span>
#include <string_view>

#include "platform/gdi/PixelArt.h"

namespace kestrel::controls {

// Small pictures of one size, written as text and counted from 1 to Count(). It refers to texts
// and inks: they must outlive it.
class ImageList {
  public:
    ImageList(std::span<const std::string_view> pictures, std::span<const gdi::ArtInk> inks)
        : pictures_(pictures), inks_(inks) {}

    int Count() const { return static_cast<int>(pictures_.size()); }
    gdi::IconPlanes Picture(int number) const;

  private:
    std::span<const std::string_view> pictures_;
    std::span<const gdi::ArtInk> inks_;
};

}  // namespace kestrel::controls
