#include "platform/icons/IconFile.h"

#include "IconBytes.h"
#include "tests/support/PictureText.h"

namespace kestrel::icons {
namespace {

using namespace test;

// The head of a bitmap in an icon: 40 bytes, the height of both planes together, one plane.
ByteList DibHeader(std::size_t width, std::size_t height, std::size_t bits) {
    return Number(40) + Number(width) + Number(2 * height) + Number(1 + (bits << 16)) +
           ByteList(24, 0);
}

// The directory of an icon file; every entry claims 0 x 0, 0 bits and 0 bytes.
ByteList Directory(const std::vector<std::size_t>& offsets) {
    ByteList bytes = Hex("0000") + Number(1 + (offsets.size() << 16));
    for (const std::size_t offset : offsets)
        bytes = bytes + ByteList(12, 0) + Number(offset);
    return bytes;
}

ByteList IconFile(const std::vector<ByteList>& images) {
    std::vector<std::size_t> offsets;
    ByteList all;
    for (const ByteList& image : images) {
        offsets.push_back(6 + 16 * images.size() + all.size());
        all = all + image;
    }
    return Directory(offsets) + all;
}

constexpr gdi::COLORREF kGround = 0x808080;
constexpr Inks kInks = {{'r', 0x0000FF}, {'g', 0x00FF00}, {'b', 0xFF0000}, {'k', 0x000000},
                        {'w', 0xFFFFFF}, {'d', 0x181818}, {'.', kGround},  {'i', 0x7F7F7F}};

// Compares the icon on a grey ground: '.' transparent, 'i' inverted screen, else the opaque pixel's
// colour. An expected picture of "" means that the file is refused.
void ExpectReads(const ByteList& file, std::string_view expected) {
    const auto icon = ReadBestImage(file);
    ASSERT_EQ(icon.has_value(), !expected.empty());
    if (!icon) return;
    gdi::Surface shown(icon->info.width, icon->info.height, kGround);
    DrawIcon(shown, *icon, icon->info.width, icon->info.height, DrawPart::Normal);
    EXPECT_PICTURE(shown, kInks, expected);
}

constexpr auto kPicture = "r g b \n k w .";
constexpr auto kMask = "20000000 00000000";

struct Depth {
    const char* name = "";
    std::size_t bits = 0;
    std::uint8_t colorsUsed = 0;
    std::size_t rowsAt = 0;   // from the bitmap's start
    const char* colors = "";  // palette or channel masks, from byte 40 on
    const char* rows = "";    // from the bottom
    const char* mask = kMask;
    const char* expected = kPicture;
};

constexpr auto kColors = "00000000 0000FF00 00FF0000 FF000000 FFFFFF00";
constexpr auto kRedFirst = "FF000000 00FF0000 0000FF00";
constexpr auto kRows4 = "04000000 12300000";
constexpr auto kRows24 = "000000FFFFFF000000000000 0000FF00FF00FF0000000000";

constexpr Depth kDepths[] = {
    {"1", 1, 0, 48, "00000000 FFFFFF00", "C0000000 40000000", kMask, "k w k \n w w ."},
    {"4, cut palette", 4, 5, 60, kColors, kRows4},
    {"4, index beyond the palette", 4, 5, 60, kColors, "F4F00000 12300000"},
    {"8", 8, 0, 1064, kColors, "00040000 01020300"},
    // Five bits of 3 widen to 00011 000.
    {"16, 555", 16, 0, 40, "", "0000FF7F00000000 007CE003630C0000", kMask, "r g d \n k w ."},
    {"16, 565", 16, 0, 52, "00F80000 E0070000 1F000000", "0000FFFF00000000 00F8E0071F000000"},
    {"16, scattered masks", 16, 0, 52, "0FF00000 E0070000 1F000000", kRows24, kMask, ""},
    {"24", 24, 0, 40, "", kRows24},
    {"24, inverted", 24, 0, 40, "", kRows24, "40000000 00", "r g b \n k i k"},
    {"32, no alpha", 32, 0, 40, "", "00000000FFFFFF0000000000 0000FF0000FF0000FF000000"},
    {"32, alpha", 32, 0, 40, "", "000000FFFFFFFF80FFFFFF7F 0000FFFF00FF0080FF0000FF", "FF FF"},
    {"32, faint", 32, 0, 40, "", "000000000000000000000001 0000FF0000FF0000FF000000", kMask,
     ". . . \n . . ."},
    {"32, red first", 32, 0, 52, kRedFirst, "000000FFFFFFFF80FFFFFF7F FF0000FF00FF00FF0000FFFF"},
    {"32, V5", 32, 0, 124, kRedFirst, "000000FFFFFFFF80FFFFFF7F FF0000FF00FF00FF0000FFFF"},
};

TEST(DibImage, ReadsEveryDepth) {
    for (const Depth& row : kDepths) {
        SCOPED_TRACE(row.name);
        ByteList image = DibHeader(3, 2, row.bits) + Hex(row.colors);
        if (row.rowsAt == 124) image[0] = 124;
        image[16] = row.bits > 8 && row.rowsAt > 40 ? 3 : 0;
        image[32] = row.colorsUsed;
        image.resize(row.rowsAt);
        ExpectReads(IconFile({image + Hex(row.rows) + Hex(row.mask)}), row.expected);
    }
}

// The 24-bit icon of 3 x 2 pixels: entry at 6, bitmap at 22, rows at 62, mask at 86, end at 94.
const ByteList kGood =
    Hex("0000 0100 0100  03 02 00 00 0100 1800 48000000 16000000"
        "28000000 03000000 04000000 0100 1800 00000000 00000000 00000000 00000000 00000000 00000000"
        "000000FFFFFF000000000000 0000FF00FF00FF0000000000 20000000 00000000");

// One place of the file with other bytes in it, each value in turn.
struct Oddity {
    const char* name;
    std::size_t offset;
    std::vector<const char*> values;
    const char* expected = "";
};

const Oddity kOddities[] = {
    {"cursor with hotspot", 2, {"0200 0100 0302 0000 FFFF FFFF"}, kPicture},
    {"entry: colours, reserved, planes, bits, length", 8, {"08 FF FFFF FFFF 00000000"}, kPicture},
    {"entry: length beyond all", 14, {"FFFFFFFF"}, kPicture},
    {"count: more than there are", 4, {"0200", "FFFF"}, kPicture},
    {"entry: 0 x 0, the doubled height", 6, {"0000", "0404"}, kPicture},
    {"header: length of the pixels", 42, {"FFFFFFFF"}, kPicture},
    {"height not doubled", 30, {"02000000"}, kPicture},
    {"top-down, not doubled too", 30, {"FCFFFFFF", "FEFFFFFF"}, "k w . \n r g b"},
    {"first word", 0, {"01", "00 01"}},
    {"type", 2, {"00", "03", "01 01"}},
    {"count", 4, {"0000"}},
    {"offset", 18, {"15", "5E", "FFFFFFFF"}},
    {"header size", 22, {"00", "0C", "27", "40", "7D", "FFFFFFFF"}},
    {"width", 26, {"00", "FDFFFFFF", "0104", "FFFF0000 FFFF0000", "FFFFFF7F FFFFFF7F"}},
    {"height", 30, {"00", "01", "00000080", "0208"}},
    {"bits", 36, {"00", "02", "0C", "FFFF"}},
    {"compression", 38, {"01", "02", "03", "04", "05", "FFFFFFFF"}},
};

TEST(DibImage, ReadsOddFilesAndRefusesBadFields) {
    for (const Oddity& row : kOddities) {
        for (const char* value : row.values) {
            SCOPED_TRACE(row.name + std::string(" = ") + value);
            ByteList file = kGood;
            const ByteList bytes = Hex(value);
            std::copy(bytes.begin(), bytes.end(), &file.at(row.offset));
            file.resize(20000);  // no field is refused for want of data
            ExpectReads(file, row.expected);
        }
    }
}

TEST(DibImage, CountsACutMaskAsOpaqueAndRefusesCutColors) {
    for (std::size_t length = 0; length <= kGood.size(); ++length) {
        SCOPED_TRACE(length);
        const char* whatIsLeft = length > 86 ? kPicture : "r g b \n k w k";
        ExpectReads({kGood.begin(), kGood.begin() + static_cast<long>(length)},
                    length < 86 ? "" : whatIsLeft);
    }
}

// A PNG that promises a picture of 32 x 32 in RGBA and ends after its header.
const ByteList kDamagedPng =
    Hex("89504E470D0A1A0A 0000000D 49484452 00000020 00000020 08 06 00 00 00 737A7AF4");

struct Size {
    std::size_t width, height, bits;  // 0 bits: the damaged PNG
};

// A grey picture whose shade tells which image of the file it is.
// Where its mask should be the next image begins.
ByteList ImageOf(const Size& size, std::size_t shade) {
    if (size.bits == 0) return kDamagedPng;
    const std::size_t palette = size.bits <= 8 ? 4U << size.bits : 0;
    const std::size_t stride = (size.width * size.bits + 31) / 32 * 4;
    return DibHeader(size.width, size.height, size.bits) +
           ByteList(palette + stride * size.height, static_cast<std::uint8_t>(shade));
}

// Files of several images, and which of them is taken.
const std::pair<std::vector<Size>, std::size_t> kChoices[] = {
    {{{48, 48, 32}, {32, 32, 4}, {16, 16, 24}}, 1},              // the size before the depth
    {{{32, 32, 8}, {32, 32, 24}, {32, 32, 4}}, 1},               // the deepest of that size
    {{{64, 64, 32}, {24, 24, 8}, {16, 16, 24}}, 1},              // the nearest size
    {{{24, 24, 24}, {40, 40, 8}}, 1},                            // the larger
    {{{24, 24, 8}, {24, 24, 32}, {24, 24, 32}}, 1},              // the deeper, then the first
    {{{32, 127, 24}, {16, 16, 1}}, 1},                           // the farther side counts
    {{{32, 32, 0}, {16, 16, 24}, {48, 48, 8}, {32, 32, 4}}, 3},  // damaged: the next best
    {{{32, 32, 2}, {16, 16, 24}, {0, 0, 8}}, 1},                 // a bad header loses no other
};

TEST(BestImage, Suits32By32) {
    for (const auto& [sizes, index] : kChoices) {
        std::vector<ByteList> images;
        for (const Size& size : sizes)
            images.push_back(ImageOf(size, 0x80 + images.size()));
        const auto icon = ReadBestImage(IconFile(images));
        ASSERT_TRUE(icon);
        EXPECT_EQ(icon->color.GetPixel(0, 0), 0x010101U * (0x80 + index)) << sizes[0].width;
    }
}

// Else the time spent would grow with the entries, or giving up early would lose the good image.
TEST(BestImage, ManyEntriesForOneDamagedImageAreTriedOnce) {
    const ByteList icons = ReadFile(TEST_DATA "/magick.ico");
    const ImageEntry png = ListImages(icons)->at(2);
    ASSERT_TRUE(png.info.png);
    const ByteList good = ImageOf({1024, 1, 1}, 0);  // suits less than the damaged image
    constexpr std::size_t kCount = 1000;
    constexpr std::size_t kGoodOffset = 6 + 16 * kCount;
    std::vector<std::size_t> offsets(kCount, kGoodOffset + good.size());
    offsets.back() = kGoodOffset;
    ByteList file = Directory(offsets) + good;
    file.insert(file.end(), &icons[png.offset], &icons[png.offset] + png.size - 100);
    EXPECT_EQ(ListImages(file)->size(), kCount);
    const auto icon = ReadBestImage(file);
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->info.width, 1024);
}

}  // namespace
}  // namespace kestrel::icons
