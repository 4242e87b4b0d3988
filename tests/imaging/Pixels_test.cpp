#include <algorithm>

#include "imaging/AreaAverage.h"
#include "imaging/ColorAdjustment.h"
#include "imaging/FilterPipeline.h"
#include "imaging/Operations.h"
#include "imaging/Recoloring.h"
#include "imaging/Shades.h"
#include "imaging/Transforms.h"
#include "platform/gdi/Samples.h"
#include "tests/imaging/FilterTest.h"

namespace kestrel::imaging {
namespace {

using test::ComparePicture;

constexpr gdi::ArtInk kInks[] = {{'a', 1}, {'b', 2}, {'c', 3}, {'d', 4}, {'e', 5}, {'f', 6}};

gdi::Surface Art(std::string_view rows) {
    return gdi::ReadPixelArt(rows, kInks);
}

TEST(Transforms, MoveThePixelsOfBothPlanes) {
    const struct {
        const char* key;
        const char* from;
        const char* to;
    } kCases[] = {
        {"mnuRotateOpts0", "abc\ndef", "cf\nbe\nad"},
        {"mnuRotateOpts1", "abc\ndef", "da\neb\nfc"},
        {"mnuRotateOpts3", "abc\ndef", "cba\nfed"},
        {"mnuRotateOpts4", "ab\ncd\nef", "ef\ncd\nab"},
        {"mnuMirrorOpts0", "abcd\ncdef", "abba\ncddc"},
        {"mnuMirrorOpts1", "abcd\ncdef", "dccd\nfeef"},
        {"mnuMirrorOpts1", "abcde", "edcde"},
        {"mnuMirrorOpts2", "ab\ncd\nef\nba", "ab\ncd\ncd\nab"},
        {"mnuMirrorOpts3", "ab\ncd\nef\nba", "ba\nef\nef\nba"},
    };
    filters::CountingLoop loop;
    system::RandomNumbers random(1);
    filters::mFilterG filters(loop, random);
    for (const auto& [key, from, to] : kCases) {
        gdi::IconPlanes planes;
        planes.image = planes.mask = Art(from);
        RunOperation(*FindOperation(key), 0, planes, filters);
        EXPECT_TRUE(ComparePicture(planes.image, Art(to))) << key;
        EXPECT_TRUE(ComparePicture(planes.mask, Art(to))) << key;
    }
}

TEST(AreaAverage, WeighsAreasAndOpacity) {
    // Each pixel of the result covers one and a half of the three, then all of them.
    gdi::Surface line(3, 1);
    const gdi::COLORREF pixels[] = {0xFF000006, 0xFF00000C, 0x00FFFFFF};
    std::ranges::copy(pixels, line.Row(0).begin());
    const gdi::Surface two = AreaAverage(line, {2, 1});
    EXPECT_EQ(two.Row(0)[0], 0xFF000008U);  // (6 + 12 / 2) / 1.5
    EXPECT_EQ(two.Row(0)[1], 0x5500000CU);  // a third is opaque
    EXPECT_EQ(AreaAverage(line, {1, 1}).Row(0)[0], 0xAA000009U);
    EXPECT_EQ(gdi::SizeWithin({300, 100}, 30), (gdi::Size{30, 10}));
    EXPECT_EQ(gdi::SizeWithin({1, 1000}, 30), (gdi::Size{1, 30}));
    EXPECT_EQ(gdi::SizeWithin({20, 30}, 30), (gdi::Size{20, 30}));
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
    for (const auto& [from, grey] : {std::pair{gdi::Rgb(255, 0, 0), 57},
                                     {gdi::Rgb(0, 250, 0), 177},
                                     {gdi::Rgb(0, 0, 255), 18},
                                     {gdi::Rgb(2, 1, 19), 2}}) {  // 444 + 707 + 1349 = 2500
        for (const auto& [change, color] :
             {std::pair{&Grayscale, grey * 0x010101}, {&Invert, 0xFFFFFF - from}}) {
            gdi::IconPlanes planes(2, 1);
            planes.image = gdi::Surface(2, 1, from);
            planes.mask.SetPixel(0, 0, gdi::kBlack);
            change(planes);
            EXPECT_EQ(planes.image.GetPixel(0, 0), color);
            EXPECT_EQ(planes.image.GetPixel(1, 0), from);
        }
    }
}

TEST(Recoloring, AButtonHasFourRings) {
    gdi::IconPlanes icon;
    icon.mask = gdi::Surface(32, 32, gdi::kBlack);
    icon.image = gdi::Surface(32, 32, gdi::kWhite);
    icon.image.SetPixel(5, 0, gdi::Rgb(100, 64, 30));
    icon.mask.SetPixel(2, 9, gdi::kWhite);
    filters::CountingLoop loop;
    loop.onEvents = [&] { EXPECT_EQ(icon.image.GetPixel(4, 3), gdi::kWhite) << "half-done"; };
    Buttonize(icon, loop);
    EXPECT_EQ(loop.count, 4);
    EXPECT_EQ(icon.image.GetPixel(5, 0), gdi::Rgb(36, 0, 0));
    icon.image.SetPixel(5, 0, icon.image.GetPixel(6, 0));
    for (int i = 0; i < 1024; ++i) {
        const int x = i % 32, y = i / 32;
        const int ring = icon.IsTransparent(x, y) ? 4 : std::min({x, y, 31 - x, 31 - y, 4});
        constexpr int kLevels[] = {191, 223, 239, 247, 255};
        EXPECT_EQ(icon.image.GetPixel(x, y), filters::GreyColor(kLevels[ring])) << i;
    }
}

TEST(Gradient, GoesInStepsFromItsSide) {
    const Shades ends{gdi::Rgb(10, 200, 0), gdi::Rgb(250, 3, 255)};
    // A diagonal one has 64 steps, of which the corner it starts from shows the second.
    for (const auto& [degrees, fromRight, fromBelow] :
         {std::tuple{45, 0, 0}, {135, 31, 0}, {225, 31, 31}, {315, 0, 31}}) {
        const Shades shades{ends.start, ends.end, degrees};
        const gdi::Surface drawn = DrawShade(shades);
        for (int i = 0; i < 1024; ++i) {
            const int step = std::abs(fromRight - i % 32) + std::abs(fromBelow - i / 32);
            EXPECT_EQ(drawn.GetPixel(i % 32, i / 32), shades.ShadeColor(std::max(step, 1)));
        }
    }
    for (const auto& [degrees, x, y] :
         {std::tuple{0, 4, 9}, {360, 4, 9}, {90, 9, 4}, {180, 27, 9}, {270, 9, 27}}) {
        // 10 + 4 x 240 / 32, 200 - 4 x 197 / 32 = 175.375, 4 x 255 / 32 = 31.875
        EXPECT_EQ(DrawShade({ends.start, ends.end, degrees}).GetPixel(x, y), gdi::Rgb(40, 175, 32))
            << degrees;
    }
    EXPECT_EQ(DrawShade({}).GetPixel(16, 31), filters::GreyColor(128)) << "127.5";
    EXPECT_EQ(DrawShade({}).GetPixel(31, 0), filters::GreyColor(247));
    EXPECT_EQ(DrawShade({0, 0xFFFFFF, 45}).GetPixel(0, 0), filters::GreyColor(4));
    EXPECT_EQ(DrawShade({0, 0xFFFFFF, 45}).GetPixel(31, 31), filters::GreyColor(247));
}

TEST(ColorAdjustment, RemembersWhatWentTooFar) {
    gdi::IconPlanes icon;
    icon.mask.SetPixel(31, 31, gdi::kBlack);
    icon.image.SetPixel(31, 31, gdi::Rgb(252, 100, 3));
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
    EXPECT_EQ(after(AdjustmentBar::Blue, -255), gdi::Rgb(252, 105, 3));
    EXPECT_EQ(after(AdjustmentBar::Green, 5), gdi::Rgb(252, 110, 3));
    colors.Reset();
    EXPECT_EQ(after(AdjustmentBar::Green, 0), gdi::Rgb(252, 100, 3));
    EXPECT_EQ(after(AdjustmentBar::Brightness, 255), gdi::Rgb(252, 105, 8));
}

}  // namespace
}  // namespace kestrel::imaging
