#include "formats/IconFile.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "formats/BestImage.h"
#include "formats/ByteReader.h"
#include "formats/DibImage.h"
#include "formats/IconPixels.h"
#include "formats/PngImage.h"
#include "formats/UnreadableFile.h"

namespace kestrel::formats {
namespace {

constexpr std::uint64_t kDirectorySize = 6;
constexpr std::uint64_t kEntrySize = 16;
constexpr std::uint16_t kIconType = 1;
constexpr std::uint16_t kCursorType = 2;

// How much is read and unpacked to find images that are whole, in bytes; about half a second's
// worth. Real files stay far below it.
constexpr std::size_t kMostWork = std::size_t{128} << 20;
constexpr std::size_t kWorkAnImage = 4096;

// One kind of file that holds icons, told by its content and never by its name.
struct IconKind {
    std::string_view name;
    bool (*sniff)(Bytes file);
    std::vector<ImageEntry> (*list)(Bytes file);
    // Adds to `work` what it has read and unpacked, in bytes.
    std::optional<IconImage> (*decode)(Bytes file, const ImageEntry& entry, gdi::Size size,
                                       std::size_t& work);
};

bool IsIconDirectory(Bytes file) {
    const ByteReader reader(file);
    const std::uint16_t type = reader.U16(2);
    return reader.Has(0, kDirectorySize) && reader.U16(0) == 0 &&
           (type == kIconType || type == kCursorType);
}

// A side in the directory is one byte, in which 0 means 256.
int DirectorySide(std::uint8_t stored) {
    return stored == 0 ? 256 : stored;
}

// An image's own header is believed; the directory only tells where the image begins and whether
// its height is doubled. Its planes, depth (a cursor's hotspot) and length are often wrong.
std::optional<ImageEntry> ReadEntry(const ByteReader& file, std::uint64_t entry) {
    const std::uint64_t offset = file.U32(entry + 12);
    const Bytes image = file.Part(offset);
    if (offset < entry + kEntrySize || image.empty()) return std::nullopt;
    const auto start = static_cast<std::size_t>(offset);
    if (const auto info = ReadPngInfo(image, kMaxImageSide))
        return ImageEntry{start, image.size(), *info};
    const auto dib =
        ReadDibLayout(image, DirectorySide(file.U8(entry)), DirectorySide(file.U8(entry + 1)));
    if (!dib || dib->maskOffset > image.size()) return std::nullopt;
    const std::uint64_t size = std::min<std::uint64_t>(dib->end, image.size());
    return ImageEntry{start, static_cast<std::size_t>(size), dib->info};
}

// The count may promise more entries than there are: they end where the first image begins.
std::vector<ImageEntry> ListDirectory(Bytes file) {
    const ByteReader reader(file);
    std::uint64_t end = std::min(reader.Size(), kDirectorySize + kEntrySize * reader.U16(4));
    std::vector<ImageEntry> entries;
    for (std::uint64_t at = kDirectorySize; at + kEntrySize <= end; at += kEntrySize) {
        auto entry = ReadEntry(reader, at);
        if (!entry) continue;
        entry->index = static_cast<std::size_t>((at - kDirectorySize) / kEntrySize);
        entries.push_back(*entry);
        end = std::min<std::uint64_t>(end, entry->offset);
    }
    return entries;
}

std::vector<ImageEntry> ListPng(Bytes file) {
    const auto info = ReadPngInfo(file, kMaxPngSide);
    if (!info) return {};
    return {ImageEntry{0, file.size(), *info}};
}

gdi::Size OwnSize(const ImageEntry& entry) {
    return {entry.info.width, entry.info.height};
}

// A bitmap or a PNG that lies in the file as it is.
std::optional<IconImage> DecodeStored(Bytes file, const ImageEntry& entry, gdi::Size size,
                                      std::size_t& work) {
    const Bytes image = ByteReader(file).Part(entry.offset, entry.size);
    work += kWorkAnImage;
    if (entry.info.png) return DecodePng(image, entry.info, size, work);
    const auto dib = ReadDibLayout(image, entry.info.width, entry.info.height);
    auto icon = dib ? DecodeDib(image, *dib) : std::nullopt;
    if (icon && size != OwnSize(entry))
        icon->planes = gdi::Stretched(icon->planes, size.width, size.height);
    return icon;
}

constexpr std::array kKinds{
    IconKind{"icon or cursor", IsIconDirectory, ListDirectory, DecodeStored},
    IconKind{"PNG", IsPng, ListPng, DecodeStored},
};

const IconKind* FindKind(Bytes file) {
    const auto* const kind =
        std::ranges::find_if(kKinds, [file](const IconKind& each) { return each.sniff(file); });
    return kind == kKinds.end() ? nullptr : kind;
}

tl::unexpected<Error> Refuse(Bytes file) {
    return tl::unexpected<Error>(WhyUnreadable(file));
}

std::optional<IconImage> Decode(Bytes file, const ImageEntry& entry, gdi::Size size,
                                std::size_t& work) {
    if (std::max(size.width, size.height) > kMaxImageSide) return std::nullopt;
    const IconKind* kind = FindKind(file);
    auto icon = kind != nullptr ? kind->decode(file, entry, size, work) : std::nullopt;
    return icon && icon->info == entry.info ? std::move(icon) : std::nullopt;
}

}  // namespace

Result<std::vector<ImageEntry>> ListImages(std::span<const std::uint8_t> file) {
    if (const IconKind* kind = FindKind(file)) {
        auto entries = kind->list(file);
        if (!entries.empty()) return entries;
    }
    return Refuse(file);
}

Result<std::vector<ImageEntry>> ListWholeImages(std::span<const std::uint8_t> file) {
    auto entries = ListImages(file);
    if (!entries) return entries;
    std::size_t work = 0;
    std::set<std::pair<std::size_t, int>> whole;
    // The best comes first, so that it is never missing.
    for (const ImageEntry& entry : BestFirst(*entries)) {
        if (work > kMostWork) break;
        if (!entry.info.png || Decode(file, entry, {1, 1}, work))
            whole.insert({entry.offset, entry.info.height});
    }
    std::erase_if(*entries, [&](const ImageEntry& entry) {
        return !whole.contains({entry.offset, entry.info.height});
    });
    if (entries->empty()) return Refuse(file);
    return entries;
}

Result<IconImage> DecodeImage(std::span<const std::uint8_t> file, const ImageEntry& entry,
                              std::optional<gdi::Size> size) {
    std::size_t work = 0;
    auto icon = Decode(file, entry, size.value_or(OwnSize(entry)), work);
    if (!icon) return Refuse(file);
    return *std::move(icon);
}

Result<IconImage> ReadBestImage(std::span<const std::uint8_t> file, std::optional<gdi::Size> size) {
    const auto entries = ListImages(file);
    if (!entries) return tl::unexpected<Error>(entries.error());
    std::size_t work = 0;
    for (const ImageEntry& entry : BestFirst(*entries)) {
        if (work > kMostWork) break;
        if (auto icon = Decode(file, entry, size.value_or(OwnSize(entry)), work)) return *icon;
    }
    return Refuse(file);
}

}  // namespace kestrel::formats
