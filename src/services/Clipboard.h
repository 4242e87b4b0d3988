#pragma once

#include <functional>

#include "platform/Result.h"
#include "platform/gdi/Samples.h"

namespace kestrel::services {

// The clipboard of the desktop, for images. Their pixels are 0xAABBGGRR: alpha from 0 (transparent)
// to 255 in the top byte, and a colour that is not multiplied by it.
class Clipboard {
  public:
    virtual ~Clipboard() = default;

    // Whether the clipboard holds an image, as far as is known without asking its owner, which
    // takes time.
    virtual bool HasImage() const = 0;
    // Fetches the image, which may be one in a file that was copied. Never waits longer than a
    // second; fails with kInvalidPicture when it is gone, late, damaged, empty or too large to be
    // handled.
    virtual Result<gdi::SampledPicture> GetImage() = 0;
    // Other programs get the image with its alpha or, where they know none, its colours alone.
    virtual void SetImage(const gdi::Surface& pixels) = 0;

    // HasImage may have changed.
    std::function<void()> onChanged;
};

}  // namespace kestrel::services
