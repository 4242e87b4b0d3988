#pragma once

#include <QByteArray>

#include "platform/Result.h"
#include "platform/gdi/Samples.h"

namespace kestrel::desktop {

// Reads a picture file (PNG, icon, BMP, GIF or JPEG, told by its content) into pixels of
// 0xAABBGGRR. Of an icon file it is the image that Open takes. Fails with kInvalidPicture when it
// is none, cut, or so large that reading it takes more than about 48 MB beside the file.
Result<gdi::SampledPicture> ReadPicture(const QByteArray& file);

}  // namespace kestrel::desktop
