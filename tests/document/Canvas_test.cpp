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
    // Three cells of the grid's first row with the lines around them.
    gdi::Surface TopLeft() const {
        gdi::Surface part(21, 11);
        for (int y = 0; y < 11; ++y) {
            for (int x = 0; x < 21; ++x)
                part.SetPixel(x, y, canvas_.PicMain.GetPixel(x, y));
        }
        return part;
    }

    // Views as a complete redraw shows them.
    void ExpectViewsEqualRedraw() {
        const gdi::Surface grid = canvas_.PicMain;
        const gdi::Surface copy = canvas_.PicMainCopy;
        const gdi::Surface preview = canvas_.PicIcon;
        canvas_.RedrawAll();
        EXPECT_TRUE(test::ComparePicture(grid, canvas_.PicMain));
        EXPECT_TRUE(test::ComparePicture(copy, canvas_.PicMainCopy));
        EXPECT_TRUE(test::ComparePicture(preview, canvas_.PicIcon));
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
    EXPECT_PICTURE(TopLeft(), kInks, R"(
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

TEST_F(CanvasTest, PaintedCellsLeaveViewsAsARedrawWould) {
    canvas_.PaintCell(5, 5, gdi::kWhite);
    canvas_.PaintCell(6, 5, kRed);
    canvas_.PaintCell(31, 31, kRed);
    canvas_.PaintCellTransparent(5, 5);
    EXPECT_EQ(document_.PicMask.GetPixel(6, 5), gdi::kBlack);
    EXPECT_EQ(document_.PicMask.GetPixel(5, 5), gdi::kWhite);
    EXPECT_EQ(document_.PicImage.GetPixel(5, 5), gdi::kBlack);
    ExpectViewsEqualRedraw();
}

TEST_F(CanvasTest, PaintingACellRepaintsThatCellOnly) {
    repaints_ = {};
    canvas_.PaintCell(3, 4, kRed);
    EXPECT_EQ(repaints_.grid, (std::vector<gdi::Rect>{{30, 40, 11, 11}}));
    EXPECT_EQ(repaints_.preview, (std::vector<gdi::Rect>{{3, 4, 1, 1}}));
    canvas_.PaintCell(32, 4, kRed);
    canvas_.PaintCellTransparent(-1, 4);
    EXPECT_EQ(repaints_.grid.size(), 1U);
}

TEST_F(CanvasTest, ErasedCellsBecomeTransparent) {
    gdi::PatBlt(document_.PicMask, document_.PicMask.Bounds(), gdi::kBlack);
    gdi::PatBlt(document_.PicImage, document_.PicImage.Bounds(), kRed);
    canvas_.EraseAndRedraw({1, 0, 2, 1});
    const gdi::COLORREF want[] = {gdi::kBlack, gdi::kWhite, gdi::kWhite, gdi::kBlack};
    for (int x = 0; x < 4; ++x)
        EXPECT_EQ(document_.PicMask.GetPixel(x, 0), want[x]) << x;
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
