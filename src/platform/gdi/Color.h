#pragma once

#include <array>
#include <cstdint>

namespace kestrel::gdi {

// A colour as 0x00BBGGRR.
using COLORREF = std::uint32_t;

inline constexpr COLORREF kBlack = 0x000000;
inline constexpr COLORREF kWhite = 0xFFFFFF;
// The bits of a colour.
inline constexpr COLORREF kColorBits = 0xFFFFFF;
// What reading a pixel outside a surface gives.
inline constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;

constexpr COLORREF Rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return static_cast<COLORREF>(red | (green << 8) | (blue << 16));
}
constexpr std::uint8_t Red(COLORREF color) {
    return static_cast<std::uint8_t>(color);
}
constexpr std::uint8_t Green(COLORREF color) {
    return static_cast<std::uint8_t>(color >> 8);
}
constexpr std::uint8_t Blue(COLORREF color) {
    return static_cast<std::uint8_t>(color >> 16);
}

// The colours of the palette, row by row.
using PaletteColors = std::array<COLORREF, 256>;

}  // namespace kestrel::gdi
