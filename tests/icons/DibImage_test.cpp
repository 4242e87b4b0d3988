#include "IconBytes.h"
#include "platform/icons/IconFile.h"
#include "tests/support/PictureText.h"

namespace kestrel::icons {
namespace {

using namespace test;

constexpr gdi::COLORREF kGround = 0x808080;
constexpr gdi::COLORREF kInverted = 0x404040;
constexpr Inks kInks = {{'r', 0x0000FF}, {'g', 0x00FF00}, {'b', 0xFF0000}, {'k', 0x000000},
                        {'w', 0xFFFFFF}, {'.', kGround},  {'i', kInverted}};

// Both planes in one picture: '.' transparent, 'i' inverted screen, else the opaque pixel's colour.
gdi::Surface Shown(const IconImage& icon) {
    gdi::Surface shown = icon.color;
    for (int y = 0; y < shown.Height(); ++y)
        for (int x = 0; x < shown.Width(); ++x)
            if (icon.mask.GetPixel(x, y) != gdi::kBlack)
                shown.SetPixel(x, y, shown.GetPixel(x, y) == gdi::kBlack ? kGround : kInverted);
    return shown;
}

// An expected picture of "" means that the file is refused.
void ExpectReads(const ByteList& file, std::string_view expected) {
    const auto icon = ReadBestImage(file);
    ASSERT_EQ(icon.has_value(), !expected.empty());
    if (icon)
        EXPECT_PICTURE(Shown(*icon), kInks, expected);
    else
        EXPECT_EQ(icon.error().number, kInvalidPicture);
}

constexpr auto kPicture = "r g b \n k w .";
constexpr auto kMask = "20000000 00000000";

struct Depth {
    const char* name;
    int bits;
    std::uint8_t colorsUsed;
    std::size_t rowsAt;  // from the bitmap's start
    const char* colors;  // palette or channel masks, from byte 40 on
    const char* rows;    // from the bottom
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
    {"4, more colours than indexes", 4, 255, 104, kColors, kRows4},
    {"8", 8, 0, 1064, kColors, "00040000 01020300"},
    {"16, 555", 16, 0, 40, "", "0000FF7F00000000 007CE0031F000000"},
    {"16, 565", 16, 0, 52, "00F80000 E0070000 1F000000", "0000FFFF00000000 00F8E0071F000000"},
    {"16, scattered masks", 16, 0, 52, "0FF00000 E0070000 1F000000", kRows24, kMask, ""},
    {"24", 24, 0, 40, "", kRows24},
    {"24, colours used", 24, 5, 40, "", kRows24},
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
        ByteList image = DibHeader(3, 2, row.bits);
        if (row.rowsAt == 124) image[0] = 124;
        image[16] = row.bits > 8 && row.rowsAt > 40 ? 3 : 0;
        image[32] = row.colorsUsed;
        Append(image, Hex(row.colors));
        image.resize(row.rowsAt);
        Append(image, Hex(row.rows));
        Append(image, Hex(row.mask));
        ExpectReads(IconFile({image}), row.expected);
    }
}

// Five bits of 3 give 00011 000; the pixel is transparent but not black, so it inverts the screen.
TEST(DibImage, WidensChannelsAndKeepsInvertedColors) {
    ByteList image = DibHeader(1, 1, 16);
    Append(image, Hex("630C 0000 80000000"));
    const auto icon = ReadBestImage(IconFile({image}));
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->color.GetPixel(0, 0), 0x181818U);
    EXPECT_EQ(icon->mask.GetPixel(0, 0), gdi::kWhite);
}

// The 24-bit icon of 3 x 2 pixels: entry at 6, bitmap at 22, rows at 62, mask at 86, end at 94.
const ByteList kGood =
    Hex("0000 0100 0100  03 02 00 00 0100 1800 48000000 16000000"
        "28000000 03000000 04000000 0100 1800 00000000 00000000 00000000 00000000 00000000 00000000"
        "000000FFFFFF000000000000 0000FF00FF00FF0000000000 20000000 00000000");

struct Patch {
    std::size_t offset;
    const char* bytes;
};

ByteList Patched(const std::vector<Patch>& patches) {
    ByteList file = kGood;
    for (const Patch& patch : patches) {
        const ByteList bytes = Hex(patch.bytes);
        std::copy(bytes.begin(), bytes.end(), &file.at(patch.offset));
    }
    return file;
}

struct Oddity {
    const char* name;
    std::vector<Patch> patches;
    const char* expected = kPicture;
};

TEST(DibImage, ReadsOddFiles) {
    const Oddity oddities[] = {
        {"as it is", {}},
        {"cursor with hotspot", {{2, "02"}, {10, "FFFF FFFF"}}},
        {"entry: colours, reserved, planes, bits, length 0", {{8, "08 FF FFFF FFFF 00000000"}}},
        {"entry: length beyond all", {{14, "FFFFFFFF"}}},
        {"count: one more than there are", {{4, "0200"}}},
        {"count: all that can be", {{4, "FFFF"}}},
        {"entry: 0 x 0", {{6, "0000"}}},
        {"entry: the doubled height, another width", {{6, "0404"}}},
        {"header: length of the pixels", {{42, "FFFFFFFF"}}},
        {"height not doubled", {{30, "02000000"}}},
        {"top-down", {{30, "FCFFFFFF"}}, "k w . \n r g b"},
        {"top-down, not doubled", {{30, "FEFFFFFF"}}, "k w . \n r g b"},
    };
    for (const Oddity& row : oddities) {
        SCOPED_TRACE(row.name);
        ExpectReads(Patched(row.patches), row.expected);
    }
}

TEST(DibImage, CountsACutMaskAsOpaqueAndRefusesCutColors) {
    for (std::size_t length = 0; length <= kGood.size(); ++length) {
        SCOPED_TRACE(length);
        const bool hasTransparentPixel = length > 86;
        ExpectReads({kGood.begin(), kGood.begin() + static_cast<long>(length)},
                    length < 86           ? ""
                    : hasTransparentPixel ? kPicture
                                          : "r g b \n k w k");
    }
}

struct BadField {
    const char* name;
    std::size_t offset;
    std::vector<const char*> values;
};

TEST(DibImage, RefusesBadFields) {
    const BadField fields[] = {
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
    for (const BadField& field : fields) {
        for (const char* value : field.values) {
            SCOPED_TRACE(field.name + std::string(" = ") + value);
            ByteList file = Patched({{field.offset, value}});
            file.resize(20000);  // no field is refused for want of data
            ExpectReads(file, "");
        }
    }
}

}  // namespace
}  // namespace kestrel::icons
