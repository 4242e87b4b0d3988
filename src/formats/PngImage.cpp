#include "formats/PngImage.h"

#include <algorithm>
#include <array>
#include <bit>
#include <span>
#include <vector>

#include "formats/IconPixels.h"
#include "formats/PngChunks.h"
#include "formats/PngColors.h"
#include "formats/PngRows.h"

namespace kestrel::formats {
namespace {

constexpr std::array<std::uint8_t, 8> kSignature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
// Of the header's content; the fields and what they may hold are those of the PNG specification,
// 11.2.2 "IHDR Image header".
constexpr std::size_t kHeaderBytes = 13;
constexpr std::uint64_t kCompression = 10;
constexpr std::uint64_t kFilters = 11;
constexpr std::uint64_t kInterlace = 12;
constexpr std::uint32_t kLongestSide = 0x7FFFFFFF;
// What the rows of a picture may take when they are unpacked, one after the other.
constexpr std::uint64_t kMaxUnpacked = std::uint64_t{256} << 20;

// The bits that each sample may have by colour type (grey, -, RGB, palette, grey + alpha, -, RGBA),
// as a set of powers of two.
constexpr std::array<unsigned, 7> kDepths{
    1 | 2 | 4 | 8 | 16, 0, 8 | 16, 1 | 2 | 4 | 8, 8 | 16, 0, 8 | 16};

// Which pixels one pass over a picture brings. PNG specification, "Interlacing and pass
// extraction".
struct Pass {
    int firstX, distanceX, firstY, distanceY;
};
constexpr std::array<Pass, 1> kOnePass{{{0, 1, 0, 1}}};
constexpr std::array<Pass, 7> kAdam7{{{0, 8, 0, 8},
                                      {4, 8, 0, 8},
                                      {0, 4, 4, 8},
                                      {2, 4, 0, 4},
                                      {0, 2, 2, 4},
                                      {1, 2, 0, 2},
                                      {0, 1, 1, 2}}};

std::size_t RowBytes(int width, unsigned bitsPerPixel) {
    return (static_cast<std::size_t>(width) * bitsPerPixel + 7) / 8;
}

std::uint64_t UnpackedBytes(const ImageInfo& info) {
    return std::uint64_t{RowBytes(info.width, static_cast<unsigned>(info.bitsPerPixel))} *
           static_cast<std::uint64_t>(info.height);
}

// What the header's content says of the stored pixels.
PngColors ColorsOf(const ByteReader& header) {
    PngColors colors;
    colors.bitDepth = header.U8(8);
    colors.colorType = header.U8(9);
    return colors;
}

// Keeps what is wanted of a row, which holds this pass's pixels of line `y`.
void KeepPixels(const PngColors& colors, Bytes row, int y, const Pass& pass,
                const gdi::Samples& samples, gdi::Surface& pixels) {
    const auto [first, end] = std::equal_range(samples.rows.begin(), samples.rows.end(), y);
    for (auto kept = first; kept != end; ++kept) {
        auto out = pixels.Row(static_cast<int>(kept - samples.rows.begin())).begin();
        for (const int column : samples.columns) {
            const int x = column - pass.firstX;
            if (x >= 0 && x % pass.distanceX == 0)
                *out = colors.At(row, static_cast<std::size_t>(x / pass.distanceX));
            ++out;
        }
    }
}

// Gives each row to take(colors, row, y, pass, columns). An interlaced picture comes as up to seven
// smaller ones, each with rows of its own. False when a row is missing or damaged.
template <class Take>
bool ReadRows(PngChunks& chunks, const ImageInfo& info, const Take& take) {
    const auto header = chunks.Next();
    if (!header) return false;
    PngColors colors = ColorsOf(ByteReader(header->content));
    const bool interlaced = ByteReader(header->content).U8(kInterlace) != 0;
    const auto first = ReadPngColors(chunks, colors);
    if (!first) return false;

    const auto bits = static_cast<unsigned>(info.bitsPerPixel);
    PngRows rows(chunks, *first, RowBytes(info.width, bits), std::max(1U, bits / 8));
    for (const Pass& pass : interlaced ? std::span<const Pass>(kAdam7) : kOnePass) {
        const int columns = (info.width - pass.firstX + pass.distanceX - 1) / pass.distanceX;
        if (columns < 1) continue;
        rows.BeginImage();
        for (int y = pass.firstY; y < info.height; y += pass.distanceY) {
            const Bytes row = rows.Next(RowBytes(columns, bits));
            if (row.empty()) return false;
            take(colors, row, y, pass, columns);
        }
    }
    return true;
}

}  // namespace

bool IsPng(Bytes image) {
    return image.size() >= kSignature.size() &&
           std::equal(kSignature.begin(), kSignature.end(), image.begin());
}

std::optional<ImageInfo> ReadPngHeader(Bytes image) {
    const auto header = IsPng(image) ? PngChunks(image).Next() : std::nullopt;
    if (!header || header->name != kPngHeader || header->content.size() != kHeaderBytes ||
        !header->IsWhole())
        return std::nullopt;
    const ByteReader reader(header->content);
    const std::uint32_t width = reader.BigEndianU32(0);
    const std::uint32_t height = reader.BigEndianU32(4);
    const PngColors colors = ColorsOf(reader);
    if (width < 1 || width > kLongestSide || height < 1 || height > kLongestSide ||
        colors.colorType >= kDepths.size() || !std::has_single_bit(colors.bitDepth) ||
        (kDepths[colors.colorType] & colors.bitDepth) == 0 || reader.U8(kCompression) != 0 ||
        reader.U8(kFilters) != 0 || reader.U8(kInterlace) > 1)
        return std::nullopt;
    return ImageInfo{static_cast<int>(width), static_cast<int>(height),
                     static_cast<int>(colors.SamplesAPixel() * colors.bitDepth), true};
}

std::optional<ImageInfo> ReadPngInfo(Bytes image, int longestSide) {
    const auto info = ReadPngHeader(image);
    if (!info || info->width > longestSide || info->height > longestSide ||
        UnpackedBytes(*info) > kMaxUnpacked)
        return std::nullopt;
    return info;
}

std::optional<gdi::Surface> ReadPngPixels(Bytes image, const ImageInfo& info,
                                          const gdi::Samples& samples, std::size_t& work) {
    PngChunks chunks(image);
    gdi::Surface pixels(static_cast<int>(samples.columns.size()),
                        static_cast<int>(samples.rows.size()), gdi::kBlack);
    const bool whole =
        ReadRows(chunks, info,
                 [&](const PngColors& colors, Bytes row, int y, const Pass& pass, int /*columns*/) {
                     KeepPixels(colors, row, y, pass, samples, pixels);
                 });
    work += static_cast<std::size_t>(UnpackedBytes(info)) + image.size() - chunks.BytesLeft();
    if (!whole) return std::nullopt;
    return pixels;
}

bool ReadPngRuns(Bytes image, const ImageInfo& info, const gdi::TakePixels& take) {
    PngChunks chunks(image);
    std::vector<gdi::COLORREF> pixels;
    return ReadRows(chunks, info,
                    [&](const PngColors& colors, Bytes row, int y, const Pass& pass, int columns) {
                        pixels.resize(static_cast<std::size_t>(columns));
                        for (std::size_t x = 0; x < pixels.size(); ++x)
                            pixels[x] = colors.At(row, x);
                        take({pass.firstX, pass.distanceX, y, pixels});
                    });
}

std::optional<IconImage> DecodePng(Bytes image, const ImageInfo& info, gdi::Size size,
                                   std::size_t& work) {
    const gdi::Samples samples = gdi::StretchSamples({info.width, info.height}, size);
    auto pixels = ReadPngPixels(image, info, samples, work);
    if (!pixels) return std::nullopt;
    IconImage icon{info, gdi::IconPlanes(size.width, size.height)};
    icon.planes.image = *std::move(pixels);
    SplitAlpha(icon);
    return icon;
}

}  // namespace kestrel::formats
