#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/Result.h"
#include "platform/gdi/IconPlanes.h"
#include "platform/system/FileSystem.h"

namespace kestrel::formats {

// Every icon file this program writes has this many bytes: the headers, 32 rows of 96 bytes of
// colour and 32 rows of 4 bytes of mask.
inline constexpr std::size_t kIcoFileBytes = 3262;
using IcoBytes = std::array<std::uint8_t, kIcoFileBytes>;

// The 32 x 32 planes as an icon file of one 32 x 32 image of 24 bits with its AND mask, rows from
// the bottom. Transparent pixels are written black.
IcoBytes EncodeIco(const gdi::IconPlanes& icon);

// The same as a cursor file with this hotspot.
IcoBytes EncodeCur(const gdi::IconPlanes& icon, gdi::Point hotspot);

// The byte whose bits, highest first, are the eight characters; anything but '1' is 0.
std::uint8_t BitsToByte(std::string_view bits);

// Writes such a file.
Result<system::FileIdentity> WriteIcoCopy(system::FileSystem& files, const gdi::IconPlanes& icon,
                                          const std::string& path);

// Whether the directory at the head of an icon or cursor file counts more than one image. Bytes
// that are too few, or no directory, count as one.
bool DetectMultipleIcons(std::span<const std::uint8_t> file);

}  // namespace kestrel::formats
