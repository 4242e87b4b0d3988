#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

#include "imaging/filters/PixelArray.h"

namespace kestrel::filters {

inline constexpr int kMaxLevel = 255;

// A value for each level of a channel.
template <typename Value>
using LevelTable = std::array<Value, kMaxLevel + 1>;

// The nearest integer, halves to the even one, of a number that fits. Next to this addend doubles
// are whole, so the addition rounds, and its last 32 bits are the integer. The compiler can do that
// for several values at once, which it cannot with lrint.
inline int Round(double value) {
    constexpr double kWhole = 0x1.8p52;
    return static_cast<int>(std::bit_cast<std::int64_t>(value + kWhole));
}

// A channel's value, limited to 0..255.
inline std::uint8_t Level(int value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0, kMaxLevel));
}

// The plain average of a pixel's channels.
inline int GreyLevel(int blue, int green, int red) {
    return (blue + green + red) / 3;
}

// The average grey level of a picture, and 0 of one without pixels.
int AverageGrey(const PixelArray& picture);

// The channels of a colour that is a filter's parameter.
inline std::array<int, kChannels> SplitColor(int color) {
    const auto rgb = static_cast<gdi::COLORREF>(color);
    return {gdi::Blue(rgb), gdi::Green(rgb), gdi::Red(rgb)};
}

}  // namespace kestrel::filters
