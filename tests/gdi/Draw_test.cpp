#include "platform/gdi/Draw.h"

#include <algorithm>
#include <climits>
#include <cstdlib>

#include "platform/gdi/Blit.h"
#include "tests/support/PictureText.h"

namespace kestrel::gdi {
namespace {

using test::ComparePicture;
using test::kBlackOnWhite;

TEST(Line, RunsOnePixelAStepWithinHalfAPixelOfTheTrueLine) {
    for (int end = 0; end < 19 * 19; ++end) {
        const int dx = end % 19 - 9;
        const int dy = end / 19 - 9;
        SCOPED_TRACE(testing::Message() << dx << ", " << dy);
        Surface target(19, 19);
        target.state.drawMode = DrawMode::Invert;
        DrawLine(target, 9, 9, 9 + dx, 9 + dy, kBlack);
        // Each step, the end left out, finds one pixel close to where the true line is.
        const int length = std::max(std::abs(dx), std::abs(dy));
        Surface rest = target;
        for (int i = 0; i < length; ++i) {
            int hits = 0;
            for (int pixel = 0; pixel < 19 * 19; ++pixel) {
                const int x = pixel % 19;
                const int y = pixel / 19;
                const int away = std::max(std::abs((x - 9) * length - i * dx),
                                          std::abs((y - 9) * length - i * dy));
                if (2 * away > length || rest.GetPixel(x, y) == kWhite) continue;
                rest.SetPixel(x, y, kWhite);
                ++hits;
            }
            EXPECT_EQ(hits, 1) << "step " << i;
        }
        EXPECT_TRUE(rest.SamePixels(Surface(19, 19)));
        DrawLine(target, 9, 9, 9 + dx, 9 + dy, kBlack);
        EXPECT_TRUE(target.SamePixels(Surface(19, 19)));
    }
}

TEST(Line, HalfWayPixelsStayWithTheStartAndDotsAreEverySecondStep) {
    Surface target(8, 5);
    DrawLine(target, 0, 0, 4, 2, kBlack);
    DrawLine(target, 4, 4, 0, 2, kBlack);
    target.state.lineStyle = LineStyle::Dot;
    DrawLine(target, 5, 0, 5, 5, kBlack);
    DrawLine(target, 7, 3, 7, 0, kBlack);
    EXPECT_PICTURE(target, kBlackOnWhite, R"(
        # # . . . # . .
        . . # # . . . #
        . . . . . # . .
        . # # . . . . #
        . . . # # # . .)");
}

TEST(Line, FarEndsAreCutWithoutBendingTheLine) {
    const int table[][4] = {{-37, 5, 60, 31}, {60, 31, -37, 5},   {3, -90, 17, 77},
                            {17, 77, 3, -90}, {-80, 99, 99, -80}, {-50, 4, 99, 4},
                            {4, 99, 4, -50},  {-9, 30, 30, 90}};
    for (const auto& [x1, y1, x2, y2] : table) {
        Surface big(200, 200);
        Surface cut(20, 20);
        big.state.lineStyle = cut.state.lineStyle = LineStyle::Dot;
        DrawLine(big, x1 + 100, y1 + 100, x2 + 100, y2 + 100, kBlack);
        DrawLine(cut, x1, y1, x2, y2, kBlack);
        Surface expected(20, 20);
        BitBlt(expected, 0, 0, 20, 20, big, 100, 100, RasterOp::Copy);
        EXPECT_TRUE(ComparePicture(cut, expected)) << x1 << ", " << y1;
    }
    Surface target(4, 4);
    DrawLine(target, INT_MIN, INT_MIN, INT_MAX, INT_MAX, kBlack);
    DrawLine(target, INT_MAX, 1, INT_MIN, 1, kBlack);
    DrawLine(target, INT_MIN, INT_MAX, INT_MAX, INT_MAX, kBlack);
    EXPECT_PICTURE(target, kBlackOnWhite, "# . . .\n # # # #\n . . # .\n . . . #");
}

TEST(Box, TouchesEachPixelOnceFromAnyCornerInEverySize) {
    for (int size = 0; size < 5 * 5 * 4; ++size) {
        const int right = 2 + size % 5;
        const int bottom = 2 + size / 5 % 5;
        const int x1 = size / 25 % 2 == 0 ? 2 : right;
        const int y1 = size / 50 == 0 ? 2 : bottom;
        Surface outline(9, 9);
        Surface inside(9, 9);
        for (int y = 2; y <= bottom; ++y) {
            for (int x = 2; x <= right; ++x) {
                const bool rim = x == 2 || y == 2 || x == right || y == bottom;
                (rim ? outline : inside).SetPixel(x, y, kBlack);
            }
        }
        Surface target(9, 9);
        DrawBox(target, x1, y1, right + 2 - x1, bottom + 2 - y1, kBlack);
        EXPECT_TRUE(ComparePicture(target, outline));
        target.state.drawMode = DrawMode::Invert;
        FillBox(target, x1, y1, right + 2 - x1, bottom + 2 - y1, kBlack);
        EXPECT_TRUE(ComparePicture(target, inside));
        DrawBox(target, x1, y1, right + 2 - x1, bottom + 2 - y1, kBlack);
        FillBox(target, INT_MIN, INT_MAX, INT_MAX, INT_MIN, kBlack);
        FillBox(target, INT_MAX, -9, -9, INT_MAX, kBlack);
        DrawBox(target, x1, y1, right + 2 - x1, bottom + 2 - y1, kBlack);
        EXPECT_TRUE(ComparePicture(target, inside));
    }
}

TEST(Box, DotsGoRoundTheOutlineInStepAlsoWhenCut) {
    Surface target(24, 6);
    target.state.lineStyle = LineStyle::Dot;
    target.state.drawMode = DrawMode::Invert;
    DrawBox(target, 4, 3, 0, 0, kBlack);
    DrawBox(target, 6, 0, 9, 4, kBlack);
    DrawBox(target, 11, 5, 11, 1, kBlack);
    DrawBox(target, 13, 2, 15, 2, kBlack);
    DrawBox(target, 17, -3, INT_MAX, 3, kBlack);
    DrawBox(target, 22, INT_MIN, 20, INT_MAX, kBlack);
    DrawBox(target, INT_MIN, 5, 3, INT_MAX, kBlack);
    EXPECT_PICTURE(target, kBlackOnWhite, R"(
        # . # . # . # . # . . . . . . . . . . . # . # .
        . . . . . . . . . # . # . . . . . # . . . . . .
        # . . . # . # . . . . . . # . # . . . . # . # .
        . # . # . . . . . # . # . . . . . # . # . # . #
        . . . . . . # . # . . . . . . . . . . . # . # .
        # . # . . . . . . . . # . . . . . . . . . . . .)");
}

TEST(Edge, ShadowLeftAndTopHighlightRightAndBottom) {
    static constexpr test::Inks kInks = {{'s', 0x808080}, {'h', kWhite}, {'.', 0xC0C0C0}};
    Surface target(11, 4, 0xC0C0C0);
    target.state.drawMode = DrawMode::Invert;
    DrawSunkenEdge(target, 0, 0, 4, 4);
    DrawSunkenEdge(target, 5, 0, 12, 2);
    DrawSunkenEdge(target, 5, 3, 6, 4);
    DrawSunkenEdge(target, 7, 3, 7, 4);
    EXPECT_PICTURE(target, kInks, R"(
        s s s h . s s s s s s
        s . . h . h h h h h h
        s . . h . . . . . . .
        h h h h . h . . . . .)");
    EXPECT_EQ(target.state.drawMode, DrawMode::Invert);
}

TEST(Flood, PaintsWhatHangsTogetherBySides) {
    static constexpr test::Inks kInks = {{'#', kBlack}, {'.', kWhite}, {'r', 0x0000FF}};
    Surface target = ReadPixelArt(R"(
        . # . . . . . #
        . # . # # # . #
        . # . # . # . #
        . . . # . . # .
        # # # # # # . .)",
                                  kInks);
    const Surface before = target;
    FloodFillSurface(target, 6, 2, kWhite, kWhite);
    FloodFillSurface(target, 6, 2, kBlack, kWhite);
    FloodFillSurface(target, -1, 2, CLR_INVALID, kBlack);
    EXPECT_TRUE(ComparePicture(target, before));
    FloodFillSurface(target, 6, 2, kWhite, 0x0000FF);
    EXPECT_PICTURE(target, kInks, R"(
        r # r r r r r #
        r # r # # # r #
        r # r # . # r #
        r r r # . . # .
        # # # # # # . .)");
}

}  // namespace
}  // namespace kestrel::gdi
