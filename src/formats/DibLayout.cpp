#include <algorithm>
#include <bit>

#include "formats/DibImage.h"
#include "formats/IconPixels.h"

namespace kestrel::formats {
namespace {

// Offsets of the fields in BITMAPINFOHEADER; the masks follow it or are its continuation in V4.
constexpr std::uint64_t kWidth = 4;
constexpr std::uint64_t kHeight = 8;
constexpr std::uint64_t kBitCount = 14;
constexpr std::uint64_t kCompression = 16;
constexpr std::uint64_t kColorsUsed = 32;
constexpr std::uint64_t kMasksInHeader = 40;
constexpr std::uint64_t kAlphaMask = 52;

constexpr std::uint32_t kMinHeaderSize = 40;
constexpr std::uint32_t kMaxHeaderSize = 124;
// OS/2's own header, whose fields mean other things.
constexpr std::uint32_t kOs2HeaderSize = 64;
// From this size on the three colour masks are part of the header.
constexpr std::uint32_t kHeaderSizeWithMasks = 52;
constexpr std::uint32_t kHeaderSizeWithAlpha = 56;
constexpr std::uint64_t kMaskBytes = 12;

constexpr std::uint32_t kUncompressed = 0;
constexpr std::uint32_t kBitFields = 3;

// Rows of both planes are filled up to 32 bits.
std::uint64_t Stride(int width, int bitsPerPixel) {
    return (static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(bitsPerPixel) + 31) /
           32 * 4;
}

bool IsRunOfBits(std::uint32_t mask) {
    if (mask == 0) return true;
    const std::uint32_t run = mask >> std::countr_zero(mask);
    return (run & (run + 1)) == 0;
}

bool ReadSize(const ByteReader& reader, int directoryWidth, int directoryHeight,
              DibLayout& layout) {
    const std::int64_t width = reader.S32(kWidth);
    const std::int64_t stored = reader.S32(kHeight);
    const std::int64_t rows = std::abs(stored);
    const bool doubled = rows != directoryHeight || width != directoryWidth;
    const std::int64_t height = doubled ? rows / 2 : rows;
    if (width < 1 || width > kMaxImageSide || height < 1 || height > kMaxImageSide) return false;
    layout.topDown = stored < 0;
    layout.info.width = static_cast<int>(width);
    layout.info.height = static_cast<int>(height);
    return true;
}

bool ReadBits(const ByteReader& reader, DibLayout& layout) {
    constexpr std::array kBits{1, 4, 8, 16, 24, 32};
    const int bits = reader.U16(kBitCount);
    layout.info.bitsPerPixel = bits;
    return std::find(kBits.begin(), kBits.end(), bits) != kBits.end();
}

// The 8 bits of a 32-bit pixel that hold no colour are its alpha, whether or not a mask says so.
std::uint32_t UnusedByte(const std::array<std::uint32_t, 4>& channels) {
    const std::uint32_t unused = ~(channels[0] | channels[1] | channels[2]);
    return std::popcount(unused) == 8 && IsRunOfBits(unused) ? unused : 0;
}

bool ReadChannels(const ByteReader& reader, std::uint32_t headerSize, DibLayout& layout) {
    const std::uint32_t compression = reader.U32(kCompression);
    const int bits = layout.info.bitsPerPixel;
    auto& channels = layout.channels;
    if (compression == kUncompressed) {
        if (bits == 16) channels = {0x7C00, 0x03E0, 0x001F, 0};
        if (bits == 32) channels = {0xFF0000, 0x00FF00, 0x0000FF, 0xFF000000};
        return true;
    }
    if (compression != kBitFields || (bits != 16 && bits != 32)) return false;
    const bool inHeader = headerSize >= kHeaderSizeWithMasks;
    const std::uint64_t masks = inHeader ? kMasksInHeader : headerSize;
    if (!reader.Has(masks, kMaskBytes)) return false;
    for (std::size_t i = 0; i < 3; ++i)
        channels[i] = reader.U32(masks + 4 * i);
    if (bits == 32) {
        if (headerSize >= kHeaderSizeWithAlpha) channels[3] = reader.U32(kAlphaMask);
        if (channels[3] == 0) channels[3] = UnusedByte(channels);
    }
    if (!inHeader) layout.paletteOffset += kMaskBytes;
    return std::all_of(channels.begin(), channels.end(), IsRunOfBits);
}

// Where palette, colours and mask lie, of an image whose size is known.
void Place(DibLayout& layout) {
    const auto rows = static_cast<std::uint64_t>(layout.info.height);
    layout.colorOffset = layout.paletteOffset + 4 * layout.paletteColors;
    layout.colorStride = Stride(layout.info.width, layout.info.bitsPerPixel);
    layout.maskOffset = layout.colorOffset + rows * layout.colorStride;
    layout.maskStride = Stride(layout.info.width, 1);
    layout.end = layout.maskOffset + rows * layout.maskStride;
}

}  // namespace

std::optional<DibLayout> ReadDibLayout(Bytes head, std::uint64_t length, int directoryWidth,
                                       int directoryHeight) {
    const ByteReader reader(head);
    const std::uint32_t headerSize = reader.U32(0);
    if (headerSize < kMinHeaderSize || headerSize > kMaxHeaderSize ||
        headerSize == kOs2HeaderSize || !reader.Has(0, headerSize))
        return std::nullopt;
    DibLayout layout;
    layout.paletteOffset = headerSize;
    if (!ReadSize(reader, directoryWidth, directoryHeight, layout) || !ReadBits(reader, layout) ||
        !ReadChannels(reader, headerSize, layout))
        return std::nullopt;

    const ImageInfo& info = layout.info;
    if (info.bitsPerPixel <= 8) {
        const std::uint64_t most = std::uint64_t{1} << info.bitsPerPixel;
        const std::uint64_t used = reader.U32(kColorsUsed);
        layout.paletteColors = used == 0 || used > most ? most : used;
    }
    Place(layout);
    // What looks as if it were not doubled is so all the same where the rows are not there: some
    // writers double the directory's height too.
    const bool asStored = std::abs(std::int64_t{reader.S32(kHeight)}) == info.height;
    if (asStored && info.height > 1 && layout.maskOffset > length) {
        layout.info.height /= 2;
        Place(layout);
    }
    return layout;
}

}  // namespace kestrel::formats
