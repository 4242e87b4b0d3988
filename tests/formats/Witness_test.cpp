#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "formats/IconFile.h"

namespace kestrel::formats {
namespace {

using ByteList = std::vector<std::uint8_t>;

ByteList ReadFile(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::filesystem::path> IconFiles() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(TEST_DATA))
        if (entry.path().extension() == ".ico" || entry.path().extension() == ".cur")
            files.push_back(entry.path());
    return files;
}

// Compares with what another program decoded: a PAM file of red, green, blue and alpha. It shows
// the middle of a 256 x 256 image. Colours count only where a pixel is opaque.
void ExpectSamePixels(const IconImage& icon, const ByteList& pam) {
    const std::string text(pam.begin(), pam.end());
    int width = 0, height = 0;
    ASSERT_EQ(std::sscanf(text.c_str(), "P7 WIDTH %d HEIGHT %d", &width, &height), 2);
    EXPECT_TRUE(icon.info.width == 256 ||
                icon.planes.mask.Bounds() == (gdi::Rect{0, 0, width, height}));
    const std::size_t start = text.find("ENDHDR\n") + 7;
    ASSERT_EQ(pam.size() - start, static_cast<std::size_t>(4 * width * height));
    const std::uint8_t* expected = &pam[start];
    for (int i = 0; i < width * height; ++i, expected += 4) {
        const int x = (icon.info.width - width) / 2 + i % width;
        const int y = (icon.info.height - height) / 2 + i / width;
        const bool opaque = expected[3] >= 128;
        const auto color = gdi::Rgb(expected[0], expected[1], expected[2]);
        ASSERT_EQ(icon.planes.mask.GetPixel(x, y), opaque ? gdi::kBlack : gdi::kWhite)
            << x << ' ' << y;
        ASSERT_TRUE(!opaque || icon.planes.image.GetPixel(x, y) == color) << x << ' ' << y;
    }
}

TEST(Witness, AgreesOnEveryImage) {
    for (const std::filesystem::path& path : IconFiles()) {
        if (path.stem().string().starts_with("broken-")) continue;
        const ByteList file = ReadFile(path);
        const auto images = ListImages(file);
        ASSERT_TRUE(images) << path;
        for (std::size_t i = 0; i < images->size(); ++i) {
            const auto icon = DecodeImage(file, images->at(i));
            ASSERT_TRUE(icon) << path << i;
            const std::string witness = path.stem().string() + "-" + std::to_string(i) + ".pam";
            SCOPED_TRACE(witness);
            ExpectSamePixels(*icon, ReadFile(path.parent_path() / witness));
            const auto small = DecodeImage(file, images->at(i), gdi::Size{13, 35});
            EXPECT_TRUE(small && small->planes.SamePixels(gdi::Stretched(icon->planes, 13, 35)));
        }
        const std::string beyond = path.stem().string() + "-" + std::to_string(images->size());
        EXPECT_FALSE(exists(path.parent_path() / (beyond + ".pam"))) << beyond << " is not listed";
    }
}

// Nothing else may happen, least of all a fault that a sanitizer sees.
TEST(BadInput, TruncationsAndChangedBytesAreRefusedOrRead) {
    const auto expectSound = [](const ByteList& file) {
        const auto icon = ReadBestImage(file);
        ASSERT_TRUE(icon || icon.error().number >= kInvalidPicture);
        const auto whole = ListWholeImages(file);
        ASSERT_EQ(whole.has_value(), icon.has_value()) << "told to be readable exactly when it is";
        for (std::size_t i = 0; whole && i < whole->size(); ++i)
            ASSERT_TRUE(DecodeImage(file, whole->at(i)));
        ASSERT_TRUE(!icon || std::ranges::max(icon->planes.image.Pixels()) <= gdi::kWhite);
    };
    // Every byte of the headers matters; in the pixels after them a sample does.
    constexpr std::size_t kHeaders = 90;
    constexpr std::size_t kSample = 151;
    for (const std::filesystem::path& path : IconFiles()) {
        ByteList file = ReadFile(path);
        for (std::size_t i = 0; i < file.size(); i += i < kHeaders ? 1 : kSample) {
            SCOPED_TRACE(path.string() + std::to_string(i));
            expectSound({file.data(), file.data() + i});
            const std::uint8_t old = file[i];
            for (const int changed : {0x00, 0xFF, old ^ 0x80}) {
                file[i] = static_cast<std::uint8_t>(changed);
                expectSound(file);
            }
            file[i] = old;
        }
    }
}

}  // namespace
}  // namespace kestrel::formats
