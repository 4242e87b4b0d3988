#include "tests/support/PictureText.h"

#include <utility>

namespace kestrel::gdi {
namespace {

using test::kBlackOnWhite;

TEST(Surface, OutsideReadsInvalidAndWritesNothing) {
    Surface surface(2, 3, 0xFF123456);
    const Surface before = surface;
    for (const auto& [x, y] : {std::pair{-1, 0}, {2, 0}, {0, -1}, {0, 3}}) {
        surface.SetPixel(x, y, kBlack);
        EXPECT_EQ(surface.GetPixel(x, y), CLR_INVALID);
    }
    EXPECT_TRUE(surface.SamePixels(before));
    EXPECT_EQ(surface.GetPixel(0, 2), 0x123456U);
    surface.SetPixel(1, 2, 0xABCDEF01);
    EXPECT_EQ(surface.GetPixel(1, 2), 0xCDEF01U);
    EXPECT_FALSE(surface.SamePixels(before));
    surface.Clear();
    EXPECT_TRUE(surface.SamePixels(before));
    EXPECT_FALSE(Surface(2, 3).SamePixels(Surface(3, 2)));
    EXPECT_TRUE(Surface(-4, 2).Pixels().empty());
}

TEST(PixelArt, ReadsRaggedRowsAndOddBlanks) {
    const Surface art = ReadPixelArt("\r\n\t# x\n\n  #.##\r\n .", {{'#', 1}, {'.', 2}}, 3);
    ASSERT_EQ(art.Bounds(), (Rect{0, 0, 4, 3}));
    const COLORREF pixels[] = {1, 3, 3, 3, 1, 2, 1, 1, 2, 3, 3, 3};
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(art.GetPixel(i % 4, i / 4), pixels[i]) << i;
    EXPECT_EQ(ReadPixelArt(" \n\n", {}).Width(), 0);
}

TEST(PictureText, NamesTheFirstDifferingPixel) {
    const Surface surface = ReadPixelArt("# r\n# #", {{'#', kBlack}, {'r', 0x0000FF}});
    EXPECT_STREQ(test::ComparePicture(surface, kBlackOnWhite, "# .\n. #").message(),
                 "pixel (1, 0): expected . 0xFFFFFF, actual ? 0x0000FF; pixels that differ: 2\n"
                 "expected:\n# .\n. #\nactual:\n# ?\n# #\n");
    EXPECT_FALSE(test::ComparePicture(surface, kBlackOnWhite, "# r\n# #"));
    EXPECT_FALSE(test::ComparePicture(surface, kBlackOnWhite, "# . .\n# # ."));
}

}  // namespace
}  // namespace kestrel::gdi
