#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>

#include "formats/LibraryWriter.h"
#include "tests/formats/SmallSources.h"

namespace kestrel::formats {
namespace {

using namespace test;

const std::pair<const char*, ByteList> kSamples[] = {
    {"PE", Pe()},
    {"NE", Ne(4)},
    {"ANI", Text("RIFF    ACON") + Chunk("LIST", Text("fram") + Chunk("icon", Ico({kDib}))) +
                Chunk("seq ", Hex("00000000 00000000"))},
    {"ICO", Ico({kDib, kPng, kDib})}};

// Of the processor, which other programs may keep busy.
double SecondsToList(const ByteList& file) {
    const std::clock_t start = std::clock();
    static_cast<void>(Listing(file));
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

TEST(BadSources, EveryCutAndEveryChangedByteEndsSoon) {
    double longest = 0;
    for (const auto& [name, sample] : kSamples) {
        ByteList file = sample;
        for (std::size_t i = 0; i < file.size(); ++i) {
            longest = std::max(longest,
                               SecondsToList({file.begin(), file.begin() + static_cast<long>(i)}));
            for (const int changed : {0x00, 0xFF, sample[i] ^ 0x80, sample[i] + 1}) {
                file[i] = static_cast<std::uint8_t>(changed);
                longest = std::max(longest, SecondsToList(file));
            }
            file[i] = sample[i];
        }
    }
    EXPECT_LT(longest, 1);
}

// 65,535 groups of as many images, all at one place.
ByteList OverlappingGroups() {
    ByteList file = Patched(Ne(4), {{4, "FFFF"}, {0x82, "0E80 FFFF"}});
    file.resize(0x8A);
    const ByteList entry = Hex("0000 FFFF 0000 0180 00000000");
    for (int i = 0; i < 65535; ++i)
        file.insert(file.end(), entry.begin(), entry.end());
    return file;
}

TEST(BadSources, CountsOfManyThousandsEndSoon) {
    EXPECT_LT(SecondsToList(OverlappingGroups()), 1);
    const LibraryIcon large{"", std::vector(300, ImageBytes{{3, 2, 24, false}, kDib})};
    for (const ByteList& file : {LibraryBytes({&large, 1}).value(),
                                 Text("RIFF    ACON") + Chunk("icon", Ico(std::vector(300, kDib)))})
        EXPECT_EQ(Open(file)->Images(0)->size(), 256U);
    const std::vector<LibraryIcon> icons(33000, {"", {{{3, 2, 24, false}, kDib}}});
    const auto source = Open(LibraryBytes(icons).value());
    ASSERT_EQ(source->count, 32767U);
    EXPECT_EQ(source->NameOf(32766), "32767");
    EXPECT_TRUE(source->Icon(32766));
}

}  // namespace
}  // namespace kestrel::formats
