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

std::size_t EntryCount(SourceReader& file, const IconPlace& group) {
    const std::uint64_t room = file.Inside(group.Where()).size;
    if (room < kHeadSize) return 0;
    const std::uint64_t count = file.Record<kHeadSize>(group.offset).U16(4);
    return static_cast<std::size_t>(
        std::min({count, (room - kHeadSize) / kEntrySize, std::uint64_t{kMostImagesEach}}));
}

// The first image of this number as stored, if any.
const IconPlace* FindImage(const IconTable& table, std::uint32_t number) {
    const auto found = std::ranges::lower_bound(table.images, number, {}, &IconPlace::name);
    return found != table.images.end() && found->name == number ? &*found : nullptr;
}

// An entry tells a size, as one of an icon file does, and an image's number in place of its offset.
std::optional<ImageEntry> GroupImage(SourceReader& file, const IconTable& table,
                                     const IconPlace& group, std::size_t index) {
    const auto entry = file.Record<kEntrySize>(group.offset + kHeadSize + index * kEntrySize);
    const IconPlace* stored = FindImage(table, entry.U16(12));
    if (stored == nullptr) return std::nullopt;
    auto image = ReadImageHead(file, stored->Where(),
                               {DirectorySide(entry.bytes[0]), DirectorySide(entry.bytes[1])});
    if (image) image->index = index;
    return image;
}

// Each entry that is looked at takes one off `budget`.
std::optional<ImageEntry> FirstImage(SourceReader& file, const IconTable& table,
                                     const IconPlace& icon, std::size_t& budget) {
    if (!table.grouped) return ReadImageHead(file, icon.Where(), {});
    const std::size_t count = EntryCount(file, icon);
    for (std::size_t i = 0; i < count && budget > 0; ++i, --budget)
        if (const auto image = GroupImage(file, table, icon, i)) return image;
    return std::nullopt;
}

void KeepReadable(SourceReader& file, IconTable& table, std::vector<IconPlace> candidates) {
    std::stable_partition(candidates.begin(), candidates.end(),
                          [](const IconPlace& icon) { return icon.named; });
    std::size_t budget = kMostEntries;
    DrawableIcons drawable(file);
    for (const IconPlace& icon : candidates) {
        if (budget == 0 || table.icons.size() == kMostIcons) break;
        const auto first = FirstImage(file, table, icon, budget);
        if (!first) continue;
        const ListedIcon listed{icon, *first};
        if (drawable.CanDraw(*first, [&] { return ResourceImages(file, table, listed); }))
            table.icons.push_back(listed);
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

std::vector<ImageEntry> ResourceImages(SourceReader& file, const IconTable& table,
                                       const ListedIcon& icon) {
    std::vector<ImageEntry> images{icon.first};
    const std::size_t count = table.grouped ? EntryCount(file, icon.place) : 0;
    for (std::size_t i = icon.first.index + 1; i < count; ++i)
        if (const auto image = GroupImage(file, table, icon.place, i)) images.push_back(*image);
    return images;
}

}  // namespace kestrel::formats
