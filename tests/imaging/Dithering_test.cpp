#include <cmath>
#include <map>

#include "tests/imaging/FilterTest.h"

namespace kestrel::filters {
namespace {

using test::ComparePicture;

int AverageOf(const gdi::Surface& picture) {
    int sum = 0;
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            sum += GreyAt(picture, x, y);
    return sum / (picture.Width() * picture.Height());
}

// What each pixel's error adds to those around it, two columns to either side, in this row and the
// next two.
struct Kernel {
    const char* key;
    int divisor;
    int weights[3][5];
};
constexpr Kernel kKernels[] = {
    {"mnuBW4", 16, {{0, 0, 0, 7, 0}, {0, 3, 5, 1, 0}}},
    {"mnuBW5", 32, {{0, 0, 0, 8, 4}, {2, 4, 8, 4, 2}}},
    {"mnuBW6", 42, {{0, 0, 0, 8, 4}, {2, 4, 8, 4, 2}, {1, 2, 4, 2, 1}}},
};

// Every error is kept in a map, also of pixels that are not there.
gdi::Surface Diffused(const gdi::Surface& picture, const Kernel& kernel) {
    const int threshold = AverageOf(picture);
    std::map<std::pair<int, int>, int> errors;
    gdi::Surface made = picture;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            const int level = std::clamp(GreyAt(picture, x, y) + errors[{x, y}] * 10 / 15, 0, 255);
            const int out = level < threshold ? 0 : 255;
            made.SetPixel(x, y, GreyColor(out));
            for (int i = 0; i < 15; ++i)
                errors[{x + i % 5 - 2, y + i / 5}] +=
                    (level - out) * kernel.weights[i / 5][i % 5] / kernel.divisor;
        }
    }
    return made;
}

TEST(Dithering, ErrorsAreSharedOutByTheKernel) {
    for (const auto& [w, h] : {std::pair{1, 1}, {2, 3}, {17, 9}, {32, 32}}) {
        for (std::uint32_t seed = 0; seed < 5; ++seed) {
            const gdi::Surface noise = Noise(w, h, seed);
            for (const Kernel& kernel : kKernels)
                EXPECT_TRUE(ComparePicture(Filtered(noise, kernel.key), Diffused(noise, kernel)))
                    << kernel.key;
        }
    }
}

TEST(Dithering, EnhancedDiffusionSharpensAndCarriesAQuarterOn) {
    for (std::uint32_t seed = 0; seed < 8; ++seed) {
        const gdi::Surface noise = Noise(9, 6, seed);
        const int threshold = AverageOf(noise);
        int carry = 0;
        gdi::Surface expected = noise;
        for (int i = 0; i < 54; ++i) {
            const int x = i % 9, y = i / 9;
            Channels taken = ChannelsAt(noise, x, y);
            if (x > 0 && y > 0 && x < 8 && y < 5) {
                for (std::size_t k = 0; k < 3; ++k) {
                    int sum = 11 * taken[k];
                    for (int n = 0; n < 9; ++n)
                        sum -= ChannelsAt(noise, x + n % 3 - 1, y + n / 3 - 1)[k];
                    taken[k] = std::clamp(sum / 2, 0, 255);
                }
            }
            const int level = std::clamp((taken[0] + taken[1] + taken[2]) / 3 + carry, 0, 255);
            const int out = level < threshold ? 0 : 255;
            carry = (level - out) / 4;
            expected.SetPixel(x, y, GreyColor(out));
        }
        EXPECT_TRUE(ComparePicture(Filtered(noise, "mnuBW2"), expected)) << seed;
    }
}

TEST(Dithering, OrderedAndAllBlack) {
    const test::Inks inks{{'o', gdi::kWhite}, {'.', gdi::kBlack}};
    EXPECT_PICTURE(Filtered(gdi::Surface(5, 5, GreyColor(128)), "mnuBW3"), inks, R"(
        o . o . o
        o o . o o
        o . o . o
        . o . o .
        o . o . o )");
    for (const char* key : {"mnuBW2", "mnuBW4", "mnuBW5", "mnuBW6"})
        EXPECT_TRUE(ComparePicture(Filtered(gdi::Surface(3, 3, gdi::kBlack), key),
                                   gdi::Surface(3, 3, gdi::kWhite)))
            << key;
}

