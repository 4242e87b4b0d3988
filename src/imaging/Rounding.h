#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace kestrel::imaging {

inline constexpr int kMaxLevel = 255;

// The nearest integer, halves to the even one.
inline int Round(double value) {
    return static_cast<int>(std::lrint(value));
}

// A channel's value, limited to 0..255.
inline std::uint8_t Level(int value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0, kMaxLevel));
}

}  // namespace kestrel::imaging
