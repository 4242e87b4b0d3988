#include "formats/ResourceIcons.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "formats/StoredImage.h"

namespace kestrel::formats {
namespace {

constexpr std::uint64_t kHeadSize = 6;
constexpr std::uint64_t kEntrySize = 14;
// Entries of groups that are looked at while the icons are listed: of the largest libraries, one a
// group and some whose images are missing. Groups that overlap could have thousands of millions.
constexpr std::size_t kMostEntries = 1U << 17;

// The first image of this number as stored, if any.
const IconPlace* FindImage(const IconTable& table, std::uint32_t number) {
    const auto found = std::ranges::lower_bound(table.images, number, {}, &IconPlace::name);
    return found != table.images.end() && found->name == number ? &*found : nullptr;
}

// An entry tells a size, as one of an icon file does, and an image's number in place of its offset.
std::optional<ImageEntry> GroupImage(SourceReader& file, const IconTable& table, Bytes bytes) {
    const ByteReader entry(bytes);
    const IconPlace* stored = FindImage(table, entry.U16(12));
    if (stored == nullptr) return std::nullopt;
    return ReadImageHead(file, stored->Where(),
                         {DirectorySide(entry.U8(0)), DirectorySide(entry.U8(1))});
}

// The usable images of an icon, `most` of them. Each entry that is looked at takes one off
// `budget`.
std::vector<ImageEntry> IconImages(SourceReader& file, const IconTable& table,
                                   const IconPlace& icon, std::size_t most, std::size_t& budget) {
    std::vector<ImageEntry> images;
    if (!table.grouped) {
        if (const auto image = ReadImageHead(file, icon.Where(), {})) images.push_back(*image);
        return images;
    }
    constexpr std::uint64_t kMostBytes = kHeadSize + kMostImagesEach * kEntrySize;
    const auto bytes = file.Part({icon.offset, std::min<std::uint64_t>(icon.size, kMostBytes)});
    const ByteReader group(bytes);
    const std::size_t count = group.U16(4);
    images.reserve(std::min({count, most, bytes.size() / kEntrySize}));
    for (std::size_t i = 0; i < count && images.size() < most && budget > 0; ++i, --budget) {
        const std::uint64_t at = kHeadSize + i * kEntrySize;
        if (!group.Has(at, kEntrySize)) break;
        auto image = GroupImage(file, table, group.Part(at, kEntrySize));
        if (!image) continue;
        image->index = i;
        images.push_back(*image);
    }
    return images;
}

}  // namespace

IconTable ListResources(std::vector<IconPlace> groups, std::vector<IconPlace> images) {
    IconTable table;
    table.grouped = !groups.empty();
    table.icons = std::move(table.grouped ? groups : images);
    std::stable_partition(table.icons.begin(), table.icons.end(),
                          [](const IconPlace& icon) { return icon.named; });
    table.icons.resize(std::min(table.icons.size(), kMostIcons));
    if (!table.grouped) return table;
    std::erase_if(images, [](const IconPlace& image) { return image.named; });
    // Most programs store them so.
    if (!std::ranges::is_sorted(images, {}, &IconPlace::name))
        std::ranges::stable_sort(images, {}, &IconPlace::name);
    table.images = std::move(images);
    return table;
}

void KeepReadable(SourceReader& file, IconTable& table) {
    std::size_t budget = kMostEntries;
    DrawableIcons drawable(file);
    std::erase_if(table.icons, [&](const IconPlace& icon) {
        if (budget == 0) return true;
        const auto first = IconImages(file, table, icon, 1, budget);
        return first.empty() ||
               !drawable.CanDraw(first[0], [&] { return ResourceImages(file, table, icon); });
    });
}

std::vector<ImageEntry> ResourceImages(SourceReader& file, const IconTable& table,
                                       const IconPlace& icon) {
    std::size_t budget = kMostImagesEach;
    return IconImages(file, table, icon, kMostImagesEach, budget);
}

}  // namespace kestrel::formats
