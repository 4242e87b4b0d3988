#include "formats/StoredImage.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <utility>

#include "formats/BestImage.h"
#include "formats/DibImage.h"
#include "formats/PngImage.h"

namespace kestrel::formats {
namespace {

// The largest bitmap header with all that is read of it; more than a PNG's.
constexpr std::uint64_t kHeadBytes = 124;
// Of the chunks of a PNG: the signature before them, length and name, and the checksum after each.
constexpr std::uint64_t kPngSignature = 8;
constexpr std::uint64_t kChunkHead = 8;
constexpr std::uint64_t kChunkEnds = 12;
constexpr std::uint32_t kLastChunk = 0x49454E44;  // "IEND"
// A PNG of the largest size that is read has some thousands.
constexpr int kMostChunks = 65536;

constexpr std::size_t kWorkAnImage = 4096;
constexpr std::size_t kWorkAHead = 128;
// What listing a file spends on trials.
constexpr std::size_t kMostTrialWork = std::size_t{8} << 20;

// What a directory would say of a bitmap that has none. Icons are square: a height of twice the
// width counts the mask; any other does so only where its rows are not there otherwise.
DirectorySize LikelySize(Bytes head) {
    const ByteReader reader(head);
    const std::int64_t width = reader.S32(4);
    const std::int64_t height = std::abs(std::int64_t{reader.S32(8)});
    if (height == 2 * width || height > kMaxImageSide) return {-1, -1};
    return {static_cast<int>(width), static_cast<int>(height)};
}

std::uint64_t PngLength(SourceReader& file, Extent place) {
    std::uint64_t at = kPngSignature;
    for (int chunk = 0; chunk < kMostChunks && at + kChunkEnds <= place.size; ++chunk) {
        const auto head = file.Record<kChunkHead>(place.offset + at);
        const ByteReader reader(head.bytes);
        at += kChunkEnds + reader.BigEndianU32(0);
        if (reader.BigEndianU32(4) == kLastChunk) break;
    }
    return std::min(at, place.size);
}

}  // namespace

std::optional<ImageEntry> ReadImageHead(SourceReader& file, Extent place, DirectorySize told,
                                        int longestPngSide) {
    place = file.Inside(place);
    const auto start = static_cast<std::size_t>(place.offset);
    const auto record = file.Record<kHeadBytes>(place.offset);
    const auto head = ByteReader(record.bytes).Part(0, place.size);
    if (const auto png = ReadPngInfo(head, longestPngSide))
        return ImageEntry{start, static_cast<std::size_t>(place.size), *png};
    if (told.width == 0) told = LikelySize(head);
    const auto dib = ReadDibLayout(head, place.size, told.width, told.height);
    if (!dib || dib->maskOffset > place.size) return std::nullopt;
    return ImageEntry{start, static_cast<std::size_t>(std::min(dib->end, place.size)), dib->info};
}

std::optional<std::vector<std::uint8_t>> ReadStoredImage(SourceReader& file,
                                                         const ImageEntry& entry) {
    Extent place{entry.offset, entry.size};
    if (entry.info.png) place.size = PngLength(file, place);
    if (place.size > kMaxIconFileBytes) return std::nullopt;
    return file.Part(place);
}

std::optional<IconImage> DecodeStored(Bytes image, const ImageInfo& info, gdi::Size size,
                                      std::size_t& work) {
    if (std::max(size.width, size.height) > kMaxImageSide) return std::nullopt;
    work += kWorkAnImage;
    if (info.png) return DecodePng(image, info, size, work);
    const auto dib = ReadDibLayout(image, info.width, info.height);
    if (!dib || dib->info != info) return std::nullopt;
    auto icon = DecodeDib(image, *dib);
    if (icon && size != SizeOf(info))
        icon->planes = gdi::Stretched(icon->planes, size.width, size.height);
    return icon;
}

std::optional<IconImage> ReadAndDecode(SourceReader& file, const ImageEntry& image, gdi::Size size,
                                       std::size_t& work) {
    const auto bytes = ReadStoredImage(file, image);
    return bytes ? DecodeStored(*bytes, image.info, size, work) : std::nullopt;
}

std::optional<gdi::Surface> StoredPixels(Bytes image, const ImageInfo& info) {
    if (info.png) {
        std::size_t work = 0;
        const gdi::Size size = gdi::SizeWithin(SizeOf(info), kMaxImageSide);
        return ReadPngPixels(image, info, gdi::StretchSamples(SizeOf(info), size), work);
    }
    const auto dib = ReadDibLayout(image, info.width, info.height);
    if (!dib || dib->info != info) return std::nullopt;
    return ReadDibPixels(image, *dib);
}

bool StoredRuns(Bytes image, const ImageInfo& info, const gdi::TakePixels& take) {
    if (info.png) return ReadPngRuns(image, info, take);
    const auto pixels = StoredPixels(image, info);
    for (int y = 0; pixels && y < pixels->Height(); ++y)
        take({.y = y, .pixels = pixels->Row(y)});
    return pixels.has_value();
}

bool DrawableIcons::CanDraw(const ImageEntry& first,
                            const std::function<std::vector<ImageEntry>()>& images) {
    if (!first.info.png || work_ > kMostTrialWork) return true;
    const auto all = images();
    work_ += all.size() * kWorkAHead;
    if (std::ranges::any_of(all, [](const ImageEntry& image) { return !image.info.png; }))
        return true;
    return std::ranges::any_of(all, [this](const ImageEntry& image) {
        return work_ > kMostTrialWork || ReadAndDecode(file_, image, {1, 1}, work_);
    });
}

std::optional<IconImage> DecodeBest(std::vector<ImageEntry> entries, const ImageDecoder& decode) {
    std::size_t work = 0;
    for (const ImageEntry& entry : BestFirst(std::move(entries))) {
        if (work > kMostWork) break;
        if (auto icon = decode(entry, work)) return icon;
    }
    return std::nullopt;
}

void KeepWhole(std::vector<ImageEntry>& entries, const ImageDecoder& decode) {
    std::size_t work = 0;
    std::set<std::pair<std::size_t, int>> whole;
    // The best comes first, so that it is never missing.
    for (const ImageEntry& entry : BestFirst(entries)) {
        if (!entry.info.png || work > kMostWork || decode(entry, work))
            whole.insert({entry.offset, entry.info.height});
    }
    std::erase_if(entries, [&](const ImageEntry& entry) {
        return !whole.contains({entry.offset, entry.info.height});
    });
}

}  // namespace kestrel::formats
