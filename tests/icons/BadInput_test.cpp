#include <gtest/gtest.h>

#include <algorithm>

#include "IconBytes.h"
#include "platform/icons/IconFile.h"

namespace kestrel::icons {
namespace {

using namespace test;

// Every byte of the headers matters; in the pixels after them a sample does.
constexpr std::size_t kHeaders = 110;
constexpr std::size_t kSample = 31;
std::size_t Step(std::size_t position) {
    return position < kHeaders ? 1 : kSample;
}

// What every decoded image promises: planes of one size, a mask of black and white, 24-bit colours.
bool IsSound(const IconImage& icon) {
    const auto mask = icon.mask.Pixels();
    const auto color = icon.color.Pixels();
    return icon.info.width == icon.mask.Width() && icon.info.height == icon.mask.Height() &&
           icon.mask.Bounds() == icon.color.Bounds() &&
           std::ranges::all_of(
               mask, [](auto pixel) { return pixel == gdi::kBlack || pixel == gdi::kWhite; }) &&
           std::ranges::all_of(color, [](auto pixel) { return pixel <= gdi::kWhite; });
}

bool RefusedOrSound(const ByteList& file) {
    const auto icon = ReadBestImage(file);
    return icon ? IsSound(*icon) : icon.error().number == kInvalidPicture;
}

std::vector<std::filesystem::path> IconFiles() {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(TEST_DATA))
        if (entry.path().extension() == ".ico" || entry.path().extension() == ".cur")
            paths.push_back(entry.path());
    return paths;
}

TEST(BadInput, IsRefused) {
    const std::string png = "89504E470D0A1A0A 0000000D 49484452";
    const ByteList inputs[] = {{},
                               Hex("00"),
                               Hex("0000 0100 0100"),
                               ByteList(5000, 'a'),
                               ByteList(5000, 0x00),
                               ByteList(5000, 0xFF),
                               Hex(png),
                               Hex(png + "FFFFFFFF FFFFFFFF 0806000000"),
                               Hex(png + "00000001 00000000 0806000000"),
                               Hex(png + "00000001 00000001 0306000000"),
                               Hex(png + "00000001 00000001 0809000000")};
    for (const ByteList& input : inputs) {
        SCOPED_TRACE(input.size());
        EXPECT_FALSE(ListImages(input));
        EXPECT_FALSE(ReadBestImage(input));
    }
}

TEST(BadInput, TruncationsAreRefusedOrRead) {
    ASSERT_GE(IconFiles().size(), 10U);
    for (const auto& path : IconFiles()) {
        SCOPED_TRACE(path);
        const ByteList file = ReadFile(path);
        for (std::size_t length = 0; length <= file.size(); length += Step(length))
            ASSERT_TRUE(RefusedOrSound({file.begin(), file.begin() + static_cast<long>(length)}))
                << length;
    }
}

TEST(BadInput, ChangedBytesAreRefusedOrRead) {
    for (const auto& path : IconFiles()) {
        SCOPED_TRACE(path);
        ByteList file = ReadFile(path);
        for (std::size_t i = 0; i < file.size(); i += Step(i)) {
            const std::uint8_t old = file[i];
            for (const int changed : {0x00, 0xFF, old ^ 0x80}) {
                file[i] = static_cast<std::uint8_t>(changed);
                ASSERT_TRUE(RefusedOrSound(file)) << i << " = " << changed;
            }
            file[i] = old;
        }
    }
}

}  // namespace
}  // namespace kestrel::icons
