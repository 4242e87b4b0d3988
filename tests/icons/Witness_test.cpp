#include <gtest/gtest.h>

#include <sstream>

#include "IconBytes.h"
#include "platform/icons/IconFile.h"

namespace kestrel::icons {
namespace {

using namespace test;

// What another program decoded: red, green, blue, alpha of every pixel (a PAM file).
struct Witness {
    int width = 0;
    int height = 0;
    ByteList pixels;
};

Witness ReadWitness(const std::string& path) {
    const ByteList bytes = ReadFile(path);
    std::istringstream stream(std::string(bytes.begin(), bytes.end()));
    Witness witness;
    for (std::string word; stream >> word && word != "ENDHDR";) {
        if (word == "WIDTH") stream >> witness.width;
        if (word == "HEIGHT") stream >> witness.height;
    }
    stream.get();
    witness.pixels.assign(std::istreambuf_iterator<char>(stream), {});
    return witness;
}

// The witness shows the middle of a larger image. Colours count only where a pixel is opaque.
void ExpectSamePixels(const IconImage& icon, const Witness& witness) {
    const auto size = static_cast<std::size_t>(witness.width * witness.height);
    ASSERT_GT(size, 0U);
    ASSERT_EQ(witness.pixels.size(), 4 * size);
    const int left = (icon.info.width - witness.width) / 2;
    const int top = (icon.info.height - witness.height) / 2;
    const std::uint8_t* expected = witness.pixels.data();
    for (int y = top; y < top + witness.height; ++y) {
        for (int x = left; x < left + witness.width; ++x, expected += 4) {
            const bool opaque = expected[3] >= 128;
            ASSERT_EQ(icon.mask.GetPixel(x, y), opaque ? gdi::kBlack : gdi::kWhite)
                << x << ' ' << y;
            if (!opaque) continue;
            ASSERT_EQ(icon.color.GetPixel(x, y), gdi::Rgb(expected[0], expected[1], expected[2]))
                << x << ' ' << y;
        }
    }
}

struct File {
    std::string name;
    std::vector<ImageInfo> images;
};

// Sizes and depths as icotool lists them.
TEST(Witness, AgreesOnEveryImage) {
    const std::vector<File> files = {
        {"bits1.ico", {{32, 32, 1}}},
        {"bits4.ico", {{16, 16, 4}}},
        {"bits8.ico", {{48, 48, 8}}},
        {"bits24.ico", {{32, 32, 24}}},
        {"bits32.ico", {{24, 24, 32}}},
        {"wide.ico", {{127, 64, 4}}},
        {"pointer.cur", {{24, 24, 24}}},
        {"png-named.ico", {{16, 16, 4}}},
        {"several.ico", {{16, 16, 4}, {48, 48, 8}, {32, 32, 32}, {256, 256, 8}}},
        {"magick.ico", {{16, 16, 32}, {48, 48, 32}, {256, 256, 32}}},
        {"png-kinds.ico",
         {{16, 16, 1},
          {48, 48, 8},
          {32, 32, 24},
          {16, 16, 4},
          {24, 24, 64},
          {24, 24, 16},
          {24, 24, 32},
          {16, 16, 24}}}};
    const std::string folder = TEST_DATA "/";
    for (const auto& [name, images] : files) {
        const ByteList bytes = ReadFile(folder + name);
        const auto entries = ListImages(bytes);
        ASSERT_TRUE(entries) << name;
        ASSERT_EQ(entries->size(), images.size()) << name;
        for (std::size_t i = 0; i < entries->size(); ++i) {
            const std::string witness =
                name.substr(0, name.find('.')) + '-' + std::to_string(i) + ".pam";
            SCOPED_TRACE(witness);
            ImageInfo info = entries->at(i).info;
            info.png = false;
            EXPECT_EQ(info, images[i]);
            const auto icon = DecodeImage(bytes, entries->at(i));
            ASSERT_TRUE(icon);
            ExpectSamePixels(*icon, ReadWitness(folder + witness));
        }
    }
}

}  // namespace
}  // namespace kestrel::icons
