#include "formats/IconExport.h"

#include <cerrno>

namespace kestrel::formats {
namespace {

constexpr std::size_t kHeadBytes = 6;
constexpr std::size_t kEntryBytes = 16;
constexpr int kLargestSide = 256;

// A side is one byte, in which 0 means 256 and stands for what is larger too.
int StoredSide(int side) {
    return side < kLargestSide ? side : 0;
}

}  // namespace

void WriteDirectoryHead(ByteWriter& out, std::size_t images) {
    out.U16(0);
    out.U16(1);  // icons, not cursors
    out.U16(images);
}

void WriteDirectoryEntry(ByteWriter& out, const ImageBytes& image) {
    const ImageInfo& info = image.info;
    const auto bits = static_cast<std::uint64_t>(info.bitsPerPixel);
    out.U8(static_cast<std::uint64_t>(StoredSide(info.width)));
    out.U8(static_cast<std::uint64_t>(StoredSide(info.height)));
    out.U8(bits < 8 ? 1U << bits : 0);  // colours, 0 = 256 or more
    out.U8(0);
    out.U16(1);  // planes
    out.U16(bits);
    out.U32(image.bytes.size());
}

std::vector<std::uint8_t> IconFileOf(std::span<const ImageBytes> images) {
    ByteWriter out;
    WriteDirectoryHead(out, images.size());
    std::size_t offset = kHeadBytes + kEntryBytes * images.size();
    for (const ImageBytes& image : images) {
        WriteDirectoryEntry(out, image);
        out.U32(offset);
        offset += image.bytes.size();
    }
    for (const ImageBytes& image : images)
        out.Append(image.bytes);
    return out.Take();
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
