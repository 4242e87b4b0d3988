#include "formats/IconSource.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "formats/IconExport.h"
#include "tests/formats/SmallSources.h"

namespace kestrel::formats {
namespace {

using namespace test;

struct OddSource {
    const char* name;
    std::vector<Patch> patches;
    const char* expected;
};

// The library's tree of resources: types at 210, images at 230, groups at 258, languages at 268,
// places at 2E0, the text of the name at 330; data: images at 338, 380 and 3C8, groups at 410, 434.
constexpr auto kPe = "PE AB:3x2x24,1x1x32p 2:3x2x24";
const OddSource kOddPrograms[] = {
    {"another processor", {{0x44, "64AA"}}, kPe},
    {"resource directory without a size", {{0xCC, "00000000"}}, kPe},
    {"section of another name and without a size", {{0x138, "2E7465787400000000000000"}}, kPe},
    {"more sections than there are", {{0x46, "FFFF"}}, kPe},
    {"directories end before resources", {{0xB4, "02"}}, "none"},
    {"resources outside", {{0xC8, "FFFFFFFF"}}, "none"},
    {"header outside", {{0x3C, "FFFFFFFF"}}, "none"},
    {"an image is missing", {{0x230, "09"}}, "PE AB:1x1x32p 2:3x2x24"},
    {"an image's data outside", {{0x2E0, "00000090"}}, "PE AB:1x1x32p 2:3x2x24"},
    {"nothing is left of a group", {{0x240, "09"}}, "PE AB:3x2x24,1x1x32p"},
    {"nothing is left of any", {{0x230, "0700000068000080 0800000080000080 09"}}, "none"},
    {"of two images of a number the first",
     {{0x238, "01"}, {0x444, "01"}},
     "PE AB:3x2x24 2:3x2x24"},
    {"groups of one number", {{0x258, "02000000"}}, "PE 2:3x2x24,1x1x32p 2:3x2x24"},
    {"groups of one name", {{0x260, "30010080"}}, "PE AB:3x2x24,1x1x32p AB:3x2x24"},
    {"number before name", {{0x258, "02000000 C8000080 30010080 B0000080"}}, kPe},
    {"an image twice", {{0x430, "01"}}, "PE AB:3x2x24 2:3x2x24"},
    {"sizes told 0", {{0x416, "0000000000000000 00000000"}}, kPe},
    {"more images told than there are", {{0x414, "FFFF"}}, kPe},
    {"several languages", {{0x276, "02"}}, kPe},
    {"no language", {{0x276, "00"}}, "PE AB:1x1x32p 2:3x2x24"},
    {"language leads back to the root", {{0x27C, "00000080"}}, "PE AB:1x1x32p 2:3x2x24"},
    {"no groups", {{0x218, "0C"}}, "PE 1:3x2x24 2:1x1x32p 3:3x2x24"},
    {"only what leads to translations",
     {{0x210, "30010080"}, {0x218, "10"}, {0x330, "0300 4D0055004900"}},
     "elsewhere"},
    {"name beyond 16 bits", {{0x332, "3DD8C0DE"}}, "PE \xF0\x9F\x9B\x80:3x2x24,1x1x32p 2:3x2x24"},
    {"name of half a pair",
     {{0x332, "C0DE"}},
     "PE \xEF\xBF\xBD"
     "B:3x2x24,1x1x32p 2:3x2x24"},
    {"only a cut PNG", {{0x230, "09"}, {0x2F4, "30"}}, "PE 2:3x2x24"},
};

// The header of 64 bits has 16 bytes more before its directories.
ByteList Pe64() {
    ByteList file = Patched(Pe(), {{0x54, "F0"}, {0x58, "0B02"}});
    file.insert(file.begin() + 0xB4, 16, 0);
    file.erase(file.begin() + 0x180, file.begin() + 0x190);
    return file;
}

// A program's header may begin inside the first: what tells its place, 4, is the alignment too.
ByteList PeAtFour() {
    ByteList file = Pe();
    std::copy(file.begin() + 0x40, file.begin() + 0x180, file.begin() + 4);
    return Patched(file, {{0x3C, "04000000"}});
}

TEST(Pe, ListsOddPrograms) {
    for (const auto& [name, patches, expected] : kOddPrograms)
        EXPECT_EQ(Listing(Patched(Pe(), patches)), expected) << name;
    EXPECT_EQ(Listing(Pe64()), kPe);
    EXPECT_EQ(Listing(PeAtFour()), kPe);
}

// The header at 40; the table at 80: the shift, icons at 82, groups at A2.
constexpr auto kNe = "NE AB:3x2x24,3x2x24 7:3x2x24";
const OddSource kOdd16Bits[] = {
    {"for no system", {{0x76, "00"}}, kNe},
    {"for OS/2", {{0x76, "01"}}, "none"},
    {"no resources", {{0x66, "4000"}}, "none"},
    {"shift", {{0x80, "1F"}}, "none"},
    {"shift", {{0x80, "FFFF"}}, "none"},
    {"lengths", {{0x8C, "FFFF"}, {0xB8, "FFFF"}}, kNe},
    {"count", {{0xA4, "FFFF"}}, kNe},
    {"no groups", {{0xA2, "0C"}}, "NE 1:3x2x24 2:3x2x24"},
    {"pictures for devices", {{0xA2, "0C"}, {0x200, "01"}, {0x400, "01"}}, "none"},
};

TEST(Ne, ListsOddPrograms) {
    for (const unsigned shift : {1U, 4U, 9U})
        EXPECT_EQ(Listing(Ne(shift)), kNe) << shift;
    for (const auto& [name, patches, expected] : kOdd16Bits)
        EXPECT_EQ(Listing(Patched(Ne(4), patches)), expected) << name;
}

const ByteList kFrame = Chunk("icon", Ico({kDib}));
const ByteList kTwice = Chunk("icon", Ico({kDib, kPng}));
const ByteList kHeader = Chunk("anih", Hex("24000000 02000000 02000000") + ByteList(24));
const ByteList kFrames = Chunk("LIST", Text("fram") + kFrame + kTwice);
const ByteList kSequence = Chunk("seq ", Hex("01000000 00000000 01000000"));
const ByteList kUnpadded = Text("INAM") + Hex("03000000") + Text("abc");

struct Animation {
    const char* name;
    ByteList chunks;
    const char* expected;
};

constexpr auto kAni = "ANI 1:3x2x24 2:3x2x24,1x1x32p";
const Animation kAnimations[] = {
    {"as it is", kHeader + kFrames, kAni},
    {"pad forgotten", kUnpadded + kHeader + kFrames, kAni},
    {"pad forgotten in a list", Chunk("LIST", Text("INFO") + kUnpadded) + kFrames, kAni},
    {"list in a list", Chunk("LIST", Text("abcd") + kFrames) + kHeader, kAni},
    {"list too long", Patched(kFrames, {{4, "FFFFFF7F"}}) + kHeader, kAni},
    {"list too short", Patched(kFrames, {{4, "02000000"}}) + kHeader, kAni},
    {"sequence behind", kFrames + kHeader + kSequence, "ANI 1:3x2x24,1x1x32p 2:3x2x24"},
    {"sequence alone", kFrames + kSequence, "ANI 1:3x2x24,1x1x32p 2:3x2x24 3:3x2x24,1x1x32p"},
    {"sequence without a step", Chunk("seq ", Hex("010000")) + kFrames, kAni},
    {"frame outside", Patched(kSequence, {{12, "02"}}) + kFrames, "ANI 1:3x2x24,1x1x32p"},
    {"more steps than frames", Patched(kHeader, {{16, "FF"}}) + kFrames, kAni},
    {"one step", Patched(kHeader, {{16, "01"}}) + kFrames, "ANI 1:3x2x24"},
    {"no steps", Patched(kHeader, {{16, "00"}}) + kFrames, kAni},
    {"second header", kHeader + Patched(kHeader, {{16, "01"}}) + kFrames, kAni},
    {"bare bitmap", Chunk("icon", kDib) + kFrame, "ANI 1:3x2x24 2:3x2x24"},
    {"bare bitmap without a mask",
     Chunk("icon", Patched({kDib.begin(), kDib.end() - 8}, {{8, "02"}})), "ANI 1:3x2x24"},
    {"bare bitmap of a bit", Chunk("icon", Patched(kDib, {{4, "02"}, {14, "01"}, {32, "02"}})),
     "ANI 1:2x2x1"},
    {"a frame cannot be read", kFrame + Chunk("icon", {}) + kFrame, "ANI 1:3x2x24"},
    {"a frame's only image is cut",
     kFrame + Chunk("icon", Ico({{kPng.begin(), kPng.end() - 20}})) + kFrame, "ANI 1:3x2x24"},
    {"no frames", kHeader, "none"},
};

TEST(Ani, ListsStepsOfOddAnimations) {
    for (const auto& [name, chunks, expected] : kAnimations)
        EXPECT_EQ(Listing(Text("RIFF") + Hex("00000000") + Text("ACON") + chunks), expected)
            << name;
}

TEST(IconSource, TellsFilesByTheirContent) {
    const ByteList three = Ico({kDib, kPng, kDib});
    EXPECT_EQ(Listing(three), "ICO 1:3x2x24 2:1x1x32p 3:3x2x24");
    EXPECT_EQ(Listing(Patched(three, {{2, "02"}})), "CUR 1:3x2x24 2:1x1x32p 3:3x2x24");
    EXPECT_EQ(Listing(Patched(three, {{34, "00"}})), "ICO 1:3x2x24 3:3x2x24");
    EXPECT_EQ(Listing(Patched(three, {{4, "FFFF"}})), "ICO 1:3x2x24 2:1x1x32p 3:3x2x24");
    EXPECT_EQ(Listing(kPng), "PNG 1:1x1x32p");
    for (const char* text : {"", "MZ", "A text.", "RIFF1234WAVE"})
        EXPECT_EQ(Listing(Text(text)), "none") << text;
}

// Bytes as they are stored, without what fills resources up; a PNG in a file ends before the next.
TEST(IconExport, WritesAllImagesAsStored) {
    const auto exported = [](const ByteList& file, std::size_t icon) {
        const auto source = Open(file);
        return ExportIcon(*source, icon).value();
    };
    ByteList expected = Ico({kDib, kPng});
    std::ranges::copy(Hex("01010000 0100 2000"), &expected[22]);
    EXPECT_EQ(exported(Pe(), 0), expected);
    EXPECT_EQ(exported(Ne(9), 0), Ico({kDib, kDib}));
    EXPECT_EQ(exported(Text("RIFF    ACON") + kSequence + kFrames, 0), expected);
    ByteList png(expected.begin() + 22, expected.begin() + 34);
    png = Hex("0000 0100 0100") + png + Hex("16000000") + kPng;
    EXPECT_EQ(exported(Ico({kDib, kPng, kDib}), 1), png);
    EXPECT_EQ(exported(kPng, 0), png);
    ByteList large(kPng.begin(), kPng.end() - 12);
    large = large + Hex("02000000 74455874");
    large.resize(large.size() + (std::size_t{32} << 20));
    const auto source = Open(large);
    EXPECT_EQ(source->Stored(source->Images(0)->at(0)).error().number, EFBIG);
}

}  // namespace
}  // namespace kestrel::formats
