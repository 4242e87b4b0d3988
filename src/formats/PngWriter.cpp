#include "formats/PngWriter.h"

#include <png.h>

#include <algorithm>
#include <array>
#include <csetjmp>
#include <new>
#include <span>
#include <utility>

namespace kestrel::formats {

namespace {

using Bytes = std::vector<std::uint8_t>;
using gdi::kIconSize;

constexpr std::size_t kStride = std::size_t{4} * kIconSize;
constexpr std::uint8_t kOpaque = 255;
// What zlib may use beside its window; its usual 8 costs more time than the picture itself.
constexpr int kCompressionMemory = 4;

// What libpng's callbacks and the frame that catches its jumps share. Nothing in it has to be
// unwound by a jump: the owner frees it afterwards.
struct PngEncoder {
    explicit PngEncoder(const gdi::IconPlanes& icon);
    ~PngEncoder() { png_destroy_write_struct(&png, &info); }
    PngEncoder(const PngEncoder&) = delete;
    PngEncoder& operator=(const PngEncoder&) = delete;

    png_structp png = nullptr;
    png_infop info = nullptr;
    std::array<png_byte, kStride * kIconSize> samples{};  // red, green, blue, alpha
    std::array<png_bytep, kIconSize> rows{};
    // More than the file can take: even what cannot be compressed grows only a little.
    Bytes bytes = Bytes(2 * kStride * kIconSize);
    std::span<std::uint8_t> unwritten = bytes;
};

[[noreturn]] void OnError(png_structp png, png_const_charp) {
    png_longjmp(png, 1);
}
void OnWarning(png_structp, png_const_charp) {}

void WriteBytes(png_structp png, png_bytep data, std::size_t count) {
    auto& unwritten = static_cast<PngEncoder*>(png_get_io_ptr(png))->unwritten;
    if (count > unwritten.size()) png_error(png, "full");
    std::copy_n(data, count, unwritten.begin());
    unwritten = unwritten.subspan(count);
}
void FlushNothing(png_structp) {}

PngEncoder::PngEncoder(const gdi::IconPlanes& icon) {
    png_bytep sample = samples.data();
    for (int y = 0; y < kIconSize; ++y) {
        rows[static_cast<std::size_t>(y)] = sample;
        for (int x = 0; x < kIconSize; ++x) {
            const bool transparent = icon.IsTransparent(x, y);
            const gdi::COLORREF color = transparent ? gdi::kBlack : icon.image.GetPixel(x, y);
            *sample++ = gdi::Red(color);
            *sample++ = gdi::Green(color);
            *sample++ = gdi::Blue(color);
            *sample++ = transparent ? png_byte{0} : kOpaque;
        }
    }
    png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, OnError, OnWarning);
    if (png == nullptr) return;
    info = png_create_info_struct(png);
    png_set_write_fn(png, this, WriteBytes, FlushNothing);
}

// Everything in libpng that may jump.
bool RunEncoder(PngEncoder& encoder) {
    png_structp png = encoder.png;
    if (png == nullptr || encoder.info == nullptr || setjmp(png_jmpbuf(png)) != 0) return false;
    png_set_compression_mem_level(png, kCompressionMemory);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_IHDR(png, encoder.info, kIconSize, kIconSize, 8, PNG_COLOR_TYPE_RGB_ALPHA,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, encoder.info);
    png_write_image(png, encoder.rows.data());
    png_write_end(png, nullptr);
    return true;
}

}  // namespace

Bytes PngBytes(const gdi::IconPlanes& icon) {
    PngEncoder encoder(icon);
    // Memory is all that a picture of known size can lack.
    if (!RunEncoder(encoder)) throw std::bad_alloc();
    encoder.bytes.resize(encoder.bytes.size() - encoder.unwritten.size());
    return std::move(encoder.bytes);
}

}  // namespace kestrel::formats
