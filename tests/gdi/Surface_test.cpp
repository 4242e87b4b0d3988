#include "platform/gdi/Blit.h"

#include <climits>
#include <cstdint>
#include <utility>

#include "tests/support/PictureText.h"

namespace kestrel::gdi {
namespace {

using test::ComparePicture;

Surface Noise(int width, int height, std::uint32_t seed) {
    Surface noise(width, height);
    for (int i = 0; i < width * height; ++i) {
        seed = seed * 1664525 + 1013904223;
        noise.SetPixel(i % width, i / width, seed >> 8);
    }
    return noise;
}

// Looks at every target pixel and asks which source pixel belongs there.
void SlowStretch(Surface& target, Rect to, const Surface& source, Rect from, RasterOp op) {
    for (int pixel = 0; pixel < target.Width() * target.Height(); ++pixel) {
        const int x = pixel % target.Width();
        const int y = pixel / target.Width();
        const auto i = std::int64_t{x} - to.left;
        const auto j = std::int64_t{y} - to.top;
        if (from.width <= 0 || i < 0 || i >= to.width || j < 0 || j >= to.height) continue;
        const COLORREF s =
            source.GetPixel(static_cast<int>(from.left + i * from.width / to.width),
                            static_cast<int>(from.top + j * from.height / to.height));
        if (s == CLR_INVALID) continue;
        const COLORREF t = target.GetPixel(x, y);
        target.SetPixel(x, y, op == RasterOp::Copy ? s : op == RasterOp::And ? (s & t) : (s ^ t));
    }
}

// Without a source a copy of `before` is drawn on itself.
void ExpectAgreesWithTwin(const Surface& before, Rect to, const Surface* source, Rect from) {
    SCOPED_TRACE(testing::Message() << to.left << ", " << to.width << ", " << from.width);
    for (const RasterOp op : {RasterOp::Copy, RasterOp::And, RasterOp::Xor}) {
        Surface expected = before;
        SlowStretch(expected, to, source ? *source : before, from, op);
        Surface stretched = before;
        StretchBlt(stretched, to, source ? *source : stretched, from, op);
        EXPECT_TRUE(ComparePicture(stretched, expected));
        if (to.width != from.width) continue;
        Surface copied = before;
        BitBlt(copied, to.left, to.top, to.width, to.height, source ? *source : copied, from.left,
               from.top, op);
        EXPECT_TRUE(ComparePicture(copied, expected));
    }
}

TEST(Blit, AgreesWithSlowTwinInsideOutsideAndAtTheEndsOfInt) {
    const Rect table[][2] = {
        {{-3, -2, 9, 9}, {-4, 1, 9, 9}},
        {{-INT_MAX + 6, 3, INT_MAX, INT_MAX}, {-INT_MAX + 5, -2, INT_MAX, INT_MAX}},
        {{INT_MAX, INT_MAX, INT_MAX, INT_MAX}, {INT_MIN, INT_MIN, INT_MAX, INT_MAX}},
        {{1, 1, -3, INT_MIN}, {1, 1, -3, INT_MIN}},
        {{-7, -15, 100, 100}, {0, 0, 10, 10}},
        {{3, 2, 13, 11}, {-3, -2, 17, 5}},
        {{2, 2, 5, 5}, {INT_MIN, -1000, INT_MAX, INT_MAX}},
        {{0, 0, 5, 5}, {0, 0, 0, 3}},
    };
    const Surface source = Noise(10, 11, 1);
    for (const auto& [to, from] : table)
        ExpectAgreesWithTwin(Noise(20, 15, 2), to, &source, from);
    // An overlapping block arrives as it was.
    for (int shift = 0; shift < 25; ++shift)
        ExpectAgreesWithTwin(Noise(9, 8, 3), {shift % 5, shift / 5, 6, 5}, nullptr, {2, 2, 6, 5});
}

}  // namespace
}  // namespace kestrel::gdi
