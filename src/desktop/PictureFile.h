#pragma once

#include <QByteArray>

#include "platform/Result.h"
#include "platform/gdi/Surface.h"

namespace kestrel::desktop {

// Reads a picture file (PNG, BMP, GIF or JPEG, told by its content) into pixels of 0xAABBGGRR.
// Fails with kInvalidPicture when it is none, cut, or larger than a screen of 7680 x 4320 pixels.
Result<gdi::Surface> ReadPicture(const QByteArray& file);

}  // namespace kestrel::desktop
