#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "formats/ByteReader.h"
#include "platform/gdi/Color.h"

namespace kestrel::formats {

// Turns the pixels of a PNG, as they are stored in a row, into 0xAABBGGRR. Levels are widened or
// narrowed to 8 bits; nothing else is done to colours.
struct PngColors {
    // The names are those of the PNG specification.
    static constexpr unsigned kPalette = 3;
    static constexpr unsigned kColorBit = 2;
    static constexpr unsigned kAlphaBit = 4;

    unsigned colorType = 0;
    unsigned bitDepth = 0;
    // With alpha; what the file does not hold is black.
    std::array<gdi::COLORREF, 256> palette{};
    // The one colour that is transparent, as stored: grey, or red, green and blue.
    std::optional<std::array<unsigned, 3>> transparent;

    unsigned SamplesAPixel() const;
    gdi::COLORREF At(Bytes row, std::size_t x) const;

  private:
    unsigned Sample(Bytes row, std::size_t i) const;
    std::uint8_t Level(unsigned sample) const;
};

}  // namespace kestrel::formats
