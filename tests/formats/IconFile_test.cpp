#include "formats/IconFile.h"

#include <string>
#include <utility>
#include <vector>

#include "formats/BestImage.h"
#include "formats/UnreadableFile.h"
#include "tests/formats/HexBytes.h"
#include "tests/support/PictureText.h"

namespace kestrel::formats {
namespace {

using test::ByteList;
using test::Hex;
using test::Inks;
using test::operator+;

// The 24-bit icon of 3 x 2 pixels: entry at 6, bitmap at 22, rows at 62, mask at 86, end at 94.
const ByteList kGood =
    Hex("0000 0100 0100  03 02 00 00 0100 1800 48000000 16000000"
        "28000000 03000000 04000000 0100 1800 00000000 00000000 00000000 00000000 00000000 00000000"
        "000000FFFFFF000000000000 0000FF00FF00FF0000000000 20000000 00000000");

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
    gdi::DrawOver(shown, shown.Bounds(), icon->planes);
    EXPECT_PICTURE(shown, kInks, expected);
}

constexpr auto kPicture = "r g b \n k w .";
constexpr auto kMask = "20000000 00000000";

struct Depth {
    const char* name = "";
    std::uint8_t bits = 0;
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
    {"4, cut palette", 4, 5, 60, kColors, kRows4},
    {"4, more colours than 16", 4, 17, 104, kColors, kRows4},
    {"4, index beyond the palette", 4, 5, 60, kColors, "F4F00000 12300000"},
    // Five bits of 3 widen to 00011 000.
    {"16, 555", 16, 0, 40, "", "0000FF7F00000000 007CE003630C0000", kMask, "r g d \n k w ."},
    {"16, 565", 16, 0, 52, "00F80000 E0070000 1F000000", "0000FFFF00000000 00F8E0071F000000"},
    {"16, scattered masks", 16, 0, 52, "0FF00000 E0070000 1F000000", kRows24, kMask, ""},
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
        ByteList file(kGood.begin(), kGood.begin() + 62);
        if (row.rowsAt == 124) file[22] = 124;
        file[36] = row.bits;
        file[38] = row.bits > 8 && row.rowsAt > 40 ? 3 : 0;
        file[54] = row.colorsUsed;
        file = file + Hex(row.colors);
        file.resize(22 + row.rowsAt);
        ExpectReads(file + Hex(row.rows) + Hex(row.mask), row.expected);
    }
}

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

TEST(DibImage, AHeightIsDoubledWhereTheDirectoryDoublesItToo) {
    ByteList file = kGood;
    file.at(7) = 4;
    ExpectReads(file, kPicture);
}

TEST(DibImage, CountsACutMaskAsOpaqueAndRefusesCutColors) {
    for (std::size_t length = 0; length <= kGood.size(); ++length) {
        SCOPED_TRACE(length);
        const char* whatIsLeft = length > 86 ? kPicture : "r g b \n k w k";
        ExpectReads({kGood.begin(), kGood.begin() + static_cast<long>(length)},
                    length < 86 ? "" : whatIsLeft);
    }
}

// The images of a file, and which of them suits best.
const std::pair<std::vector<ImageInfo>, std::size_t> kChoices[] = {
    {{{48, 48, 32}, {32, 32, 4}, {16, 16, 24}}, 1},  // the size before the depth
    {{{32, 32, 8}, {32, 32, 24}, {32, 32, 4}}, 1},   // the deepest of that size
    {{{64, 64, 32}, {24, 24, 8}, {16, 16, 24}}, 1},  // the nearest size
    {{{24, 24, 24}, {40, 40, 8}}, 1},                // the larger
    {{{24, 24, 8}, {24, 24, 32}, {24, 24, 32}}, 1},  // the deeper, then the first
    {{{32, 127, 24}, {16, 16, 1}}, 1},               // the farther side counts
};

TEST(BestImage, Suits32By32) {
    for (const auto& [images, best] : kChoices) {
        std::vector<ImageEntry> entries;
        for (const ImageInfo& info : images)
            entries.push_back({entries.size(), 1, info});
        EXPECT_EQ(BestFirst(entries).front().offset, best) << images[0].width;
    }
}

// An offset before any image, and a PNG of 32 x 32 that ends after its header.
TEST(BestImage, DamagedImagesGiveWayToTheNextBest) {
    ExpectReads(Hex("0000 0100 0300 000000000000000000000000 00000000"
                    "000000000000000000000000 36000000 000000000000000000000000 57000000"
                    "89504E470D0A1A0A 0000000D 49484452 00000020 00000020 0806000000 737A7AF4") +
                    ByteList(kGood.begin() + 22, kGood.end()),
                kPicture);
}

const std::string kPngHead = "89504E470D0A1A0A 0000000D 49484452 ";

// The check sums are those of an independent program.
TEST(UnreadableFile, TheReasonIsTold) {
    const std::pair<std::string, int> cases[] = {
        {"", kEmptyFile},
        {"0000 0100 0000", kDamagedPicture},
        {kPngHead + "00002000 00002000 0806000000", kDamagedPicture},           // cut
        {kPngHead + "00002000 00002000 0806000000 72AACA59", kDamagedPicture},  // 256 MB of rows
        {kPngHead + "00002000 00002000 1006000000 223A161A", kPictureTooLarge},
        {kPngHead + "00002001 00000001 0806000000 99894B5E", kPictureTooLarge},
        {"4349 1A000000 0000 0000 4E000000 0C000000", kOs2Icon},
        {"4241 28000000 00000000 0000 0000 4943 1A000000 0000 0000 4E000000 0C000000", kOs2Icon},
        {"0102 00000000 2000 2000 0400 0000", kWindows1Icon},
        {"0300 00000000 2000 2000 0400 0000", kWindows1Icon},
        {"4D5A", kProgramWithoutIcons},
        {"4943 6F6E73206172652067726561742C20206F6E6573", kInvalidPicture},  // a text
    };
    for (const auto& [bytes, number] : cases) {
        const auto icon = ReadBestImage(Hex(bytes));
        ASSERT_FALSE(icon) << bytes;
        EXPECT_EQ(icon.error().number, number) << bytes;
    }
}

}  // namespace
}  // namespace kestrel::formats
