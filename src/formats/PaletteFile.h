#pragma once

#include <string>
#include <string_view>

#include "platform/Result.h"
#include "platform/gdi/Color.h"
#include "platform/system/FileSystem.h"

namespace kestrel::formats {

// A palette file is 8-bit text in lines parted by CR LF: "JASC", an empty line, and one line for
// each colour, its value 0x00BBGGRR as a decimal integer. There is no line end after the last.

// Bytes that a palette file may have to be read.
inline constexpr std::size_t kMaxPaletteFileBytes = std::size_t{1} << 24;

std::string PaletteText(const gdi::PaletteColors& colors);

// Puts the numbers of lines 3 to 258 into `colors`; a line without a number is black, colours
// beyond the last line stay. Of a number that does not fit in 24 bits the lower 24 are taken; one
// that does not fit in 32 bits with sign fails with EOVERFLOW, the colours before it read.
Result<void> ReadPaletteText(std::string_view text, gdi::PaletteColors& colors);

// Errors carry the system's description, and the palette class of the program as their source.
Result<void> WritePaletteFile(system::FileSystem& files, const gdi::PaletteColors& colors,
                              const std::string& path);
// What was read before a failure stays in `colors`.
Result<void> ReadPaletteFile(system::FileSystem& files, gdi::PaletteColors& colors,
                             const std::string& path);

}  // namespace kestrel::formats
