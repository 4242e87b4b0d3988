#include <gtest/gtest.h>

#include <algorithm>

#include "IconBytes.h"
#include "platform/icons/IconFile.h"

namespace kestrel::icons {
namespace {

using namespace test;

// What every decoded image promises: planes of one size, a mask of black and white, 24-bit colours.
bool RefusedOrSound(const ByteList& file) {
    const auto icon = ReadBestImage(file);
    if (!icon) return icon.error().number == kInvalidPicture;
    const auto mask = icon->mask.Pixels();
    return gdi::Rect{0, 0, icon->info.width, icon->info.height} == icon->mask.Bounds() &&
           icon->mask.Bounds() == icon->color.Bounds() &&
           std::ranges::count(mask, gdi::kBlack) + std::ranges::count(mask, gdi::kWhite) ==
               std::ssize(mask) &&
           std::ranges::max(icon->color.Pixels()) <= gdi::kWhite;
}

TEST(BadInput, IsRefused) {
    const std::string png = "89504E470D0A1A0A 0000000D 49484452";
    for (const std::string& input :
         {std::string(), std::string("0000 0100 0100"), std::string(9999, 'A'),
          std::string(9999, '0'), std::string(9999, 'F'), png, png + "FFFFFFFF FFFFFFFF 0806000000",
          png + "00000001 00000000 0806000000", png + "00000001 00000001 0306000000",
          png + "00000001 00000001 0809000000"}) {
        EXPECT_FALSE(ReadBestImage(Hex(input))) << input.substr(0, 80);
    }
}

TEST(BadInput, TruncationsAndChangedBytesAreRefusedOrRead) {
    // Every byte of the headers matters; in the pixels after them a sample does.
    constexpr std::size_t kHeaders = 90;
    constexpr std::size_t kSample = 151;
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TEST_DATA)) {
        if (entry.path().extension() != ".ico" && entry.path().extension() != ".cur") continue;
        ++files;
        ByteList file = ReadFile(entry.path());
        for (std::size_t i = 0; i < file.size(); i += i < kHeaders ? 1 : kSample) {
            ASSERT_TRUE(RefusedOrSound({file.begin(), file.begin() + static_cast<long>(i)}))
                << entry.path() << i;
            const std::uint8_t old = file[i];
            for (const int changed : {0x00, 0xFF, old ^ 0x80}) {
                if (changed == old) continue;
                file[i] = static_cast<std::uint8_t>(changed);
                ASSERT_TRUE(RefusedOrSound(file)) << entry.path() << i << " = " << changed;
            }
            file[i] = old;
        }
    }
    EXPECT_GE(files, 11);
}

}  // namespace
}  // namespace kestrel::icons
