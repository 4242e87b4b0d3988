#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>

#include "formats/LibraryWriter.h"
#include "tests/formats/SmallSources.h"

namespace kestrel::formats {
namespace {

using namespace test;

// Small ones of which every byte matters.
const ByteList kSmall[] = {Pe(), Ne(4), Ico({kDib, kPng, kDib}),
                           Text("RIFF    ACON") +
                               Chunk("LIST", Text("fram") + Chunk("icon", Ico({kDib}))) +
                               Chunk("seq ", Hex("00000000 00000000"))};

// Nothing else may happen than that it is refused or read, least of all a fault that a sanitizer
// sees.
void ExpectSound(const ByteList& file) {
    const auto icon = ReadBestImage(file);
    ASSERT_TRUE(icon || icon.error().number >= kInvalidPicture);
    ASSERT_TRUE(!icon || std::ranges::max(icon->planes.image.Pixels()) <= gdi::kWhite);
    const auto source = Open(file);
    const auto images = ListImages(file);
    const auto whole = source && images ? source->Whole(*images).value_or(std::vector<ImageEntry>{})
                                        : std::vector<ImageEntry>{};
    ASSERT_EQ(whole.empty(), !icon) << "told to be readable exactly when it is";
    for (const ImageEntry& image : whole)
        ASSERT_TRUE(DecodeImage(file, image));
    if (!icon) static_cast<void>(Listing(file));
}

// Of the processor, which other programs may keep busy.
double SecondsToRead(const ByteList& file) {
    const std::clock_t start = std::clock();
    ExpectSound(file);
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

// Every byte of the first `headers` is changed; of those after them a sample is.
double LongestOfDamaged(ByteList file, std::size_t headers) {
    constexpr std::size_t kSample = 151;
    double longest = 0;
    for (std::size_t i = 0; i < file.size(); i += i < headers ? 1 : kSample) {
        SCOPED_TRACE(i);
        longest = std::max(longest, SecondsToRead({file.data(), file.data() + i}));
        const std::uint8_t old = file[i];
        for (const int changed : {0x00, 0xFF, old ^ 0x81}) {
            file[i] = static_cast<std::uint8_t>(changed);
            longest = std::max(longest, SecondsToRead(file));
        }
        file[i] = old;
    }
    return longest;
}

TEST(BadSources, EveryCutAndEveryChangedByteIsRefusedOrReadSoon) {
    for (const ByteList& file : kSmall)
        EXPECT_LT(LongestOfDamaged(file, file.size()), 1);
    for (const std::filesystem::path& path : IconFiles())
        EXPECT_LT(LongestOfDamaged(ReadFile(path), 90), 1) << path;
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
    EXPECT_LT(SecondsToRead(OverlappingGroups()), 1);
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
