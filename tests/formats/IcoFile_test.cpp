#include "formats/IcoFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

namespace kestrel::formats {
namespace {

TEST(IcoFile, HasThePixelsFromTheBottomUpInBlueGreenRedAndThenTheMask) {
    gdi::IconPlanes icon;
    for (const auto& [x, y, color] : {std::tuple{0, 0, 0x030201U}, {1, 31, 0xFFFFFFU}}) {
        icon.mask.SetPixel(x, y, gdi::kBlack);
        icon.image.SetPixel(x, y, color);
    }
    icon.image.SetPixel(9, 0, 0xABCDEF);  // transparent in the mask: the colour is not written
    std::vector<std::uint8_t> expected = {
        0,    0,    1, 0, 1,    0,                                      // directory
        32,   32,   0, 0, 1,    0,    24, 0,                            // entry:
        0xA8, 0x0C, 0, 0, 22,   0,    0,  0,                            //   3,240 bytes at 22
        40,   0,    0, 0, 32,   0,    0,  0, 64, 0, 0, 0, 1, 0, 24, 0,  // bitmap header
        0,    0,    0, 0, 0x80, 0x0C, 0,  0,                            //   3,200 bytes of image
    };
    expected.resize(3134);
    expected.resize(3262, 0xFF);
    std::fill_n(&expected[62 + 3], 3, 0xFF);
    std::copy_n(std::begin({3, 2, 1}), 3, &expected[62 + 31 * 96]);
    expected[3134] = 0b10111111;
    expected[3134 + 31 * 4] = 0b01111111;
    EXPECT_TRUE(std::ranges::equal(EncodeIco(icon), expected));
}

TEST(IcoFile, CountsImagesInTheDirectory) {
    const std::pair<std::vector<std::uint8_t>, bool> cases[] = {
        {{0, 0, 1, 0, 3, 0}, true}, {{0, 0, 1, 0, 1, 0}, false},
        {{0, 0, 1, 0, 0, 1}, true}, {{0, 0, 1, 0, 3}, false},
        {{0, 0, 2, 0, 2, 0}, true}, {{0x89, 'P', 'N', 'G', 13, 10}, false}};
    for (const auto& [bytes, several] : cases)
        EXPECT_EQ(DetectMultipleIcons(bytes), several);
}

}  // namespace
}  // namespace kestrel::formats
