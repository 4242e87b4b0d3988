#include <gtest/gtest.h>

#include "IconBytes.h"
#include "platform/icons/IconFile.h"

namespace kestrel::icons {
namespace {

using namespace test;

// A PNG that promises a picture of 32 x 32 in RGBA and ends after its header.
const ByteList kDamagedPng =
    Hex("89504E470D0A1A0A 0000000D 49484452 00000020 00000020 08 06 00 00 00 737A7AF4");

struct Size {
    int width;
    int height;
    int bits;  // 0 = the damaged PNG
};

// A grey picture whose shade tells which image of the file it is.
ByteList ImageOf(const Size& size, std::size_t shade) {
    if (size.bits == 0) return kDamagedPng;
    ByteList image = DibHeader(size.width, size.height, size.bits);
    const int palette = size.bits <= 8 ? 4 << size.bits : 0;
    const int stride = (size.width * size.bits + 31) / 32 * 4;
    image.resize(40 + static_cast<std::size_t>(palette + stride * size.height),
                 static_cast<std::uint8_t>(shade));
    image.resize(image.size() + static_cast<std::size_t>((size.width + 31) / 32 * 4 * size.height));
    return image;
}

struct Choice {
    std::vector<Size> sizes;
    std::size_t best;
};

TEST(BestImage, Suits32By32) {
    const Choice choices[] = {
        {{{48, 48, 32}, {32, 32, 4}, {16, 16, 24}}, 1},              // the size before the depth
        {{{32, 32, 8}, {32, 32, 24}, {32, 32, 4}}, 1},               // the deepest of that size
        {{{32, 32, 24}, {32, 32, 24}}, 0},                           // the first of equals
        {{{64, 64, 32}, {24, 24, 8}, {16, 16, 24}}, 1},              // the nearest size
        {{{24, 24, 24}, {40, 40, 8}}, 1},                            // the larger
        {{{24, 24, 8}, {24, 24, 32}, {24, 24, 32}}, 1},              // the deeper, then the first
        {{{32, 127, 24}, {16, 16, 1}}, 1},                           // the farther side counts
        {{{127, 64, 8}, {256, 1, 24}}, 0},                           // not square
        {{{32, 32, 0}, {16, 16, 24}, {48, 48, 8}, {32, 32, 4}}, 3},  // damaged: the next best
        {{{32, 32, 0}, {32, 32, 0}, {1, 1, 1}}, 2},
    };
    for (const Choice& choice : choices) {
        std::vector<ByteList> images;
        for (const Size& size : choice.sizes)
            images.push_back(ImageOf(size, 0x80 + images.size()));
        const Size& best = choice.sizes[choice.best];
        SCOPED_TRACE(testing::Message() << best.width << " x " << best.height << ", " << best.bits);
        const auto icon = ReadBestImage(IconFile(images));
        ASSERT_TRUE(icon);
        EXPECT_EQ(icon->info, (ImageInfo{best.width, best.height, best.bits, false}));
        EXPECT_EQ(icon->color.GetPixel(0, 0), 0x010101U * (0x80 + choice.best));
    }
}

TEST(BestImage, OneBadEntryLosesNoOther) {
    ByteList bad = ImageOf({32, 32, 24}, 0);
    bad[16] = 1;  // compressed
    const ByteList file = IconFile({bad, ImageOf({16, 16, 8}, 0x99), Hex("00"), kDamagedPng});
    const auto entries = ListImages(file);
    ASSERT_TRUE(entries);
    ASSERT_EQ(entries->size(), 2U);
    EXPECT_EQ((*entries)[0].offset, 6 + 4 * 16 + bad.size());
    EXPECT_EQ((*entries)[0].size, 40U + 1024 + 256 + 64);
    EXPECT_EQ((*entries)[1].info, (ImageInfo{32, 32, 32, true}));
    EXPECT_FALSE(DecodeImage(file, (*entries)[1]));
    EXPECT_EQ(ReadBestImage(file)->info.width, 16);
}

TEST(BestImage, LimitsSizes) {
    EXPECT_TRUE(ReadBestImage(IconFile({ImageOf({1024, 1, 1}, 0)})));
    EXPECT_FALSE(ReadBestImage(IconFile({ImageOf({1025, 1, 1}, 0)})));
    EXPECT_TRUE(ReadBestImage(IconFile({ImageOf({1, 1024, 1}, 0)})));
    EXPECT_FALSE(ReadBestImage(IconFile({ImageOf({1, 1025, 1}, 0)})));
}

// The directory's 0 x 0 means 256 x 256; an image whose own header says just that counts its height
// once.
TEST(BestImage, TakesSizeZeroFor256) {
    ByteList image = ImageOf({256, 256, 8}, 0);
    image[9] = 1;
    const auto icon = ReadBestImage(IconFile({image}));
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->info.height, 256);
}

// Else the time spent would grow with the entries, or giving up early would lose the good image.
TEST(BestImage, ManyEntriesForOneDamagedImageAreTriedOnce) {
    const ByteList icons = ReadFile(TEST_DATA "/magick.ico");
    const ImageEntry png = ListImages(icons)->at(2);
    ASSERT_TRUE(png.info.png);
    const ByteList good = ImageOf({1024, 1, 1}, 0);  // suits less than the damaged image
    constexpr std::uint32_t kCount = 0xFFFF;
    constexpr std::uint32_t kGoodOffset = 6 + 16 * kCount;
    ByteList file = Hex("0000 0100 FFFF");
    for (std::uint32_t i = 1; i <= kCount; ++i) {
        file.resize(file.size() + 12);
        Append(file, i == kCount ? kGoodOffset : kGoodOffset + good.size(), 4);
    }
    Append(file, good);
    file.insert(file.end(), &icons[png.offset], &icons[png.offset] + png.size - 100);
    EXPECT_EQ(ListImages(file)->size(), kCount);
    const auto icon = ReadBestImage(file);
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->info.width, 1024);
}

TEST(DrawIcon, StretchesAndComposes) {
    IconImage icon{
        {2, 1, 24, false}, gdi::Surface(2, 1, gdi::kBlack), gdi::Surface(2, 1, 0x0000FF)};
    icon.mask.SetPixel(1, 0, gdi::kWhite);
    icon.color.SetPixel(1, 0, gdi::kWhite);  // inverted screen
    const struct {
        DrawPart part;
        gdi::COLORREF left;
        gdi::COLORREF right;
    } rows[] = {{DrawPart::Mask, gdi::kBlack, gdi::kWhite},
                {DrawPart::Image, 0x0000FF, gdi::kWhite},
                {DrawPart::Normal, 0x0000FF, 0xFFFFFF ^ 0x123456}};
    for (const auto& row : rows) {
        gdi::Surface target(9, 8, 0x123456);
        DrawIcon(target, icon, 8, 8, row.part);
        EXPECT_EQ(target.GetPixel(3, 7), row.left);
        EXPECT_EQ(target.GetPixel(4, 0), row.right);
        EXPECT_EQ(target.GetPixel(8, 0), 0x123456U);
    }
}

}  // namespace
}  // namespace kestrel::icons
