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

struct NoDisplay : GridDisplay, PreviewDisplay {
    void RepaintGrid(gdi::Rect /*area*/) override {}
    void RepaintPreview(gdi::Rect /*area*/) override {}
};

TEST(Canvas, CellsShowHatchColourAndInvertedScreen) {
    IconDocument document;
    NoDisplay display;
    Canvas canvas(document, display, display, kWindowColor);
    document.ChangePlanes().mask.SetPixel(0, 0, gdi::kBlack);
    document.ChangePlanes().image.SetPixel(0, 0, kRed);
    document.ChangePlanes().image.SetPixel(1, 0, kRed);  // the mask stays white: inverts the screen
    canvas.RedrawAll();
    gdi::Surface topLeft(21, 6);
    gdi::BitBlt(topLeft, 0, 0, 21, 6, canvas.PicMain, 0, 0, gdi::RasterOp::Copy);
    EXPECT_PICTURE(topLeft, kInks, R"(
        # # # # # # # # # # # # # # # # # # # # #
        # r r r r r r r r r # y y y y y y y y y #
        # r r r r r r r r r # y y y h y y y h y #
        # r r r r r r r r r # y y h y y y h y y #
        # r r r r r r r r r # y h y y y h y y y #
        # r r r r r r r r r # y y y y h y y y y #)");
    EXPECT_EQ(canvas.PicIcon.GetPixel(0, 0), kRed);
    EXPECT_EQ(canvas.PicIcon.GetPixel(1, 0), kWindowColor ^ kRed);
    EXPECT_EQ(canvas.PicIcon.GetPixel(2, 0), kWindowColor);
    EXPECT_EQ(canvas.PicMain.GetPixel(320, 320), gdi::kBlack);
}

}  // namespace
}  // namespace kestrel::document
