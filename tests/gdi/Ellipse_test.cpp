#include <algorithm>
#include <climits>
#include <cmath>

#include "platform/gdi/Blit.h"
#include "platform/gdi/Draw.h"
#include "tests/support/PictureText.h"

namespace kestrel::gdi {
namespace {

using test::ComparePicture;

constexpr COLORREF kInside = 0x0000FF;
constexpr COLORREF kOutside = 0x00FF00;
constexpr test::Inks kInks = {{'#', kBlack}, {'o', kInside}, {'.', kWhite}, {'g', kOutside}};

// The box at (1, 1) on a surface that leaves one pixel free all round.
Surface Drawn(int width, int height, FillStyle fill, DrawMode mode = DrawMode::CopyPen) {
    Surface target(width + 2, height + 2);
    target.state = {kBlack, kInside, mode, LineStyle::Solid, fill};
    Ellipse(target, 1, 1, width + 1, height + 1);
    return target;
}

bool HasUncoveredSide(const Surface& filled, int x, int y) {
    return filled.GetPixel(x - 1, y) == kWhite || filled.GetPixel(x + 1, y) == kWhite ||
           filled.GetPixel(x, y - 1) == kWhite || filled.GetPixel(x, y + 1) == kWhite;
}

// Covered pixels touch the ellipse of the box; uncovered ones are at most one pixel inside it.
bool KeepsToTheCurve(const Surface& filled, int x, int y) {
    const double a = (filled.Width() - 2) / 2.0;
    const double b = (filled.Height() - 2) / 2.0;
    const double dx = std::abs(x + 0.5 - filled.Width() / 2.0);
    const double dy = std::abs(y + 0.5 - filled.Height() / 2.0);
    if (filled.GetPixel(x, y) != kWhite) {
        return std::hypot(std::max(dx - 0.5, 0.0) / a, std::max(dy - 0.5, 0.0) / b) <= 1;
    }
    return a <= 1 || b <= 1 || std::hypot(dx / (a - 1), dy / (b - 1)) >= 1;
}

void CheckBox(int width, int height) {
    SCOPED_TRACE(testing::Message() << width << " x " << height);
    const Surface filled = Drawn(width, height, FillStyle::Solid);
    const Surface outline = Drawn(width, height, FillStyle::Transparent);
    const Surface inverted = Drawn(width, height, FillStyle::Transparent, DrawMode::Invert);
    EXPECT_TRUE(ComparePicture(inverted, outline));
    EXPECT_EQ(filled.GetPixel(1 + width / 2, 1), kBlack);
    EXPECT_EQ(filled.GetPixel(1, 1 + height / 2), kBlack);

    // Outline, enclosed and outside as the outline alone tells them.
    Surface flooded = outline;
    FloodFillSurface(flooded, 0, 0, kWhite, kOutside);
    int wrong = 0;
    for (int i = 0; i < (width + 2) * (height + 2); ++i) {
        const int x = i % (width + 2);
        const int y = i / (width + 2);
        const COLORREF pixel = filled.GetPixel(x, y);
        const bool inBox = x >= 1 && y >= 1 && x <= width && y <= height;
        const COLORREF region = pixel == kWhite ? kOutside : pixel == kInside ? kWhite : pixel;
        const bool right =
            pixel == filled.GetPixel(width + 1 - x, y) &&
            pixel == filled.GetPixel(x, height + 1 - y) && (inBox || pixel == kWhite) &&
            (pixel == kWhite || (pixel == kBlack) == HasUncoveredSide(filled, x, y)) &&
            flooded.GetPixel(x, y) == region && KeepsToTheCurve(filled, x, y);
        wrong += right ? 0 : 1;
    }
    EXPECT_EQ(wrong, 0) << test::PictureText(filled, kInks) << test::PictureText(flooded, kInks);
}

TEST(Ellipse, IsSymmetricThinClosedAndTrueToItsBoxInEverySize) {
    for (int height = 1; height <= 36 && !testing::Test::HasFailure(); ++height) {
        for (int width = 1; width <= 36; ++width)
            CheckBox(width, height);
    }
    for (const int width : {90, 319, 320, 321})
        CheckBox(width, 411 - width);
}

TEST(Ellipse, SmallAndFlatOnes) {
    // The curve runs through the middles of the outermost pixels and is rounded to the nearest.
    EXPECT_PICTURE(Drawn(3, 3, FillStyle::Solid), kInks, R"(
        . . . . .
        . . # . .
        . # o # .
        . . # . .
        . . . . .)");
    // The first row holds the columns where the curve is half a pixel high: |x| <= 9 * sqrt(3/4).
    EXPECT_PICTURE(Drawn(19, 3, FillStyle::Solid), kInks, R"(
        . . . . . . . . . . . . . . . . . . . . .
        . . . # # # # # # # # # # # # # # # . . .
        . # # o o o o o o o o o o o o o o o # # .
        . . . # # # # # # # # # # # # # # # . . .
        . . . . . . . . . . . . . . . . . . . . .)");
}

TEST(Ellipse, IsCutAtTheSurfaceAndTakesItsEdgesInAnyOrder) {
    const Surface whole = Drawn(50, 37, FillStyle::Solid);
    for (int corner = 0; corner < 9; ++corner) {
        const int left = 1 - corner % 3 * 20;
        const int top = 1 - corner / 3 * 15;
        Surface cut(20, 15);
        cut.state = whole.state;
        Ellipse(cut, left + 50, top, left, top + 37);
        Ellipse(cut, 5, 0, 5, 9);
        Surface expected(20, 15);
        BitBlt(expected, 0, 0, 20, 15, whole, 1 - left, 1 - top, RasterOp::Copy);
        EXPECT_TRUE(ComparePicture(cut, expected, kInks)) << corner;
    }
}

TEST(Ellipse, EndsOfIntAreDrawnAtOnce) {
    // Where a curve as large as this is cut it looks straight, and its corners are far away.
    Surface target(3, 3);
    target.state = {kBlack, kInside, DrawMode::CopyPen, LineStyle::Solid, FillStyle::Solid};
    Ellipse(target, 0, 0, INT_MAX, INT_MAX);
    EXPECT_TRUE(ComparePicture(target, Surface(3, 3), kInks));
    Ellipse(target, INT_MIN, 1, INT_MAX, INT_MAX);
    EXPECT_PICTURE(target, kInks, ". . .\n# # #\no o o");
    Ellipse(target, INT_MIN, INT_MIN, INT_MAX, INT_MAX);
    EXPECT_PICTURE(target, kInks, "o o o\no o o\no o o");
}

}  // namespace
}  // namespace kestrel::gdi
