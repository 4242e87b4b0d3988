#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "formats/ByteWriter.h"
#include "formats/IconSource.h"

namespace kestrel::formats {

// One image as it is stored in icon files and programs, and what its header says.
struct ImageBytes {
    ImageInfo info;
    std::vector<std::uint8_t> bytes;
};

// The head of an icon directory, alike in icon files and in programs, and what both say of an image
// before they tell where it is.
void WriteDirectoryHead(ByteWriter& out, std::size_t images);
void WriteDirectoryEntry(ByteWriter& out, const ImageBytes& image);

// An icon file of these images, each byte for byte.
std::vector<std::uint8_t> IconFileOf(std::span<const ImageBytes> images);

// A cursor file of them; the hotspot of the first, in its pixels, and of the others in proportion.
std::vector<std::uint8_t> CursorFileOf(std::span<const ImageBytes> images, gdi::Point hotspot);

// Images of the source as an icon file of their own. Fails as IconSource does, with EFBIG where it
// would be larger than any icon file that is read.
Result<std::vector<std::uint8_t>> ExportImages(const IconSource& source,
                                               std::span<const ImageEntry> entries);
// The same of all images of an icon.
Result<std::vector<std::uint8_t>> ExportIcon(const IconSource& source, std::size_t icon);

}  // namespace kestrel::formats
