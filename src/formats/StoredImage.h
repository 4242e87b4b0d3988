#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "formats/IconFile.h"
#include "formats/IconPixels.h"
#include "formats/SourceReader.h"

namespace kestrel::formats {

// A size that a directory tells of an image; 0 x 0 = none is told.
struct DirectorySize {
    int width = 0;
    int height = 0;
};

// A side in a directory is one byte, in which 0 means 256.
inline int DirectorySide(std::uint8_t stored) {
    return stored == 0 ? 256 : stored;
}

// What the header at the start of a stored bitmap or PNG says, and how long the bitmap is; a PNG
// may be shorter than its entry. Nothing when the header cannot be used or the pixels lie outside.
std::optional<ImageEntry> ReadImageHead(SourceReader& file, Extent place, DirectorySize told,
                                        int longestPngSide = kMaxImageSide);

// The bytes of an image as they are stored, a PNG trimmed after its last chunk.
std::vector<std::uint8_t> ReadStoredImage(SourceReader& file, const ImageEntry& entry);

// Decodes a bitmap or a PNG as it is stored; nothing when it is not what its header said.
std::optional<IconImage> DecodeStored(Bytes image, const ImageInfo& info);

// Decodes the image that suits 32 x 32 best of those that can be decoded. Gives up after about a
// second's worth of damaged ones.
std::optional<IconImage> DecodeBest(
    std::vector<ImageEntry> entries,
    const std::function<std::optional<IconImage>(const ImageEntry&)>& decode);

}  // namespace kestrel::formats
