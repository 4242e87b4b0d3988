#include <gtest/gtest.h>

#include <cstdio>
#include <utility>

#include "IconBytes.h"
#include "platform/icons/IconFile.h"

namespace kestrel::icons {
namespace {

using namespace test;

// Compares with what another program decoded: a PAM file of red, green, blue and alpha. It shows
// the middle of a larger image. Colours count only where a pixel is opaque.
void ExpectSamePixels(const IconImage& icon, const ByteList& pam) {
    const std::string text(pam.begin(), pam.end());
    int width = 0, height = 0;
    ASSERT_EQ(std::sscanf(text.c_str(), "P7 WIDTH %d HEIGHT %d", &width, &height), 2);
    const std::size_t start = text.find("ENDHDR\n") + 7;
    ASSERT_EQ(pam.size() - start, static_cast<std::size_t>(4 * width * height));
    const std::uint8_t* expected = &pam[start];
    for (int i = 0; i < width * height; ++i, expected += 4) {
        const int x = (icon.info.width - width) / 2 + i % width;
        const int y = (icon.info.height - height) / 2 + i / width;
        const bool opaque = expected[3] >= 128;
        const auto color = gdi::Rgb(expected[0], expected[1], expected[2]);
        ASSERT_EQ(icon.mask.GetPixel(x, y), opaque ? gdi::kBlack : gdi::kWhite) << x << ' ' << y;
        ASSERT_TRUE(!opaque || icon.color.GetPixel(x, y) == color) << x << ' ' << y;
    }
}

// Sizes and depths as icotool lists them.
TEST(Witness, AgreesOnEveryImage) {
    // clang-format off
    const std::pair<std::string, std::vector<ImageInfo>> files[] = {
        {"bits1.ico", {{32, 32, 1}}}, {"bits4.ico", {{16, 16, 4}}}, {"bits8.ico", {{48, 48, 8}}},
        {"bits24.ico", {{32, 32, 24}}}, {"bits32.ico", {{24, 24, 32}}},
        {"wide.ico", {{127, 64, 4}}}, {"pointer.cur", {{24, 24, 24}}},
        {"png-named.ico", {{16, 16, 4}}},
        {"several.ico", {{16, 16, 4}, {48, 48, 8}, {32, 32, 32}, {256, 256, 8}}},
        {"magick.ico", {{16, 16, 32}, {48, 48, 32}, {256, 256, 32}}},
        {"png-kinds.ico", {{16, 16, 1}, {48, 48, 8}, {32, 32, 24}, {16, 16, 4}, {24, 24, 64},
                           {24, 24, 16}, {24, 24, 32}, {16, 16, 24}}}};
    // clang-format on
    const std::string folder = TEST_DATA "/";
    for (const auto& [name, images] : files) {
        const ByteList bytes = ReadFile(folder + name);
        const auto entries = ListImages(bytes);
        ASSERT_TRUE(entries && entries->size() == images.size()) << name;
        for (std::size_t i = 0; i < images.size(); ++i) {
            const auto icon = DecodeImage(bytes, entries->at(i));
            ASSERT_TRUE(icon) << name << i;
            ImageInfo info = icon->info;
            info.png = false;
            EXPECT_EQ(info, images[i]) << name << i;
            const std::string witness = name.substr(0, name.find('.')) + '-' + std::to_string(i);
            SCOPED_TRACE(witness);
            ExpectSamePixels(*icon, ReadFile(folder + witness + ".pam"));
        }
    }
}

}  // namespace
}  // namespace kestrel::icons
