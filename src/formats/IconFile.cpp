#include "formats/IconFile.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "formats/BestImage.h"
#include "formats/ByteReader.h"
#include "formats/DibImage.h"
#include "formats/IconPixels.h"
#include "formats/PngImage.h"

namespace kestrel::formats {
namespace {

constexpr std::uint64_t kDirectorySize = 6;
constexpr std::uint64_t kEntrySize = 16;
constexpr std::uint16_t kIconType = 1;
constexpr std::uint16_t kCursorType = 2;

// What ReadBestImage may spend on damaged images before it gives up, in bytes read and decoded;
// about a second's worth. Real files stay far below it.
constexpr std::size_t kTrialBudget = std::size_t{128} << 20;
constexpr std::size_t kTrialOverhead = 4096;

// A PNG that is no image of an icon may be a photograph.
constexpr int kMaxPngSide = 8192;

// One kind of file that holds icons, told by its content and never by its name.
struct IconKind {
    std::string_view name;
    bool (*sniff)(Bytes file);
    std::vector<ImageEntry> (*list)(Bytes file);
    std::optional<IconImage> (*decode)(Bytes file, const ImageEntry& entry);
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
    if (!dib) return std::nullopt;
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

// A bitmap or a PNG that lies in the file as it is.
std::optional<IconImage> DecodeStored(Bytes file, const ImageEntry& entry) {
    const Bytes image = ByteReader(file).Part(entry.offset, entry.size);
    if (entry.info.png) return DecodePng(image, entry.info);
    const auto dib = ReadDibLayout(image, entry.info.width, entry.info.height);
    return dib ? DecodeDib(image, *dib) : std::nullopt;
}

constexpr std::array kKinds{
    IconKind{"icon or cursor", IsIconDirectory, ListDirectory, DecodeStored},
    IconKind{"PNG", IsPng, ListPng, DecodeStored},
};

tl::unexpected<Error> NoPicture() {
    return Fail(kInvalidPicture, "Invalid picture");
}

// Damaged bitmaps are refused by their header; only a PNG must be decoded to know.
std::size_t TrialCost(const ImageEntry& entry) {
    const std::size_t pixels = entry.info.png ? static_cast<std::size_t>(entry.info.width) *
                                                    static_cast<std::size_t>(entry.info.height)
                                              : 0;
    return kTrialOverhead + (entry.info.png ? entry.size : 0) + 4 * pixels;
}

}  // namespace

Result<std::vector<ImageEntry>> ListImages(std::span<const std::uint8_t> file) {
    for (const IconKind& kind : kKinds) {
        if (!kind.sniff(file)) continue;
        auto entries = kind.list(file);
        if (!entries.empty()) return entries;
    }
    return NoPicture();
}

Result<IconImage> DecodeImage(std::span<const std::uint8_t> file, const ImageEntry& entry) {
    const auto* const kind =
        std::ranges::find_if(kKinds, [file](const IconKind& each) { return each.sniff(file); });
    auto icon = kind == kKinds.end() ? std::nullopt : kind->decode(file, entry);
    if (!icon || icon->info != entry.info) return NoPicture();
    return *std::move(icon);
}

Result<IconImage> ReadBestImage(std::span<const std::uint8_t> file) {
    const auto entries = ListImages(file);
    if (!entries) return tl::unexpected<Error>(entries.error());
    std::size_t spent = 0;
    for (const ImageEntry& entry : BestFirst(*entries)) {
        if (spent > kTrialBudget) break;
        spent += TrialCost(entry);
        if (auto icon = DecodeImage(file, entry)) return icon;
    }
    return NoPicture();
}

}  // namespace kestrel::formats
