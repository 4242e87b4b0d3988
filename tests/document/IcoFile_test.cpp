#include "document/IcoFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace kestrel::document {
namespace {

void SetOpaque(IconDocument& icon, int x, int y, gdi::COLORREF color) {
    icon.PicMask.SetPixel(x, y, gdi::kBlack);
    icon.PicImage.SetPixel(x, y, color);
}

bool AllAre(std::span<const std::uint8_t> bytes, std::uint8_t value) {
    return std::all_of(bytes.begin(), bytes.end(), [&](auto byte) { return byte == value; });
}

TEST(IcoFile, HeadersAndAnEmptyIcon) {
    const IcoBytes file = EncodeIco(IconDocument{});
    const std::uint8_t head[62] = {
        0,    0,    1, 0, 1,    0,                                      // directory
        32,   32,   0, 0, 1,    0,    24, 0,                            // entry:
        0xA8, 0x0C, 0, 0, 22,   0,    0,  0,                            //   3,240 bytes at 22
        40,   0,    0, 0, 32,   0,    0,  0, 64, 0, 0, 0, 1, 0, 24, 0,  // bitmap header
        0,    0,    0, 0, 0x80, 0x0C, 0,  0,                            //   3,200 bytes of image
    };
    EXPECT_TRUE(std::equal(std::begin(head), std::end(head), file.begin()));
    EXPECT_TRUE(AllAre(std::span(file).subspan(62, 3072), 0));
    EXPECT_TRUE(AllAre(std::span(file).subspan(3134), 0xFF));
}

TEST(IcoFile, PixelsLieFromTheBottomUpInBlueGreenRed) {
    IconDocument icon;
    SetOpaque(icon, 0, 0, 0x030201);
    SetOpaque(icon, 1, 31, 0xFFFFFF);
    icon.PicImage.SetPixel(9, 0, 0xABCDEF);  // transparent in the mask: the colour is not written
    const IcoBytes file = EncodeIco(icon);
    EXPECT_EQ(std::vector(file.begin() + 3038, file.begin() + 3041),
              (std::vector<std::uint8_t>{3, 2, 1}));
    EXPECT_TRUE(AllAre(std::span(file).subspan(65, 3), 0xFF));
    EXPECT_TRUE(AllAre(std::span(file).subspan(3038 + 27, 3), 0));
    EXPECT_EQ(file[3134], 0b10111111);
    EXPECT_EQ(file[3134 + 31 * 4], 0b01111111);
    EXPECT_EQ(file[3134 + 31 * 4 + 1], 0xFF);
}

TEST(IcoFile, BitsToByteTakesTheFirstCharacterAsTheHighestBit) {
    EXPECT_EQ(BitsToByte("10000001"), 0x81);
    EXPECT_EQ(BitsToByte("0110x 11"), 0x63);
    EXPECT_EQ(BitsToByte("1"), 0x80);
}

TEST(IcoFile, CountsImagesInTheDirectory) {
    const std::pair<std::vector<std::uint8_t>, bool> cases[] = {
        {{0, 0, 1, 0, 3, 0}, true},
        {{0, 0, 1, 0, 1, 0}, false},
        {{0, 0, 1, 0, 0, 1}, true},
        {{0, 0, 1, 0, 3}, false},
        {{}, false},
        {{0, 0, 2, 0, 2, 0}, true},
        {{0x89, 'P', 'N', 'G', 0x0D, 0x0A}, false}};
    for (const auto& [bytes, several] : cases)
        EXPECT_EQ(DetectMultipleIcons(bytes), several);
}

}  // namespace
}  // namespace kestrel::document