TEST(SpatialFilters, PixelizeAveragesBlocksAlsoCutOnes) {
    const gdi::Surface green =
        PictureOf(4, {0x0000, 0x1E00, 0x3C00, 0x5A00, 0x0900, 0x0900, 0x0900, 0x5B00, 0x0000,
                      0x0000, 0x0000, 0x5A00, 0x1000, 0x1100, 0x1100, 0x0700});
    const gdi::Surface blocks =
        PictureOf(4, {0x0D00, 0x0D00, 0x0D00, 0x5A00, 0x0D00, 0x0D00, 0x0D00, 0x5A00, 0x0D00,
                      0x0D00, 0x0D00, 0x5A00, 0x1000, 0x1000, 0x1000, 0x0700});
    EXPECT_TRUE(ComparePicture(Filtered(green, "mnuPixelize"), blocks));
}

TEST(SpatialFilters, AquaByDefinition) {
    const auto calmest = [](const gdi::Surface& from, int x, int y, std::size_t k) {
        if (x < 2 || y < 2 || x >= from.Width() - 2 || y >= from.Height() - 2)
            return ChannelsAt(from, x, y)[k];
        int least = 99999, chosen = 0;
        for (const auto& [left, top] : {std::pair{x - 2, y - 2}, {x, y - 2}, {x - 2, y}, {x, y}}) {
            int sum = 0, spread = 0;
            for (int i = 0; i < 9; ++i)
                sum += ChannelsAt(from, left + i % 3, top + i / 3)[k];
            for (int i = 0; i < 9; ++i)
                spread += std::abs(ChannelsAt(from, left + i % 3, top + i / 3)[k] - sum / 9);
            if (spread < least) {
                least = spread;
                chosen = sum / 9;
            }
        }
        return chosen;
    };
    for (std::uint32_t seed = 0; seed < 4; ++seed) {
        for (const auto& [w, h] : {std::pair{2, 2}, {8, 5}, {32, 32}}) {
            // Few levels, so that spreads are often equal.
            gdi::Surface noise = Noise(w, h, seed);
            if (seed % 2 == 0)
                noise = Each(noise, [](const gdi::Surface& from, int x, int y, std::size_t k) {
                    return ChannelsAt(from, x, y)[k] / 128 * 100;
                });
            EXPECT_TRUE(ComparePicture(Filtered(noise, "mnuAqua"), Each(noise, calmest)));
        }
    }
}

TEST(SpatialFilters, RandomNumbersAreDrawnInTheirOrder) {
    const gdi::Surface noise = Noise(20, 11, 9);
    system::RandomNumbers random(kSeed);
    EXPECT_TRUE(
        ComparePicture(Filtered(noise, "mnuAddNoise"),
                       Each(noise, [&](const gdi::Surface& from, int x, int y, std::size_t k) {
                           return ChannelsAt(from, x, y)[k] +
                                  static_cast<int>(std::nearbyint(random.Next() * 100 - 50));
                       })));
    for (const auto& [key, reach] : {std::pair{"mnuDiffuse", 6}, {"mnuDiffuseMore", 12}}) {
        random = system::RandomNumbers(kSeed);
        gdi::Surface expected = noise;
        for (int y = 0; y < 11; ++y) {
            for (int x = 0; x < 20; ++x) {
                int dx = static_cast<int>(std::nearbyint(random.Next() * reach - reach / 2.0));
                int dy = static_cast<int>(std::nearbyint(random.Next() * reach - reach / 2.0));
                if (x + dx < 0 || x + dx > 19) dx = 0;
                if (y + dy < 0 || y + dy > 10) dy = 0;
                expected.SetPixel(x, y, expected.GetPixel(x + dx, y + dy));
            }
        }
        EXPECT_TRUE(ComparePicture(Filtered(noise, key), expected)) << key;
    }
}

}  // namespace
}  // namespace kestrel::filters
