#include "formats/DibImage.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "formats/IconPixels.h"

namespace kestrel::formats {
namespace {

using gdi::COLORREF;
using gdi::Rgb;
using Palette = std::array<COLORREF, 256>;

// One channel of a pixel, widened to 8 bits by repeating its highest bits.
class Channel {
  public:
    explicit Channel(std::uint32_t mask)
        : mask_(mask), shift_(mask == 0 ? 0 : std::countr_zero(mask)), bits_(std::popcount(mask)) {}

    std::uint8_t Of(std::uint32_t pixel) const {
        std::uint32_t value = (pixel & mask_) >> shift_;
        if (bits_ >= 8) return static_cast<std::uint8_t>(value >> (bits_ - 8));
        if (bits_ == 0) return 0;
        value <<= 8 - bits_;
        for (int filled = bits_; filled < 8; filled *= 2)
            value |= value >> filled;
        return static_cast<std::uint8_t>(value);
    }

  private:
    std::uint32_t mask_;
    int shift_;
    int bits_;
};

// Colours that the file does not hold stay black.
Palette ReadPalette(const ByteReader& reader, const DibLayout& layout) {
    Palette palette{};
    for (std::size_t i = 0; i < layout.paletteColors; ++i) {
        const std::uint32_t quad = reader.U32(layout.paletteOffset + 4 * i);
        palette[i] = Rgb(static_cast<std::uint8_t>(quad >> 16),
                         static_cast<std::uint8_t>(quad >> 8), static_cast<std::uint8_t>(quad));
    }
    return palette;
}

// Reads the rows of both planes of one image; colours of 32-bit images carry alpha in the top byte.
class DibDecoder {
  public:
    DibDecoder(Bytes image, const DibLayout& layout)
        : reader_(image),
          layout_(layout),
          palette_(ReadPalette(reader_, layout)),
          red_(layout.channels[0]),
          green_(layout.channels[1]),
          blue_(layout.channels[2]),
          alpha_(layout.channels[3]) {}

    void ReadColorRow(int y, std::span<COLORREF> out) const {
        const Bytes row = StoredRow(layout_.colorOffset, layout_.colorStride, y);
        const auto bits = static_cast<unsigned>(layout_.info.bitsPerPixel);
        if (bits <= 8) {
            for (std::size_t x = 0; x < out.size(); ++x)
                out[x] = palette_[PackedPixel(row, x, bits)];
        } else if (bits == 24) {
            for (std::size_t x = 0; x < out.size(); ++x)
                out[x] = Rgb(row[3 * x + 2], row[3 * x + 1], row[3 * x]);
        } else {
            ReadChannels(ByteReader(row), bits / 8, out);
        }
    }

    // Rows that the data does not hold whole count as opaque where they are missing.
    void ReadMaskRow(int y, std::span<COLORREF> out) const {
        const Bytes row = StoredRow(layout_.maskOffset, layout_.maskStride, y);
        const std::size_t stored = std::min(out.size(), row.size() * 8);
        std::fill(out.begin(), out.end(), gdi::kBlack);
        for (std::size_t x = 0; x < stored; ++x)
            if (PackedPixel(row, x, 1) != 0) out[x] = gdi::kWhite;
    }

  private:
    Bytes StoredRow(std::uint64_t plane, std::uint64_t stride, int y) const {
        const int row = layout_.topDown ? y : layout_.info.height - 1 - y;
        return reader_.Part(plane + static_cast<std::uint64_t>(row) * stride, stride);
    }

    void ReadChannels(const ByteReader& row, unsigned bytesPerPixel,
                      std::span<COLORREF> out) const {
        for (std::size_t x = 0; x < out.size(); ++x) {
            const std::uint32_t pixel = bytesPerPixel == 2 ? row.U16(2 * x) : row.U32(4 * x);
            out[x] = Rgb(red_.Of(pixel), green_.Of(pixel), blue_.Of(pixel)) |
                     std::uint32_t{alpha_.Of(pixel)} << 24;
        }
    }

    ByteReader reader_;
    const DibLayout& layout_;
    Palette palette_;
    Channel red_;
    Channel green_;
    Channel blue_;
    Channel alpha_;
};

// Both planes as they are stored; `alpha` tells whether the colours carry any in the top byte, and
// the mask is read only where they do not.
struct StoredPlanes {
    IconImage icon;
    bool alpha = false;
};

std::optional<StoredPlanes> ReadPlanes(Bytes image, const DibLayout& layout) {
    if (layout.maskOffset > image.size()) return std::nullopt;
    const DibDecoder decoder(image, layout);
    StoredPlanes stored{EmptyImage(layout.info)};
    gdi::IconPlanes& planes = stored.icon.planes;
    std::uint32_t anyAlpha = 0;
    for (int y = 0; y < layout.info.height; ++y) {
        const auto row = planes.image.Row(y);
        decoder.ReadColorRow(y, row);
        for (const COLORREF pixel : row)
            anyAlpha |= pixel >> 24;
    }
    stored.alpha = anyAlpha != 0;
    for (int y = 0; y < layout.info.height && !stored.alpha; ++y)
        decoder.ReadMaskRow(y, planes.mask.Row(y));
    return stored;
}

}  // namespace

std::optional<IconImage> DecodeDib(Bytes image, const DibLayout& layout) {
    auto stored = ReadPlanes(image, layout);
    if (!stored) return std::nullopt;
    if (stored->alpha) SplitAlpha(stored->icon);
    return std::move(stored->icon);
}

std::optional<gdi::Surface> ReadDibPixels(Bytes image, const DibLayout& layout) {
    auto stored = ReadPlanes(image, layout);
    if (!stored) return std::nullopt;
    if (!stored->alpha) JoinAlpha(stored->icon.planes);
    return std::move(stored->icon.planes.image);
}

}  // namespace kestrel::formats
