#pragma once

#include <vector>

#include "formats/IconTable.h"

namespace kestrel::formats {

// Icon and cursor files: a directory of 16 bytes an image, the images behind it in any order.

bool IsIconFile(SourceReader& file);
bool IsCursorFile(SourceReader& file);
// Whether an icon or cursor file begins here.
bool IsDirectory(SourceReader& file, std::uint64_t offset);

// The usable images of an icon or cursor file that lies in this extent, of its first `most`
// entries.
std::vector<ImageEntry> DirectoryImages(SourceReader& file, Extent directory, std::size_t most);

// One icon an image.
IconTable ListDirectory(SourceReader& file);
std::vector<ImageEntry> EntryImages(SourceReader& file, const IconTable& table,
                                    const IconPlace& entry);

}  // namespace kestrel::formats
