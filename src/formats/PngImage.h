#pragma once

#include <optional>

#include "formats/ByteReader.h"
#include "formats/IconImage.h"

namespace kestrel::formats {

// Whether the bytes begin with the eight bytes of every PNG.
bool IsPng(Bytes image);

// What the IHDR chunk says; nothing when it is missing, malformed or tells of a side that is longer
// than this.
std::optional<ImageInfo> ReadPngInfo(Bytes image, int longestSide);

// Decodes a PNG of any type; its alpha becomes the mask, without alpha all is opaque. Ancillary
// chunks (gamma, profiles, texts) are skipped unread: colours are taken as stored. `info` is what
// ReadPngInfo told.
std::optional<IconImage> DecodePng(Bytes image, const ImageInfo& info);

}  // namespace kestrel::formats
