#include "formats/IconExport.h"

#include <array>
#include <cerrno>

namespace kestrel::formats {
namespace {

constexpr std::size_t kHeadBytes = 6;
constexpr std::size_t kEntryBytes = 16;
constexpr int kLargestSide = 256;
// The type in a file's head.
constexpr std::uint64_t kIcons = 1;
constexpr std::uint64_t kCursors = 2;

// A side is one byte, in which 0 means 256 and stands for what is larger too.
int StoredSide(int side) {
    return side < kLargestSide ? side : 0;
}

// What two words of an entry tell: of an icon planes and bits, of a cursor the hotspot.
using Words = std::array<int, 2>;

Words PlanesAndBits(const ImageInfo& info) {
    return {1, info.bitsPerPixel};
}

void WriteHead(ByteWriter& out, std::uint64_t type, std::size_t images) {
    out.U16(0);
    out.U16(type);
    out.U16(images);
}

void WriteEntry(ByteWriter& out, const ImageBytes& image, const Words& words) {
    const ImageInfo& info = image.info;
    out.U8(static_cast<std::uint64_t>(StoredSide(info.width)));
    out.U8(static_cast<std::uint64_t>(StoredSide(info.height)));
    out.U8(info.bitsPerPixel < 8 ? 1U << info.bitsPerPixel : 0);  // colours, 0 = 256 or more
    out.U8(0);
    for (const int word : words)
        out.U16(static_cast<std::uint64_t>(word));
    out.U32(image.bytes.size());
}

template <class WordsOf>
std::vector<std::uint8_t> FileOf(std::span<const ImageBytes> images, std::uint64_t type,
                                 const WordsOf& wordsOf) {
    ByteWriter out;
    WriteHead(out, type, images.size());
    std::size_t offset = kHeadBytes + kEntryBytes * images.size();
    for (const ImageBytes& image : images) {
        WriteEntry(out, image, wordsOf(image.info));
        out.U32(offset);
        offset += image.bytes.size();
    }
    for (const ImageBytes& image : images)
        out.Append(image.bytes);
    return out.Take();
}

}  // namespace

void WriteDirectoryHead(ByteWriter& out, std::size_t images) {
    WriteHead(out, kIcons, images);
}

void WriteDirectoryEntry(ByteWriter& out, const ImageBytes& image) {
    WriteEntry(out, image, PlanesAndBits(image.info));
}

std::vector<std::uint8_t> IconFileOf(std::span<const ImageBytes> images) {
    return FileOf(images, kIcons, PlanesAndBits);
}

std::vector<std::uint8_t> CursorFileOf(std::span<const ImageBytes> images, gdi::Point hotspot) {
    const ImageInfo& first = images.front().info;
    return FileOf(images, kCursors, [&](const ImageInfo& info) {
        return Words{hotspot.x * info.width / first.width, hotspot.y * info.height / first.height};
    });
}

Result<std::vector<std::uint8_t>> ExportImages(const IconSource& source,
                                               std::span<const ImageEntry> entries) {
    std::vector<ImageBytes> images;
    std::size_t size = kHeadBytes;
    for (const ImageEntry& entry : entries) {
        auto bytes = source.Stored(entry);
        if (!bytes) return tl::unexpected(bytes.error());
        size += kEntryBytes + bytes->size();
        if (size > kMaxIconFileBytes) return Fail(EFBIG, "The icon is larger than 32 MB");
        images.push_back({entry.info, *std::move(bytes)});
    }
    return IconFileOf(images);
}

Result<std::vector<std::uint8_t>> ExportIcon(const IconSource& source, std::size_t icon) {
    const auto entries = source.Images(icon);
    if (!entries) return tl::unexpected(entries.error());
    return ExportImages(source, *entries);
}

}  // namespace kestrel::formats
