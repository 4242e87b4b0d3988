#pragma once

#include <QByteArray>

#include "platform/Result.h"
#include "platform/gdi/Samples.h"

namespace kestrel::desktop {

// Reads a picture file (PNG, icon, BMP, GIF or JPEG, told by its content) into pixels of
// 0xAABBGGRR. Of an icon file it is the image that Open takes. Fails with kInvalidPicture when it
// is none, cut, or so large that it takes more than about 60 MB together with its file.
Result<gdi::SampledPicture> ReadPicture(const QByteArray& file);

}  // namespace kestrel::desktop
