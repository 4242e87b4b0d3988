#pragma once

#include <xcb/xcb.h>

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/gdi/Surface.h"

namespace kestrel::desktop {

// How an X server lays out the pixels of a screen: its byte order and colours, each row padded.
class PixelLayout {
  public:
    PixelLayout(const xcb_setup_t& setup, const xcb_screen_t& screen);

    // What so many pixels take; 0 for a layout that this class does not know.
    std::size_t BytesOf(gdi::Size size) const;
    // The pixels of row `y`, as many as there is room for, which is a whole row.
    void ReadRow(std::span<const std::uint8_t> bytes, int y, std::span<gdi::COLORREF> into) const;

  private:
    std::size_t BytesOfRow(std::size_t pixels) const;
    gdi::COLORREF ColorOf(std::span<const std::uint8_t> bytes) const;

    bool lowestFirst_;
    // 0x00RRGGBB as a number of this processor, as nearly every server has it.
    bool usual_ = false;
    std::uint32_t redMask_ = 0;
    std::uint32_t greenMask_ = 0;
    std::uint32_t blueMask_ = 0;
    // 0 where a pixel is less than a byte, or nothing is known.
    std::size_t bytesOfPixel_ = 0;
    std::size_t pad_ = 0;
};

}  // namespace kestrel::desktop
