#include "formats/ResourceIcons.h"

#include <algorithm>
#include <utility>

#include "formats/StoredImage.h"

namespace kestrel::formats {
namespace {

constexpr std::uint64_t kHeadSize = 6;
constexpr std::uint64_t kEntrySize = 14;
// Entries of groups that are looked at while the icons are listed. Large libraries have a tenth of
// it; groups that overlap could have thousands of millions.
constexpr std::size_t kMostEntries = 1U << 20;

std::size_t EntryCount(SourceReader& file, const IconPlace& group) {
    const std::uint64_t room = file.Inside(group.Where()).size;
    if (room < kHeadSize) return 0;
    const std::uint64_t count = file.Record<kHeadSize>(group.offset).U16(4);
    return static_cast<std::size_t>(std::min(count, (room - kHeadSize) / kEntrySize));
}

std::vector<ImageEntry> LoneImage(SourceReader& file, const IconPlace& icon) {
    const auto image = ReadImageHead(file, icon.Where(), {});
    return image ? std::vector{*image} : std::vector<ImageEntry>{};
}

// The first image of this number as stored, if any.
const IconPlace* FindImage(const IconTable& table, std::uint32_t number) {
    const auto found = std::ranges::lower_bound(table.images, number, {}, &IconPlace::name);
    return found != table.images.end() && found->name == number ? &*found : nullptr;
}

void KeepReadable(SourceReader& file, IconTable& table, std::vector<IconPlace> candidates) {
    std::stable_partition(candidates.begin(), candidates.end(),
                          [](const IconPlace& icon) { return icon.named; });
    std::size_t entries = 0;
    for (const IconPlace& icon : candidates) {
        if (table.grouped) entries += EntryCount(file, icon);
        if (entries > kMostEntries || table.icons.size() == kMostIcons) break;
        if (!ResourceImages(file, table, icon, 1).empty()) table.icons.push_back(icon);
    }
}

}  // namespace

IconTable ListResources(SourceReader& file, std::vector<IconPlace> groups,
                        std::vector<IconPlace> images) {
    IconTable table;
    table.grouped = !groups.empty();
    if (!table.grouped) {
        KeepReadable(file, table, std::move(images));
        return table;
    }
    std::erase_if(images, [](const IconPlace& image) { return image.named; });
    std::ranges::stable_sort(images, {}, &IconPlace::name);
    table.images = std::move(images);
    KeepReadable(file, table, std::move(groups));
    return table;
}

// An entry tells a size, as one of an icon file does, and an image's number in place of its offset.
std::vector<ImageEntry> ResourceImages(SourceReader& file, const IconTable& table,
                                       const IconPlace& icon, std::size_t most) {
    if (!table.grouped) return LoneImage(file, icon);
    const std::size_t count = EntryCount(file, icon);
    const auto bytes = file.Part({icon.offset + kHeadSize, count * kEntrySize});
    const ByteReader entries(bytes);
    std::vector<ImageEntry> images;
    for (std::size_t i = 0; i < count && images.size() < most; ++i) {
        const std::size_t at = i * kEntrySize;
        const IconPlace* stored = FindImage(table, entries.U16(at + 12));
        if (stored == nullptr) continue;
        auto image =
            ReadImageHead(file, stored->Where(),
                          {DirectorySide(entries.U8(at)), DirectorySide(entries.U8(at + 1))});
        if (!image) continue;
        image->index = i;
        images.push_back(*image);
    }
    return images;
}

}  // namespace kestrel::formats
