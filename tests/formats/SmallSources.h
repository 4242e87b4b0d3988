#pragma once

#include <filesystem>
#include <string>

#include "formats/IconSource.h"
#include "tests/formats/HexBytes.h"

namespace kestrel::test {

// A bitmap of 3 x 2 pixels and 24 bits with its mask, as icons store it, and a PNG of 1 x 1.
inline const ByteList kDib =
    Hex("28000000 03000000 04000000 0100 1800 00000000 00000000 00000000 00000000 00000000 00000000"
        "000000FFFFFF000000000000 0000FF00FF00FF0000000000 20000000 00000000");
inline const ByteList kPng =
    Hex("89504E470D0A1A0A 0000000D 49484452 00000001 00000001 0806000000 1F15C489"
        "0000000D 49444154 789C63F8CFC0F01F00050001FF 89993D1D 00000000 49454E44 AE426082");

// An icon file of these images, all called 3 x 2.
ByteList Ico(const std::vector<ByteList>& images);

// A library of 32 bits: the icon "AB" of bitmap and PNG, then the icon 2 of a bitmap.
ByteList Pe();
// A library of 16 bits whose offsets count units of this shift: the icon 7 of a bitmap, then "AB"
// of two.
ByteList Ne(unsigned shift);

// The icons, cursors, libraries and animations of the folder of data.
std::vector<std::filesystem::path> IconFiles();
ByteList ReadFile(const std::filesystem::path& path);

// A RIFF chunk; what a list or an animation holds begins with its type.
ByteList Chunk(const std::string& name, const ByteList& content);
ByteList Text(const std::string& text);

// Bytes that stand somewhere in a file in place of those that were there.
struct Patch {
    std::size_t offset;
    const char* bytes;
};
ByteList Patched(ByteList file, const std::vector<Patch>& patches);

Result<formats::IconSource> Open(const ByteList& file);
// Kind, then each icon's name and images, "p" for a PNG and "!" where none can be decoded.
std::string Listing(const ByteList& file);

}  // namespace kestrel::test
