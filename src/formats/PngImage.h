#pragma once

#include <optional>

#include "formats/ByteReader.h"
#include "formats/IconImage.h"
#include "platform/gdi/PixelRun.h"
#include "platform/gdi/Samples.h"

namespace kestrel::formats {

// Whether the bytes begin with the eight bytes of every PNG.
bool IsPng(Bytes image);

// What the IHDR chunk says; nothing when it is missing or malformed.
std::optional<ImageInfo> ReadPngHeader(Bytes image);

// The same; nothing also when a side is longer than this, or the rows unpack to more than 256 MB.
std::optional<ImageInfo> ReadPngInfo(Bytes image, int longestSide);

// Reads a PNG of any type and keeps those pixels that are asked for, as 0xAABBGGRR; without alpha
// all are opaque. Never holds more of the picture than one row beside them. Ancillary chunks
// (gamma, profiles, texts) are skipped unread: colours are taken as stored. Nothing when any of the
// rows is missing or damaged. `info` is what ReadPngInfo told. Adds to `work` the bytes that were
// read and unpacked, or could have been.
std::optional<gdi::Surface> ReadPngPixels(Bytes image, const ImageInfo& info,
                                          const gdi::Samples& samples, std::size_t& work);

// The same of all pixels, each once, in the order in which they are stored. False when any of the
// rows is missing or damaged; those before it have been given then.
bool ReadPngRuns(Bytes image, const ImageInfo& info, const gdi::TakePixels& take);

// Decodes a PNG in another size; its alpha becomes the mask.
std::optional<IconImage> DecodePng(Bytes image, const ImageInfo& info, gdi::Size size,
                                   std::size_t& work);

}  // namespace kestrel::formats
