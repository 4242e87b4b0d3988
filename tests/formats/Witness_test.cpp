#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "formats/IconFile.h"
#include "tests/formats/SmallSources.h"

namespace kestrel::formats {
namespace {

using test::ByteList;
using test::Open;

ByteList ReadFile(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::filesystem::path> IconFiles() {
    std::vector<std::filesystem::path> files;
    const std::set<std::string> kinds{".ani", ".cur", ".dll", ".icl", ".ico"};
    for (const auto& entry : std::filesystem::directory_iterator(TEST_DATA))
        if (kinds.contains(entry.path().extension())) files.push_back(entry.path());
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
        const auto source = Open(file);
        ASSERT_TRUE(source) << path;
        std::size_t number = 0;
        const auto witness = [&] {
            return path.parent_path() /
                   (path.stem().string() + "-" + std::to_string(number) + ".pam");
        };
        for (std::size_t icon = 0; icon < source->count; ++icon) {
            const auto images = source->Images(icon);
            for (const ImageEntry& entry : *images) {
                SCOPED_TRACE(witness());
                const auto image = source->Decode(entry);
                ExpectSamePixels(image.value(), ReadFile(witness()));
                const auto small = source->Decode(entry, gdi::Size{13, 35});
                EXPECT_TRUE(small &&
                            small->planes.SamePixels(gdi::Stretched(image->planes, 13, 35)));
                ++number;
            }
        }
        EXPECT_FALSE(exists(witness())) << witness() << " is not listed";
    }
}

Result<IconImage> FirstIcon(const ByteList& file) {
    const auto source = Open(file);
    if (!source) return tl::unexpected(source.error());
    return source->Icon(0);
}

// Those of an icon file.
std::vector<ImageEntry> WholeImages(const ByteList& file) {
    const auto source = Open(file);
    const auto images = ListImages(file);
    if (!source || !images) return {};
    return source->Whole(*images).value_or(std::vector<ImageEntry>{});
}

// Nothing else may happen, least of all a fault that a sanitizer sees.
TEST(BadInput, TruncationsAndChangedBytesAreRefusedOrRead) {
    const auto expectSound = [](const ByteList& file) {
        const auto icon = ReadBestImage(file);
        ASSERT_TRUE(icon || icon.error().number >= kInvalidPicture);
        const auto whole = WholeImages(file);
        ASSERT_EQ(whole.empty(), !icon) << "told to be readable exactly when it is";
        for (const ImageEntry& image : whole)
            ASSERT_TRUE(DecodeImage(file, image));
        ASSERT_TRUE(!icon || std::ranges::max(icon->planes.image.Pixels()) <= gdi::kWhite);
        // Programs and animations are opened as sources only.
        const auto first = icon ? icon : FirstIcon(file);
        ASSERT_TRUE(first || first.error().number > kInvalidPicture);
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
