#include "document/Canvas.h"

#include <gtest/gtest.h>

#include "platform/gdi/Blit.h"
#include "tests/support/PictureText.h"

namespace kestrel::document {
namespace {

constexpr gdi::COLORREF kWindowColor = 0xC8D0D4;
constexpr gdi::COLORREF kRed = 0x0000FF;
constexpr test::Inks kInks = {{'#', gdi::kBlack}, {'.', gdi::kWhite}, {'g', 0x808080},
                              {'r', kRed},        {'y', 0xFFFF00},    {'h', 0x80807F}};

struct Repaints : CanvasWindow {
    void RepaintView(View view, gdi::Rect area) override {
        if (view == View::Grid) grid.push_back(area);
        if (view == View::Preview) preview.push_back(area);
    }
    std::vector<gdi::Rect> grid, preview;
};

class CanvasTest : public testing::Test {
  protected:
    // Views as a complete redraw shows them.
    void ExpectViewsEqualRedraw() {
        const Canvas before = canvas_;
        canvas_.RedrawAll();
        EXPECT_TRUE(test::ComparePicture(before.PicMain, canvas_.PicMain));
        EXPECT_TRUE(test::ComparePicture(before.PicMainCopy, canvas_.PicMainCopy));
        EXPECT_TRUE(test::ComparePicture(before.PicIcon, canvas_.PicIcon));
    }

    IconDocument document_;
    Repaints repaints_;
    Canvas canvas_{document_, repaints_, kWindowColor};
};

TEST_F(CanvasTest, CellsShowHatchColourAndInvertedScreen) {
    document_.PicMask.SetPixel(0, 0, gdi::kBlack);
    document_.PicImage.SetPixel(0, 0, kRed);
    document_.PicImage.SetPixel(1, 0, kRed);  // the mask stays white: inverts the screen
    canvas_.RedrawAll();
    gdi::Surface topLeft(21, 11);
    gdi::BitBlt(topLeft, 0, 0, 21, 11, canvas_.PicMain, 0, 0, gdi::RasterOp::Copy);
    EXPECT_PICTURE(topLeft, kInks, R"(
        # # # # # # # # # # # # # # # # # # # # #
        # r r r r r r r r r # y y y y y y y y y #
        # r r r r r r r r r # y y y h y y y h y #
        # r r r r r r r r r # y y h y y y h y y #
        # r r r r r r r r r # y h y y y h y y y #
        # r r r r r r r r r # y y y y h y y y y #
        # r r r r r r r r r # y y y h y y y h y #
        # r r r r r r r r r # y y h y y y h y y #
        # r r r r r r r r r # y h y y y h y y y #
        # r r r r r r r r r # y y y y y y y y y #
        # # # # # # # # # # # # # # # # # # # # #)");
    EXPECT_EQ(canvas_.PicIcon.GetPixel(0, 0), kRed);
    EXPECT_EQ(canvas_.PicIcon.GetPixel(1, 0), kWindowColor ^ kRed);
    EXPECT_EQ(canvas_.PicIcon.GetPixel(2, 0), kWindowColor);
    EXPECT_EQ(canvas_.PicMain.GetPixel(320, 320), gdi::kBlack);
    EXPECT_TRUE(document_.Modified);
}

TEST_F(CanvasTest, PaintedCellsLookLikeARedrawAndAloneAreRepainted) {
    canvas_.PaintCell(5, 5, gdi::kWhite);
    canvas_.PaintCell(6, 5, kRed);
    canvas_.PaintCell(31, 31, kRed);
    canvas_.PaintCellTransparent(5, 5);
    EXPECT_FALSE(document_.IsTransparent(6, 5));
    EXPECT_TRUE(document_.IsTransparent(5, 5));
    EXPECT_EQ(document_.PicImage.GetPixel(5, 5), gdi::kBlack);
    ExpectViewsEqualRedraw();
    repaints_ = {};
    canvas_.PaintCell(3, 4, kRed);
    canvas_.PaintCell(32, 4, kRed);
    canvas_.PaintCellTransparent(-1, 4);
    EXPECT_EQ(repaints_.grid, (std::vector<gdi::Rect>{{30, 40, 11, 11}}));
    EXPECT_EQ(repaints_.preview, (std::vector<gdi::Rect>{{3, 4, 1, 1}}));
}

TEST_F(CanvasTest, ErasedCellsBecomeTransparent) {
    gdi::PatBlt(document_.PicMask, document_.PicMask.Bounds(), gdi::kBlack);
    gdi::PatBlt(document_.PicImage, document_.PicImage.Bounds(), kRed);
    canvas_.EraseAndRedraw({1, 0, 2, 1});
    for (int x = 0; x < 4; ++x)
        EXPECT_EQ(document_.IsTransparent(x, 0), x == 1 || x == 2) << x;
    EXPECT_EQ(document_.PicImage.GetPixel(2, 0), gdi::kBlack);
    EXPECT_EQ(canvas_.PicIcon.GetPixel(1, 0), kWindowColor);
}

TEST_F(CanvasTest, AnIconOfAnotherSizeIsFittedByRepeatingPixels) {
    icons::IconImage icon{{2, 2, 24, false}, gdi::Surface(2, 2), gdi::Surface(2, 2, gdi::kBlack)};
    icon.mask.SetPixel(1, 0, gdi::kBlack);
    icon.color.SetPixel(1, 0, kRed);
    canvas_.ReadIconIntoDocument(icon);
    EXPECT_EQ(document_.PicImage.GetPixel(16, 15), kRed);
    EXPECT_EQ(document_.PicImage.GetPixel(15, 15), gdi::kBlack);
    EXPECT_TRUE(document_.IsTransparent(16, 16));
    EXPECT_EQ(canvas_.PicIcon.GetPixel(31, 0), kRed);
    EXPECT_FALSE(document_.Modified);
    ExpectViewsEqualRedraw();
}

}  // namespace
}  // namespace kestrel::document
