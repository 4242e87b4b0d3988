#include <gtest/gtest.h>

#include <cstdio>

#include "tests/formats/SmallSources.h"

namespace kestrel::formats {
namespace {

using namespace test;

// Compares with what another program decoded: a PAM file of red, green, blue and alpha. It shows
// the middle of a 256 x 256 image. Colours count only where a pixel is opaque.
void ExpectSamePixels(const IconImage& icon, const ByteList& pam) {
    const std::string text(pam.begin(), pam.end());
    int width = 0, height = 0;
    ASSERT_EQ(std::sscanf(text.c_str(), "P7 WIDTH %d HEIGHT %d", &width, &height), 2);
    EXPECT_TRUE(icon.info.width == 256 ||
                icon.planes.mask.Bounds() == (gdi::Rect{0, 0, width, height}));
    const std::size_t start = text.find("ENDHDR\n") + 7;
    ASSERT_EQ(pam.size() - start, static_cast<std::size_t>(4 * width * height));
    const std::uint8_t* expected = &pam[start];
    for (int i = 0; i < width * height; ++i, expected += 4) {
        const int x = (icon.info.width - width) / 2 + i % width;
        const int y = (icon.info.height - height) / 2 + i / width;
        const bool opaque = expected[3] >= 128;
        const auto color = gdi::Rgb(expected[0], expected[1], expected[2]);
        ASSERT_EQ(icon.planes.mask.GetPixel(x, y), opaque ? gdi::kBlack : gdi::kWhite)
            << x << ' ' << y;
        ASSERT_TRUE(!opaque || icon.planes.image.GetPixel(x, y) == color) << x << ' ' << y;
    }
}

TEST(Witness, AgreesOnEveryImage) {
    for (const std::filesystem::path& path : IconFiles()) {
        if (path.stem().string().starts_with("broken-")) continue;
        const ByteList file = ReadFile(path);
        const auto source = Open(file);
        ASSERT_TRUE(source) << path;
        std::size_t number = 0;
        const auto witness = [&] {
            return path.parent_path() /
                   (path.stem().string() + "-" + std::to_string(number) + ".pam");
        };
        for (std::size_t icon = 0; icon < source->count; ++icon) {
            const auto images = source->Images(icon);
            for (const ImageEntry& entry : *images) {
                SCOPED_TRACE(witness());
                const auto image = source->Decode(entry);
                ExpectSamePixels(image.value(), ReadFile(witness()));
                const auto small = source->Decode(entry, gdi::Size{13, 35});
                EXPECT_TRUE(small &&
                            small->planes.SamePixels(gdi::Stretched(image->planes, 13, 35)));
                ++number;
            }
        }
        EXPECT_FALSE(exists(witness())) << witness() << " is not listed";
    }
}

}  // namespace
}  // namespace kestrel::formats
