#include "platform/gdi/ScreenSteps.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrel::gdi {
namespace {

// Each pixel of the screen as the pixel that it shows, outside of the surface as a blank.
std::string Shown(std::string_view pattern, int pixels, int room, double scale) {
    const ScreenSteps steps({pattern, pattern}, {pixels, pixels}, {room, room}, scale);
    std::string shown;
    for (int at = 0; at < room; ++at) {
        const int pixel = steps.At({0, at}).y;
        const bool inside = pixel >= 0 && pixel < pixels;
        shown += inside ? static_cast<char>('0' + pixel) : ' ';
        if (!inside) continue;
        const Rect place = steps.PlaceOf({pixel, pixel, 1, 1});
        EXPECT_TRUE(at >= place.top && at < place.top + place.height) << at;
    }
    return shown;
}

TEST(ScreenSteps, GivesEachPixelItsWholePixelsOfTheScreen) {
    const struct {
        std::string_view pattern;
        int pixels, room;
        double scale;
        std::string_view shown;
    } kCases[] = {
        {"#", 4, 4, 1, "0123"},
        {"#", 3, 9, 3, "000111222"},
        // Too large for twice its size.
        {"#", 4, 7, 1.75, " 0123  "},
        // Three lines of two pixels, the other five between them.
        {"|..", 7, 11, 1.5, "00123345566"},
        {"|..", 7, 9, 1.25, "012234556"},
        // Thinner lines rather than a smaller picture.
        {"|##|", 4, 7, 1.5, "011223 "},
        {"|##|", 4, 6, 1.5, "011223"},
        // Smaller than the surface: of each pair the second is shown.
        {"#", 6, 3, 0.5, "135"},
    };
    for (const auto& each : kCases)
        EXPECT_EQ(Shown(each.pattern, each.pixels, each.room, each.scale), each.shown)
            << each.pattern << " in " << each.room;
    const ScreenSteps doubled({}, {4, 4}, {8, 8}, 2);
    EXPECT_EQ(doubled.At({-1, 9}), (Point{-1, 4}));
}

}  // namespace
}  // namespace kestrel::gdi
