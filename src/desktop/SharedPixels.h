#pragma once

#include <xcb/shm.h>
#include <xcb/xcb.h>

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/gdi/Surface.h"

namespace kestrel::desktop {

// Memory into which an X server on this machine copies pixels: through the connection they would be
// copied three times more. Larger parts than fit are rare and go that way.
class SharedPixels {
  public:
    static constexpr std::size_t kSize = 1U << 20;

    // `connection` outlives this.
    explicit SharedPixels(xcb_connection_t* connection);
    SharedPixels(const SharedPixels&) = delete;
    SharedPixels& operator=(const SharedPixels&) = delete;
    ~SharedPixels();

    // The part of a drawable as the server lays out its pixels, until the next is asked for. Empty
    // where the server shares no memory, the part is too large or was refused.
    std::span<const std::uint8_t> Get(xcb_drawable_t from, const gdi::Rect& part,
                                      std::size_t bytes);

  private:
    xcb_connection_t* connection_;
    xcb_shm_seg_t segment_ = XCB_NONE;
    std::uint8_t* memory_ = nullptr;
};

}  // namespace kestrel::desktop
