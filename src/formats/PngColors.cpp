#include "formats/PngColors.h"

#include "formats/IconPixels.h"

namespace kestrel::formats {
namespace {

constexpr std::uint32_t kOpaque = 0xFF;

}  // namespace

unsigned PngColors::SamplesAPixel() const {
    if (colorType == kPalette) return 1;
    return ((colorType & kColorBit) != 0 ? 3U : 1U) + ((colorType & kAlphaBit) != 0 ? 1U : 0U);
}

gdi::COLORREF PngColors::At(Bytes row, std::size_t x) const {
    if (colorType == kPalette) return palette[PackedPixel(row, x, bitDepth)];
    const std::size_t first = x * SamplesAPixel();
    std::array<unsigned, 3> color{};
    color.fill(Sample(row, first));
    std::size_t next = first + 1;
    if ((colorType & kColorBit) != 0) {
        color[1] = Sample(row, next++);
        color[2] = Sample(row, next++);
    }
    std::uint32_t alpha = color == transparent ? 0 : kOpaque;
    if ((colorType & kAlphaBit) != 0) alpha = Level(Sample(row, next));
    return gdi::Rgb(Level(color[0]), Level(color[1]), Level(color[2])) | alpha << 24;
}

unsigned PngColors::Sample(Bytes row, std::size_t i) const {
    if (bitDepth < 8) return PackedPixel(row, i, bitDepth);
    if (bitDepth == 8) return row[i];
    return static_cast<unsigned>(row[2 * i] << 8 | row[2 * i + 1]);
}

std::uint8_t PngColors::Level(unsigned sample) const {
    constexpr unsigned kMost = 255;
    const unsigned most = (1U << bitDepth) - 1;
    return static_cast<std::uint8_t>((sample * kMost + most / 2) / most);
}

}  // namespace kestrel::formats
