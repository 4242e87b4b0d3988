#include <cmath>
#include <map>

#include "tests/imaging/FilterTest.h"

namespace kestrel::filters {
namespace {

using test::ComparePicture;

TEST(FilterTable, ANumberIsOneFilter) {
    std::map<int, filters::Filter> byNumber;
    for (const filters::FilterRow& row : filters::Filters()) {
        EXPECT_EQ(byNumber.emplace(row.FilterId, row.filter).first->second, row.filter) << row.key;
        EXPECT_EQ(filters::FindFilter(row.key), &row) << "twice";
    }
    EXPECT_EQ(byNumber.size(), 31U);
    EXPECT_EQ(byNumber.rbegin()->first, 31);
}

TEST(RunFilter, YieldsAfterEachRowAndRunsAlone) {
    CountingLoop loop;
    system::RandomNumbers random(1);
    filters::mFilterG filters(loop, random);
    for (const auto& [height, yields] : {std::pair{0, 1}, {1, 2}, {7, 8}}) {
        loop.count = 0;
        gdi::Surface picture = Noise(5, height, 1);
        filters.RunFilter(2, picture, 0);
        EXPECT_EQ(loop.count, yields);
    }
    gdi::Surface second = Noise(4, 4, 2);
    loop.onEvents = [&] { filters.RunFilter(2, second, 0); };
    gdi::Surface first = Noise(4, 4, 3);
    filters.RunFilter(2, first, 0);
    EXPECT_TRUE(ComparePicture(second, Noise(4, 4, 2)));
    EXPECT_TRUE(ComparePicture(Filtered(first, 2, 0), Noise(4, 4, 3)));
    for (const int unknown : {-1, 0, 32})
        EXPECT_TRUE(ComparePicture(Filtered(second, unknown, 1), second)) << unknown;
    for (const filters::FilterRow& row : filters::Filters()) {
        for (const auto& [w, h] : {std::pair{0, 0}, {1, 1}, {2, 2}, {3, 2}, {1, 9}, {5, 5}}) {
            const gdi::Surface made = Filtered(Noise(w, h, 1), row.FilterId, row.Param);
            EXPECT_EQ(made.Width() * made.Height(), w * h) << row.key;
        }
    }
}

TEST(NeighbourFilters, CountTheirNeighbours) {
    const gdi::Surface picture = PictureOf(3, {0x0A0A0A, 0x141414, 0x1E1E1E, 0x282828, 0x640032,
                                               0x323232, 0x3C3C3C, 0x464646, 0x505050});
    // Grey levels 10, 20, 30; 40, the middle, 50; 60, 70, 80, and in the middle 50, 0, 100.
    const struct {
        const char* key;
        gdi::COLORREF middle;
    } kCases[] = {
        {"mnuSharpen", gdi::Rgb(58, 0, 188)},        // (26 P - 2 x 360) / 10
        {"mnuSharpenMore", gdi::Rgb(60, 0, 210)},    // (24 P - 720) / 8
        {"mnuBlur", gdi::Rgb(46, 36, 56)},           // (P + 20 + 40 + 50 + 70) / 5
        {"mnuBlurMore", gdi::Rgb(45, 45, 45)},       // 360 / 8
        {"mnuEdge", gdi::Rgb(70, 0, 255)},           // (10 P - 360) / 2
        {"mnuContour", gdi::Rgb(255, 0, 255)},       // 8 P - 360 + 255
        {"mnuEmboss", gdi::Rgb(30, 40, 140)},        // |P - 80 + offset|
        {"mnuEngrave", gdi::Rgb(30, 200, 100)},      // |80 - P + offset|
        {"mnuEmbossMore", gdi::Rgb(0, 70, 70)},      // 110 - 160 + offset
        {"mnuEngraveMore", gdi::Rgb(50, 170, 170)},  // 160 - 110 + offset
        // S = 20 + 20 + 40 - 70 - 50 - 160 = -200; (P + S) / 2 + 50
        {"mnuRelief", gdi::Rgb(0, 0, 0)},
        {"mnuConnection", gdi::Rgb(40, 0, 90)},  // P - 10, and P less itself
        {"mnuDilate", gdi::Rgb(80, 80, 100)},
        {"mnuErode", gdi::Rgb(10, 0, 10)},
    };
    for (const auto& [key, middle] : kCases) {
        EXPECT_EQ(Filtered(picture, key).GetPixel(1, 1), middle)
            << key << std::hex << " " << Filtered(picture, key).GetPixel(1, 1);
    }
    // Weights of their own: -5 / 2 is -2.
    EXPECT_EQ(Filtered(GreyPicture(3, {0, 0, 0, 0, 0, 0, 0, 5, 0}), "mnuRelief").GetPixel(1, 1),
              GreyColor(48));
    EXPECT_EQ(Filtered(GreyPicture(2, {0, 9, 9, 200}), "mnuEmboss").GetPixel(0, 0),
              gdi::Rgb(200, 80, 80))
        << "the offset comes before the sign is lost";
}

TEST(NeighbourFilters, InPlaceSeeWhatTheyHaveChanged) {
    const struct {
        const char* key;
        int left, right;
    } kCases[] = {{"mnuSharpen", 120, 96},
                  {"mnuSharpenMore", 124, 94},
                  {"mnuEdge", 140, 80},
                  {"mnuBlurMore", 100, 100},
                  {"mnuBlur", 101, 100}};
    for (const auto& [key, left, right] : kCases) {
        const gdi::Surface made = Filtered(
            GreyPicture(4, {100, 100, 100, 100, 100, 108, 100, 100, 100, 100, 100, 100}), key);
        EXPECT_EQ(made.GetPixel(1, 1), GreyColor(left)) << key;
        EXPECT_EQ(made.GetPixel(2, 1), GreyColor(right)) << key;
    }
}

TEST(NeighbourFilters, LeaveTheirBorders) {
    // Pixels left as they are at the left and top, and at the right and bottom.
    const std::tuple<const char*, int, int> kCases[] = {
        {"mnuSharpen", 1, 1},     {"mnuBlur", 1, 1},    {"mnuBlurMore", 1, 1},
        {"mnuEdge", 1, 1},        {"mnuContour", 1, 1}, {"mnuEmbossMore", 1, 1},
        {"mnuEngraveMore", 1, 1}, {"mnuRelief", 1, 1},  {"mnuConnection", 1, 1},
        {"mnuDilate", 1, 1},      {"mnuErode", 1, 1},   {"mnuEmboss", 0, 1},
        {"mnuEngrave", 0, 1},     {"mnuAqua", 2, 2}};
    const gdi::Surface picture = Noise(9, 7, 1);
    for (const auto& [key, before, after] : kCases) {
        const gdi::Surface made = Filtered(picture, key);
        int columns = 0, rows = 0;
        for (int i = 0; i < 63; ++i) {
            if (made.GetPixel(i % 9, i / 9) == picture.GetPixel(i % 9, i / 9)) continue;
            columns |= 1 << i % 9;
            rows |= 1 << i / 9;
        }
        EXPECT_EQ(columns, (1 << (9 - after)) - (1 << before)) << key;
        EXPECT_EQ(rows, (1 << (7 - after)) - (1 << before)) << key;
    }
}

TEST(ToneFilters, ChangeColors) {
    const struct {
        const char* key;
        gdi::COLORREF from, to;
    } kCases[] = {
        {"mnuNegative", gdi::Rgb(0, 100, 255), gdi::Rgb(255, 155, 0)},
        {"mnuGreyScale", gdi::Rgb(31, 20, 10), gdi::Rgb(20, 20, 20)},
        {"mnuBrighter", gdi::Rgb(250, 15, 5), gdi::Rgb(255, 16, 6)},  // 275, 16.5, 5.5
        {"mnuDarker", gdi::Rgb(200, 15, 5), gdi::Rgb(180, 14, 4)},    // 180, 13.5, 4.5
        // The factor 0.15 in single precision is a little more: 21 + 1.50000006.
        {"mnuSaturationI", gdi::Rgb(21, 6, 6), gdi::Rgb(23, 5, 5)},
        {"mnuSaturationI", gdi::Rgb(255, 0, 9), gdi::Rgb(255, 0, 0)},
        {"mnuSaturationD", gdi::Rgb(100, 40, 10), gdi::Rgb(90, 42, 18)},
        {"mnuSwapBank1", gdi::Rgb(1, 2, 3), gdi::Rgb(3, 1, 2)},
        {"mnuSwapBank2", gdi::Rgb(1, 2, 3), gdi::Rgb(2, 3, 1)},
        {"mnuSwapBank3", gdi::Rgb(1, 2, 3), gdi::Rgb(1, 3, 2)},
        {"mnuSwapBank4", gdi::Rgb(1, 2, 3), gdi::Rgb(3, 2, 1)},
        {"mnuSwapBank5", gdi::Rgb(1, 2, 3), gdi::Rgb(2, 1, 3)},
        {"mnuBW1", gdi::Rgb(0, 180, 0), gdi::kWhite},
        {"mnuBW1", gdi::Rgb(180, 0, 0), gdi::kWhite},
        {"mnuBW1", gdi::Rgb(179, 179, 180), gdi::kWhite},
        {"mnuBW1", gdi::Rgb(179, 179, 179), gdi::kBlack},
        {"mnuStretch", gdi::Rgb(7, 8, 9), gdi::Rgb(7, 8, 9)},
        {"mnuGamma", gdi::Rgb(0, 64, 255), gdi::Rgb(0, 64, 255)},
    };
    for (const auto& [key, from, to] : kCases) {
        const gdi::COLORREF made = Filtered(gdi::Surface(1, 1, from), key).GetPixel(0, 0);
        EXPECT_EQ(made, to) << key << " " << std::hex << made;
    }
    EXPECT_TRUE(ComparePicture(Filtered(Noise(3, 3, 1), 16, 6), Noise(3, 3, 1)));
    EXPECT_TRUE(ComparePicture(Filtered(PictureOf(3, {50, 100, 0xFF0096}), "mnuStretch"),
                               PictureOf(3, {0, 128, 0xFF00FF})));
}

TEST(ToneFilters, ContrastFoldsWhatLeavesTheRange) {
    const struct {
        int Param;
        gdi::COLORREF first, second, made;
    } kCases[] = {
        // The mean is 101 and the factor 1.1 a little more in single precision: 106.50000012.
        {10, GreyColor(106), GreyColor(96), GreyColor(107)},
        {-10, GreyColor(110), GreyColor(90), GreyColor(109)},
        // With the mean 100: 265, 100, 100.
        {10, gdi::Rgb(250, 100, 100), GreyColor(50), gdi::Rgb(255, 105, 105)},
        // The mean is 101: 99, 399, -21; then 89, 389, 0; then 156, 255, 67.
        {100, gdi::Rgb(100, 250, 40), GreyColor(72), gdi::Rgb(156, 255, 67)},
        // 250, 300, 300 ends above the range in every channel.
        {100, gdi::Rgb(175, 200, 200), GreyColor(9), gdi::kWhite},
    };
    for (const auto& [Param, first, second, made] : kCases) {
        EXPECT_EQ(Filtered(PictureOf(2, {first, second}), 17, Param).GetPixel(0, 0), made)
            << std::hex << first;
    }
    for (const auto& [key, made] : {std::pair{"mnuContrast1", 111}, {"mnuContrast2", 109}})
        EXPECT_EQ(Filtered(GreyPicture(2, {110, 90}), key).GetPixel(0, 0), GreyColor(made));
}

TEST(ToneFilters, GammaIsThePowerOfEveryLevel) {
    gdi::Surface levels(256, 1);
    for (int v = 0; v < 256; ++v)
        levels.SetPixel(v, 0, GreyColor(v));
    EXPECT_EQ(Filtered(levels, filters::kGammaFilter, 200).GetPixel(64, 0), GreyColor(128));
    for (int factor = 1; factor < 10000; factor += factor < 300 ? 1 : 97) {
        const auto g = static_cast<float>(factor / 100.0);
        const gdi::Surface made = Filtered(levels, filters::kGammaFilter, factor);
        for (int v = 0; v < 256; ++v)
            ASSERT_EQ(made.GetPixel(v, 0),
                      GreyColor(static_cast<int>(std::lrint(255 * std::pow(v / 255.0, 1.0 / g)))))
                << factor << " " << v;
    }
}

}  // namespace
}  // namespace kestrel::filters
