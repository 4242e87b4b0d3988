#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "formats/IconFile.h"
#include "formats/SourceReader.h"

namespace kestrel::formats {

enum class SourceKind { Ico, Cur, Png, Pe, Ne, Ani };

// Whether the file's images are those of one icon. Programs and animations have many icons.
constexpr bool IsOneIcon(SourceKind kind) {
    return kind == SourceKind::Ico || kind == SourceKind::Cur || kind == SourceKind::Png;
}

// No file shows more icons.
inline constexpr std::size_t kMostIcons = 32767;

// Of an icon that has several images no more entries are looked at; real ones have some dozens.
// Thousands of icons may share one set of images.
inline constexpr std::size_t kMostImagesEach = 256;

// Where a file keeps one icon or one image of icons: a directory entry, a resource, a frame. All
// offsets are below 4 GB.
struct IconPlace {
    Extent Where() const { return {offset, size}; }

    std::uint32_t offset = 0;
    std::uint32_t size = 0;
    // Its number or, where it is named, the offset of the name.
    std::uint32_t name = 0;
    bool named = false;
};

// What listing a file finds.
struct IconTable {
    std::vector<IconPlace> icons;
    // Whether the icons are groups, and the images that these name by number, in that order.
    bool grouped = false;
    std::vector<IconPlace> images;
    // The program may keep its icons in another file.
    bool elsewhere = false;
};

// One kind of file that holds icons. Every image lies in it as a bitmap or PNG of its own, so that
// decoding is the same for all.
struct Format {
    SourceKind kind;
    std::string_view name;
    bool (*sniff)(SourceReader& file);
    IconTable (*list)(SourceReader& file);
    // Leaves out the icons of which no image can be read; nullptr where listing has to look at the
    // images anyway.
    void (*keepReadable)(SourceReader& file, IconTable& table);
    // The icon's usable images.
    std::vector<ImageEntry> (*images)(SourceReader& file, const IconTable& table,
                                      const IconPlace& icon);
    // The text at a name's offset; nullptr where icons have no names.
    std::string (*text)(SourceReader& file, std::uint64_t offset);
};

std::span<const Format> Formats();

IconTable ListReadable(const Format& format, SourceReader& file);

// The format that the file's content tells; nullptr when it is none of them.
const Format* FormatOf(SourceReader& file);

// The format's name: "ICO", "CUR", "PNG", "PE", "NE" or "ANI".
std::string_view KindName(SourceKind kind);

}  // namespace kestrel::formats
