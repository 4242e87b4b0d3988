#include "platform/gdi/Draw.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "platform/gdi/Blit.h"
#include "tests/support/PictureText.h"

namespace kestrel::gdi {
namespace {

using test::ComparePicture;
using test::kBlackOnWhite;

int StepOf(const Surface& target) {
    return target.state.lineStyle == LineStyle::Dot ? 2 : 1;
}

// Divides for every step; half way between two pixels counts to the one nearer to the start.
void SlowLine(Surface& target, int x1, int y1, int x2, int y2, COLORREF color) {
    const int length = std::max(std::abs(x2 - x1), std::abs(y2 - y1));
    for (int i = 0; i < length; i += StepOf(target)) {
        const auto at = [&](int from, int to) {
            const int way = (2 * std::abs(to - from) * i + length - 1) / (2 * length);
            return from + (to < from ? -way : way);
        };
        target.SetPixel(at(x1, x2), at(y1, y2), color);
    }
}

// All pixels of a box, or of its outline those at an even distance from the top left corner.
template <bool filled>
void SlowBox(Surface& target, int x1, int y1, int x2, int y2, COLORREF color) {
    const auto [left, right] = std::minmax(x1, x2);
    const auto [top, bottom] = std::minmax(y1, y2);
    for (int y = top; y <= bottom; ++y) {
        for (int x = left; x <= right; ++x) {
            const bool rim = x == left || x == right || y == top || y == bottom;
            if (filled || (rim && (x - left + y - top) % StepOf(target) == 0))
                target.SetPixel(x, y, color);
        }
    }
}

using Figure = void (*)(Surface&, int, int, int, int, COLORREF);

// In invert mode a pixel that is touched twice shows.
void ExpectAgreesWithTwin(Figure fast, Figure slow, LineStyle style) {
    Surface blank(17, 13);
    blank.state.drawMode = DrawMode::Invert;
    blank.state.lineStyle = style;
    for (const auto& [x1, y1] : {std::pair{8, 6}, {0, 12}, {-37, 5}, {3, -30}, {40, 31}}) {
        for (int end = 0; end < 25 * 21; ++end) {
            Surface target = blank;
            Surface expected = blank;
            fast(target, x1, y1, end % 25 - 4, end / 25 - 4, kBlack);
            slow(expected, x1, y1, end % 25 - 4, end / 25 - 4, kBlack);
            ASSERT_TRUE(ComparePicture(target, expected)) << x1 << ' ' << y1 << ' ' << end;
        }
    }
}

TEST(Draw, AgreesWithSlowTwinsInEveryDirectionAndWhereItIsCut) {
    for (const LineStyle style : {LineStyle::Solid, LineStyle::Dot}) {
        ExpectAgreesWithTwin(DrawLine, SlowLine, style);
        ExpectAgreesWithTwin(DrawBox, SlowBox<false>, style);
        ExpectAgreesWithTwin(FillBox, SlowBox<true>, style);
    }
}

TEST(Draw, HalfWayPixelsStayWithTheStartAndEndsOfIntAreDrawn) {
    Surface target(12, 5);
    DrawLine(target, 0, 0, 4, 2, kBlack);
    DrawLine(target, 4, 4, 0, 2, kBlack);
    DrawLine(target, INT_MAX, 2, INT_MIN, 2, kBlack);
    target.state.lineStyle = LineStyle::Dot;
    DrawBox(target, 7, -3, INT_MAX, 1, kBlack);
    DrawBox(target, INT_MIN, INT_MAX, 10, INT_MIN, kBlack);
    FillBox(target, 11, 4, INT_MAX, INT_MAX, kBlack);
    EXPECT_PICTURE(target, kBlackOnWhite, R"(
        # # . . . . . . . . # .
        . . # # . . . # . # . #
        # # # # # # # # # # # #
        . # # . . . . . . . . .
        . . . # # . . . . . # #)");
}

TEST(Edge, ShadowLeftAndTopHighlightRightAndBottom) {
    static constexpr test::Inks kInks = {{'s', 0x808080}, {'h', kWhite}, {'.', 0xC0C0C0}};
    Surface target(6, 3, 0xC0C0C0);
    target.state.drawMode = DrawMode::Invert;
    DrawSunkenEdge(target, 0, 0, 3, 3);
    DrawSunkenEdge(target, 4, 0, 9, 2);
    DrawSunkenEdge(target, 4, 2, 4, 3);
    EXPECT_PICTURE(target, kInks, "s s h . s s\n s . h . h h\n h h h . . .");
    EXPECT_EQ(target.state.drawMode, DrawMode::Invert);
}

TEST(Flood, PaintsWhatHangsTogetherBySides) {
    static constexpr test::Inks kInks = {{'#', kBlack}, {'.', kWhite}, {'r', 0x0000FF}};
    Surface target = ReadPixelArt(". # . . .\n . # . # .\n . . . # .\n # # # . #", kInks);
    FloodFillSurface(target, 3, 0, kWhite, kWhite);
    FloodFillSurface(target, 3, 0, kBlack, 0x0000FF);
    FloodFillSurface(target, -1, 2, CLR_INVALID, kBlack);
    FloodFillSurface(target, 3, 0, kWhite, 0x0000FF);
    EXPECT_PICTURE(target, kInks, "r # r r r\n r # r # r\n r r r # r\n # # # . #");
}

constexpr COLORREF kInside = 0x0000FF;
constexpr test::Inks kInks = {{'#', kBlack}, {'o', kInside}, {'.', kWhite}};

// The box at (1, 1) on a surface that leaves one pixel free all round.
Surface Drawn(int width, int height, FillStyle fill, DrawMode mode = DrawMode::CopyPen) {
    Surface target(width + 2, height + 2);
    target.state = {kBlack, kInside, mode, LineStyle::Solid, fill};
    Ellipse(target, 1, 1, width + 1, height + 1);
    return target;
}

// Covered pixels touch the ellipse of the box; uncovered ones are at most one pixel inside it.
bool KeepsToTheCurve(int width, int height, int x, int y, bool covered) {
    const double a = width / 2.0 - (covered ? 0 : 1);
    const double b = height / 2.0 - (covered ? 0 : 1);
    const double dx = std::abs(x - 0.5 - width / 2.0) - (covered ? 0.5 : 0);
    const double dy = std::abs(y - 0.5 - height / 2.0) - (covered ? 0.5 : 0);
    if (a <= 0 || b <= 0) return true;
    return (std::hypot(std::max(dx, 0.0) / a, std::max(dy, 0.0) / b) < 1) == covered;
}

void CheckEllipse(int width, int height) {
    const Surface filled = Drawn(width, height, FillStyle::Solid);
    Surface hollow = filled;
    int wrong = 0;
    for (int i = 0; i < (width + 2) * (height + 2); ++i) {
        const int x = i % (width + 2);
        const int y = i / (width + 2);
        const COLORREF pixel = filled.GetPixel(x, y);
        const auto isEmpty = [&](int dx, int dy) {
            return filled.GetPixel(x + dx, y + dy) == kWhite;
        };
        if (pixel == kInside) hollow.SetPixel(x, y, kWhite);
        // An outline pixel has a side where nothing is covered, an inner one none: thin and closed.
        const bool ends = isEmpty(-1, 0) || isEmpty(1, 0) || isEmpty(0, -1) || isEmpty(0, 1);
        const bool right = pixel == filled.GetPixel(width + 1 - x, y) &&
                           pixel == filled.GetPixel(x, height + 1 - y) &&
                           (isEmpty(0, 0) || pixel == (ends ? kBlack : kInside)) &&
                           KeepsToTheCurve(width, height, x, y, !isEmpty(0, 0));
        if (!right) ++wrong;
    }
    EXPECT_EQ(wrong, 0) << width << " x " << height << '\n' << test::PictureText(filled, kInks);
    EXPECT_EQ(filled.GetPixel(1 + width / 2, 1), kBlack);
    for (const DrawMode mode : {DrawMode::CopyPen, DrawMode::Invert})
        EXPECT_TRUE(ComparePicture(Drawn(width, height, FillStyle::Transparent, mode), hollow));
}

TEST(Ellipse, IsSymmetricThinClosedAndTrueToItsBoxInEverySize) {
    for (int size = 0; size < 36 * 36 && !testing::Test::HasFailure(); ++size)
        CheckEllipse(1 + size % 36, 1 + size / 36);
    CheckEllipse(320, 91);
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
        Surface expected(20, 15);
        BitBlt(expected, 0, 0, 20, 15, whole, 1 - left, 1 - top, RasterOp::Copy);
        EXPECT_TRUE(ComparePicture(cut, expected, kInks)) << corner;
    }
    // Where a curve as large as this is cut it looks straight, and its corners are far away.
    Surface target(3, 3);
    target.state = whole.state;
    Ellipse(target, 0, 0, INT_MAX, INT_MAX);
    Ellipse(target, INT_MIN, 1, INT_MAX, INT_MAX);
    EXPECT_PICTURE(target, kInks, ". . .\n# # #\no o o");
}

}  // namespace
}  // namespace kestrel::gdi
