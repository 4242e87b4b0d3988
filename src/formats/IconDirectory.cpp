#include "formats/IconDirectory.h"

#include <algorithm>

#include "formats/StoredImage.h"

namespace kestrel::formats {
namespace {

constexpr std::uint64_t kHeadSize = 6;
constexpr std::uint64_t kEntrySize = 16;
constexpr std::uint16_t kIconType = 1;
constexpr std::uint16_t kCursorType = 2;

// The type of the directory here, or 0 when there is none.
std::uint16_t TypeAt(SourceReader& file, std::uint64_t offset) {
    const auto head = file.Record<kHeadSize>(offset);
    const std::uint16_t type = head.U16(2);
    return head.U16(0) == 0 && (type == kIconType || type == kCursorType) ? type : 0;
}

// An image's own header is believed; the directory only tells where the image begins and whether
// its height is doubled. Its planes, depth (a cursor's hotspot) and length are often wrong.
std::optional<ImageEntry> EntryImage(SourceReader& file, Extent directory, std::size_t index,
                                     Bytes entry) {
    const ByteReader fields(entry);
    const std::uint64_t offset = fields.U32(12);
    if (offset < kHeadSize + kEntrySize * (index + 1) || offset >= directory.size)
        return std::nullopt;
    auto image = ReadImageHead(file, {directory.offset + offset, directory.size - offset},
                               {DirectorySide(fields.U8(0)), DirectorySide(fields.U8(1))});
    if (!image) return std::nullopt;
    image->index = index;
    image->hotspot = {fields.U16(4), fields.U16(6)};
    return image;
}

}  // namespace

bool IsIconFile(SourceReader& file) {
    return TypeAt(file, 0) == kIconType;
}
bool IsCursorFile(SourceReader& file) {
    return TypeAt(file, 0) == kCursorType;
}
bool IsDirectory(SourceReader& file, std::uint64_t offset) {
    return TypeAt(file, offset) != 0;
}

// The count may promise more entries than there are: they end where the first image begins.
std::vector<ImageEntry> DirectoryImages(SourceReader& file, Extent directory, std::size_t most) {
    directory = file.Inside(directory);
    if (directory.size < kHeadSize) return {};
    const std::uint64_t count =
        std::min<std::uint64_t>(file.Record<kHeadSize>(directory.offset).U16(4), most);
    const auto entries = file.Part(
        {directory.offset + kHeadSize, std::min(count * kEntrySize, directory.size - kHeadSize)});
    std::uint64_t end = entries.size();
    std::vector<ImageEntry> images;
    for (std::uint64_t at = 0; at + kEntrySize <= end; at += kEntrySize) {
        const auto image = EntryImage(file, directory, static_cast<std::size_t>(at / kEntrySize),
                                      ByteReader(entries).Part(at, kEntrySize));
        if (!image) continue;
        images.push_back(*image);
        end = std::min(end, image->offset - directory.offset - kHeadSize);
    }
    return images;
}

IconTable ListDirectory(SourceReader& file) {
    IconTable table;
    for (const ImageEntry& image : DirectoryImages(file, {0, file.Size()}, SIZE_MAX)) {
        if (table.icons.size() == kMostIcons) break;
        const auto entry = static_cast<std::uint32_t>(kHeadSize + kEntrySize * image.index);
        const auto number = static_cast<std::uint32_t>(image.index) + 1;
        table.icons.push_back({entry, kEntrySize, number});
    }
    return table;
}

std::vector<ImageEntry> EntryImages(SourceReader& file, const IconTable& /*table*/,
                                    const IconPlace& entry) {
    const auto image = EntryImage(file, {0, file.Size()}, entry.name - 1, file.Part(entry.Where()));
    return image ? std::vector{*image} : std::vector<ImageEntry>{};
}

}  // namespace kestrel::formats
