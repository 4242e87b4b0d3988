#include "imaging/ColorAdjustment.h"
#include "imaging/FilterPipeline.h"
#include "imaging/Recoloring.h"
#include "imaging/Shades.h"
#include "imaging/Transforms.h"
#include "platform/gdi/Draw.h"
#include "tests/imaging/FilterTest.h"

namespace kestrel::imaging {
namespace {

using test::ComparePicture;

constexpr gdi::ArtInk kInks[] = {{'a', 1}, {'b', 2}, {'c', 3}, {'d', 4}, {'e', 5}, {'f', 6}};

gdi::Surface Art(std::string_view rows) {
    return gdi::ReadPixelArt(rows, kInks);
}

TEST(Transforms, MovePixels) {
    using Act = gdi::Surface (*)(gdi::Surface);
    const struct {
        const char* what;
        Act act;
        const char* from;
        const char* to;
    } kCases[] = {
        {"left", [](gdi::Surface p) { return p = Rotated(p, Turn::Left); }, "abc\ndef",
         "cf\nbe\nad"},
        {"right", [](gdi::Surface p) { return p = Rotated(p, Turn::Right); }, "abc\ndef",
         "da\neb\nfc"},
        {"across", [](gdi::Surface p) { return Flip(p, FlipAxis::Horizontal), p; }, "abc\ndef",
         "cba\nfed"},
        {"over", [](gdi::Surface p) { return Flip(p, FlipAxis::Vertical), p; }, "ab\ncd\nef",
         "ef\ncd\nab"},
        {"left into right", [](gdi::Surface p) { return Mirror(p, Reflection::LeftIntoRight), p; },
         "abcd\ncdef", "abba\ncddc"},
        {"right into left", [](gdi::Surface p) { return Mirror(p, Reflection::RightIntoLeft), p; },
         "abcd\ncdef", "dccd\nfeef"},
        {"middle column stays",
         [](gdi::Surface p) { return Mirror(p, Reflection::RightIntoLeft), p; }, "abcde", "edcde"},
        {"top into bottom", [](gdi::Surface p) { return Mirror(p, Reflection::TopIntoBottom), p; },
         "ab\ncd\nef\nba", "ab\ncd\ncd\nab"},
        {"bottom into top", [](gdi::Surface p) { return Mirror(p, Reflection::BottomIntoTop), p; },
         "ab\ncd\nef\nba", "ba\nef\nef\nba"},
    };
    for (const auto& [what, act, from, to] : kCases)
        EXPECT_TRUE(ComparePicture(act(Art(from)), Art(to))) << what;
}

TEST(FilterSource, OfASmallSelectionGoesOnWithItsNearestPixel) {
    const gdi::Surface source = PrepareFilterSource(Art("ab\ncd"));
    EXPECT_EQ(source.Width() * source.Height(), 1024);
    EXPECT_EQ(source.GetPixel(0, 1), 3U);
    EXPECT_EQ(source.GetPixel(31, 0), 2U);
    EXPECT_EQ(source.GetPixel(0, 31), 3U);
    EXPECT_EQ(source.GetPixel(31, 31), 4U);
}

TEST(Recoloring, ChangesOpaquePixels) {
    const gdi::Surface mask = filters::PictureOf(2, {gdi::kBlack, gdi::kWhite});
    const struct {
        gdi::COLORREF from, grey;
    } kCases[] = {{gdi::Rgb(255, 0, 0), 57},
                  {gdi::Rgb(0, 255, 0), 180},
                  {gdi::Rgb(0, 250, 0), 177},
                  {gdi::Rgb(0, 0, 255), 18},
                  // 222 x 2 + 707 x 1 + 71 x 19 = 2500
                  {gdi::Rgb(2, 1, 19), 2}};
    for (const auto& [from, grey] : kCases) {
        gdi::Surface image(2, 1, from);
        Grayscale(image, mask);
        EXPECT_EQ(image.GetPixel(0, 0), filters::GreyColor(static_cast<int>(grey)));
        EXPECT_EQ(image.GetPixel(1, 0), from);
        image = gdi::Surface(2, 1, from);
        Invert(image, mask);
        EXPECT_EQ(image.GetPixel(0, 0), 0xFFFFFF - from);
        EXPECT_EQ(image.GetPixel(1, 0), from);
    }
}

TEST(Recoloring, AButtonHasFourRings) {
    document::IconDocument icon;
    icon.PicMask = gdi::Surface(32, 32, gdi::kBlack);
    icon.PicImage = gdi::Surface(32, 32, gdi::kWhite);
    icon.PicImage.SetPixel(5, 0, gdi::Rgb(100, 64, 30));
    icon.PicMask.SetPixel(6, 0, gdi::kWhite);
    icon.PicImage.SetPixel(6, 0, gdi::kBlack);
    icon.PicMask.SetPixel(2, 9, gdi::kWhite);
    filters::CountingLoop loop;
    loop.onEvents = [&] { EXPECT_EQ(icon.PicImage.GetPixel(4, 3), gdi::kWhite) << "half-done"; };
    Buttonize(icon, loop);
    EXPECT_EQ(loop.count, 4);
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            const int ring = std::min({x, y, 31 - x, 31 - y});
            constexpr int kLevels[] = {191, 223, 239, 247};
            if (y == 0 && (x == 5 || x == 6)) continue;
            const bool white = ring > 3 || icon.IsTransparent(x, y);
            EXPECT_EQ(icon.PicImage.GetPixel(x, y),
                      filters::GreyColor(white ? 255 : kLevels[ring]));
        }
    }
    EXPECT_EQ(icon.PicImage.GetPixel(5, 0), gdi::Rgb(36, 0, 0));
    EXPECT_EQ(icon.PicImage.GetPixel(6, 0), gdi::kBlack);
}

