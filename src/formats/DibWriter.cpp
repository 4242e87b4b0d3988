#include "formats/DibWriter.h"

#include <algorithm>
#include <bit>

#include "formats/IconPixels.h"
#include "formats/PngWriter.h"

namespace kestrel::formats {
namespace {

using gdi::COLORREF;

constexpr std::size_t kHeaderBytes = 40;
constexpr std::size_t kFewColors = 16;
constexpr std::size_t kMostPaletteColors = 256;

COLORREF ShownAt(const gdi::IconPlanes& icon, int x, int y) {
    return icon.IsTransparent(x, y) ? gdi::kBlack : icon.image.GetPixel(x, y);
}

// The colours in rising order; none where they are too many for a palette.
std::vector<COLORREF> PaletteOf(const gdi::IconPlanes& icon) {
    std::vector<COLORREF> colors;
    for (int y = 0; y < icon.Height(); ++y)
        for (int x = 0; x < icon.Width(); ++x)
            colors.push_back(ShownAt(icon, x, y));
    std::ranges::sort(colors);
    colors.erase(std::unique(colors.begin(), colors.end()), colors.end());
    if (colors.size() > kMostPaletteColors) colors.clear();
    return colors;
}

// Rows of pixels of some bits each, the first in the highest, filled up to 32 bits.
class RowWriter {
  public:
    RowWriter(ByteWriter& out, int bits) : out_(out), bits_(bits) {}

    void Add(std::uint32_t value) {
        pending_ = pending_ << bits_ | value;
        for (waiting_ += bits_; waiting_ >= 8; ++bytes_)
            out_.U8(pending_ >> (waiting_ -= 8) & 0xFF);
    }
    void EndRow() {
        while (waiting_ > 0)
            Add(0);
        for (; bytes_ % 4 != 0; ++bytes_)
            out_.U8(0);
    }

  private:
    ByteWriter& out_;
    int bits_;
    std::uint64_t pending_ = 0;
    int waiting_ = 0;
    std::size_t bytes_ = 0;
};

// From the bottom up.
template <class ValueAt>
void WriteRows(ByteWriter& out, const ImageInfo& info, int bits, ValueAt valueAt) {
    RowWriter rows(out, bits);
    for (int y = info.height - 1; y >= 0; --y) {
        for (int x = 0; x < info.width; ++x)
            rows.Add(valueAt(x, y));
        rows.EndRow();
    }
}

void WriteHeader(ByteWriter& out, const ImageInfo& info) {
    out.U32(kHeaderBytes);
    out.U32(static_cast<std::uint64_t>(info.width));
    out.U32(2 * static_cast<std::uint64_t>(info.height));  // with the mask
    out.U16(1);                                            // planes
    out.U16(static_cast<std::uint64_t>(info.bitsPerPixel));
    out.FillTo(kHeaderBytes);  // not compressed, sizes left open, all colours
}

}  // namespace

ImageBytes EncodeDib(const gdi::IconPlanes& icon) {
    const std::vector<COLORREF> palette = PaletteOf(icon);
    const bool few = palette.size() <= kFewColors;
    const int bits = palette.empty() ? 24 : few ? 4 : 8;
    const ImageInfo info{icon.Width(), icon.Height(), bits, false};
    ByteWriter out;
    WriteHeader(out, info);
    for (const COLORREF color : palette) {
        const std::uint8_t quad[] = {gdi::Blue(color), gdi::Green(color), gdi::Red(color), 0};
        out.Append(quad);
    }
    // A palette is whole: not every reader knows shorter ones.
    if (!palette.empty()) out.FillTo(kHeaderBytes + (std::size_t{4} << bits));
    WriteRows(out, info, bits, [&](int x, int y) {
        // Whole colours have their bytes in the order of rows: blue, green, red.
        const COLORREF color = ShownAt(icon, x, y);
        if (palette.empty()) return color;
        return static_cast<std::uint32_t>(std::ranges::lower_bound(palette, color) -
                                          palette.begin());
    });
    WriteRows(out, info, 1, [&](int x, int y) { return icon.IsTransparent(x, y) ? 1U : 0U; });
    return {info, out.Take()};
}

ImageBytes EncodeDib(const gdi::Surface& pixels) {
    constexpr int kBits = 32;
    const ImageInfo info{pixels.Width(), pixels.Height(), kBits, false};
    const auto at = [&](int x, int y) { return pixels.Row(y)[static_cast<std::size_t>(x)]; };
    ByteWriter out;
    WriteHeader(out, info);
    WriteRows(out, info, kBits, [&](int x, int y) -> std::uint32_t {
        const COLORREF pixel = at(x, y);
        // The bytes of a row: blue, green, red, alpha.
        return (pixel & kAlphaBits) == 0 ? 0 : std::rotl(pixel, 8);
    });
    WriteRows(out, info, 1, [&](int x, int y) { return at(x, y) >> 24 < kOpaqueAlpha ? 1U : 0U; });
    return {info, out.Take()};
}

ImageBytes EncodeImage(const gdi::Surface& pixels) {
    constexpr int kLeastPngSide = 256;
    if (std::max(pixels.Width(), pixels.Height()) < kLeastPngSide) return EncodeDib(pixels);
    return {{pixels.Width(), pixels.Height(), 32, true}, PngBytes(pixels)};
}

}  // namespace kestrel::formats
