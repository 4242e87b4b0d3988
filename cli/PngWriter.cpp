#include "cli/PngWriter.h"

#include <png.h>

#include <new>

namespace kestrel::cli {

namespace {

constexpr std::uint8_t kOpaque = 255;

std::vector<std::uint8_t> Samples(const document::IconDocument& icon) {
    std::vector<std::uint8_t> samples;
    samples.reserve(std::size_t{4} * document::kIconSize * document::kIconSize);
    for (int y = 0; y < document::kIconSize; ++y) {
        for (int x = 0; x < document::kIconSize; ++x) {
            const bool transparent = icon.IsTransparent(x, y);
            const gdi::COLORREF color = transparent ? gdi::kBlack : icon.PicImage.GetPixel(x, y);
            const std::uint8_t alpha = transparent ? std::uint8_t{0} : kOpaque;
            samples.insert(samples.end(),
                           {gdi::Red(color), gdi::Green(color), gdi::Blue(color), alpha});
        }
    }
    return samples;
}

}  // namespace

std::vector<std::uint8_t> PngBytes(const document::IconDocument& icon) {
    const std::vector<std::uint8_t> samples = Samples(icon);
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = document::kIconSize;
    image.height = document::kIconSize;
    image.format = PNG_FORMAT_RGBA;
    // Of so small a picture the fast way is hardly larger.
    image.flags = PNG_IMAGE_FLAG_FAST;
    png_alloc_size_t size = 2 * samples.size();
    std::vector<std::uint8_t> bytes(size);
    // Out of memory is all that can go wrong with a picture of known size.
    if (png_image_write_to_memory(&image, bytes.data(), &size, 0, samples.data(), 0, nullptr) == 0)
        throw std::bad_alloc();
    bytes.resize(size);
    return bytes;
}

}  // namespace kestrel::cli