// The diagonal ones drawn with a pen: lines from the top to the left side that leave out their end,
// then the left column from its neighbour, then reflected.
gdi::Surface DrawnWithLines(const Shades& shades) {
    gdi::Surface base(32, 32);
    for (int i = 0; i < 64; ++i)
        gdi::DrawLine(base, i, 0, 0, i, shades.ShadeColor(i));
    for (int y = 1; y < 32; ++y)
        base.SetPixel(0, y, base.GetPixel(1, y - 1));
    base.SetPixel(0, 0, base.GetPixel(1, 0));
    if (shades.degrees == 135 || shades.degrees == 225) Flip(base, FlipAxis::Horizontal);
    if (shades.degrees == 225 || shades.degrees == 315) Flip(base, FlipAxis::Vertical);
    return base;
}

TEST(Gradient, GoesInStepsFromItsSide) {
    const auto shades = [](int degrees) {
        return Shades{gdi::Rgb(10, 200, 0), gdi::Rgb(250, 3, 255), degrees};
    };
    for (const int degrees : {45, 135, 225, 315})
        EXPECT_TRUE(ComparePicture(DrawShade(shades(degrees)), DrawnWithLines(shades(degrees))))
            << degrees;
    for (const auto& [degrees, x, y] :
         {std::tuple{0, 4, 9}, {360, 4, 9}, {90, 9, 4}, {180, 27, 9}, {270, 9, 27}}) {
        // 10 + 4 x 240 / 32, 200 - 4 x 197 / 32 = 175.375, 4 x 255 / 32 = 31.875
        EXPECT_EQ(DrawShade(shades(degrees)).GetPixel(x, y), gdi::Rgb(40, 175, 32)) << degrees;
    }
    const gdi::Surface standard = DrawShade({});
    EXPECT_EQ(standard.GetPixel(16, 31), filters::GreyColor(128)) << "127.5";
    EXPECT_EQ(standard.GetPixel(31, 0), filters::GreyColor(247));
    EXPECT_TRUE(ComparePicture(DrawShade({7, 7, 225}), gdi::Surface(32, 32, 7)));
    // 64 steps along a diagonal: the start corner has the first.
    EXPECT_EQ(DrawShade({0, 0xFFFFFF, 45}).GetPixel(0, 0), filters::GreyColor(4));
    EXPECT_EQ(DrawShade({0, 0xFFFFFF, 45}).GetPixel(31, 31), filters::GreyColor(247));
}

TEST(ColorAdjustment, RemembersWhatWentTooFar) {
    document::IconDocument icon;
    icon.PicMask.SetPixel(31, 31, gdi::kBlack);
    icon.PicImage.SetPixel(31, 31, gdi::Rgb(252, 100, 3));
    ColorAdjustment colors(icon);
    const auto after = [&](AdjustmentBar bar, int value) {
        colors.Change(bar, value);
        gdi::Surface picture(32, 32, gdi::kWhite);
        colors.Draw(picture);
        EXPECT_EQ(picture.GetPixel(0, 0), gdi::kWhite) << "transparent";
        return picture.GetPixel(31, 31);
    };
    EXPECT_EQ(after(AdjustmentBar::Red, 1), gdi::Rgb(252, 100, 3));
    EXPECT_EQ(after(AdjustmentBar::Red, 0), gdi::Rgb(252, 100, 3));
    EXPECT_EQ(after(AdjustmentBar::Brightness, 255), gdi::Rgb(252, 105, 8));
    EXPECT_EQ(after(AdjustmentBar::Brightness, 255), gdi::Rgb(252, 105, 8));
    EXPECT_EQ(after(AdjustmentBar::Blue, -255), gdi::Rgb(252, 105, 3));
    EXPECT_EQ(after(AdjustmentBar::Green, 5), gdi::Rgb(252, 110, 3));
    colors.Reset();
    EXPECT_EQ(after(AdjustmentBar::Green, 0), gdi::Rgb(252, 100, 3));
    EXPECT_EQ(after(AdjustmentBar::Brightness, 255), gdi::Rgb(252, 105, 8));
}

}  // namespace
}  // namespace kestrel::imaging
