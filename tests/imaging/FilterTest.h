#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

#include "imaging/filters/FilterTable.h"
#include "imaging/filters/mFilterG.h"
#include "tests/support/PictureText.h"

namespace kestrel::filters {

class CountingLoop : public services::MessageLoop {
  public:
    void DoEvents() override {
        ++count;
        if (onEvents) onEvents();
    }
    int count = 0;
    std::function<void()> onEvents;
};

inline constexpr std::uint32_t kSeed = 5;

// The picture after the filter with this menu key, or after this filter with a parameter.
inline gdi::Surface Filtered(gdi::Surface picture, int FilterId, int Param) {
    CountingLoop loop;
    system::RandomNumbers random(kSeed);
    filters::mFilterG(loop, random).RunFilter(FilterId, picture, Param);
    return picture;
}
inline gdi::Surface Filtered(const gdi::Surface& picture, std::string_view key) {
    const filters::FilterRow* row = filters::FindFilter(key);
    EXPECT_NE(row, nullptr) << key;
    return Filtered(picture, row->FilterId, row->Param);
}

inline gdi::COLORREF GreyColor(int level) {
    const auto value = static_cast<std::uint8_t>(level);
    return gdi::Rgb(value, value, value);
}
inline gdi::Surface PictureOf(int width, const std::vector<gdi::COLORREF>& colors) {
    gdi::Surface picture(width, static_cast<int>(colors.size()) / width);
    for (int i = 0; const gdi::COLORREF color : colors) {
        picture.SetPixel(i % width, i / width, color);
        ++i;
    }
    return picture;
}
inline gdi::Surface GreyPicture(int width, const std::vector<int>& levels) {
    std::vector<gdi::COLORREF> colors(levels.size());
    std::ranges::transform(levels, colors.begin(), GreyColor);
    return PictureOf(width, colors);
}
inline gdi::Surface Noise(int width, int height, std::uint32_t seed) {
    system::RandomNumbers random(seed);
    gdi::Surface picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            picture.SetPixel(x, y, static_cast<gdi::COLORREF>(random.Next() * gdi::kWhite));
    }
    return picture;
}

// The channels of a pixel, blue first.
using Channels = std::array<int, 3>;
inline Channels ChannelsAt(const gdi::Surface& picture, int x, int y) {
    const gdi::COLORREF color = picture.GetPixel(x, y);
    return {gdi::Blue(color), gdi::Green(color), gdi::Red(color)};
}
inline int GreyAt(const gdi::Surface& picture, int x, int y) {
    const auto [b, g, r] = ChannelsAt(picture, x, y);
    return (b + g + r) / 3;
}

// A picture made pixel by pixel, and channel by channel, from another.
using ValueOf = std::function<int(const gdi::Surface& from, int x, int y, std::size_t channel)>;
inline gdi::Surface Each(const gdi::Surface& from, const ValueOf& valueOf) {
    gdi::Surface to = from;
    for (int y = 0; y < from.Height(); ++y) {
        for (int x = 0; x < from.Width(); ++x) {
            std::array<std::uint8_t, 3> made{};
            for (std::size_t k = 0; k < 3; ++k)
                made[k] = static_cast<std::uint8_t>(std::clamp(valueOf(from, x, y, k), 0, 255));
            to.SetPixel(x, y, gdi::Rgb(made[2], made[1], made[0]));
        }
    }
    return to;
}

}  // namespace kestrel::filters
