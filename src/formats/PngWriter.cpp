#include "formats/PngWriter.h"

#include <png.h>

#include <algorithm>
#include <csetjmp>
#include <new>
#include <span>
#include <utility>

#include "formats/IconPixels.h"

namespace kestrel::formats {

namespace {

using ByteList = std::vector<std::uint8_t>;
// What zlib may use beside its window; its usual 8 costs more time than an icon itself.
constexpr int kCompressionMemory = 4;
constexpr std::size_t kBytesAPixel = 4;
// More than all chunks but the pixels' take, and than these grow where they cannot be compressed.
constexpr std::size_t kMostOverhead = 4096;

// What libpng's callbacks and the frame that catches its jumps share. Nothing in it has to be
// unwound by a jump: the owner frees it afterwards.
struct PngEncoder {
    explicit PngEncoder(const gdi::Surface& pixels);
    ~PngEncoder() { png_destroy_write_struct(&png, &info); }
    PngEncoder(const PngEncoder&) = delete;
    PngEncoder& operator=(const PngEncoder&) = delete;

    png_structp png = nullptr;
    png_infop info = nullptr;
    gdi::Size size;
    ByteList samples;  // red, green, blue, alpha
    std::vector<png_bytep> rows;
    // As much as the file can take at most.
    ByteList bytes;
    std::span<std::uint8_t> unwritten;
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

PngEncoder::PngEncoder(const gdi::Surface& pixels)
    : size{pixels.Width(), pixels.Height()},
      samples(kBytesAPixel * pixels.Pixels().size()),
      bytes(samples.size() + samples.size() / 8 + kMostOverhead),
      unwritten(bytes) {
    png_bytep sample = samples.data();
    for (int y = 0; y < size.height; ++y) {
        rows.push_back(sample);
        for (const gdi::COLORREF pixel : pixels.Row(y)) {
            *sample++ = gdi::Red(pixel);
            *sample++ = gdi::Green(pixel);
            *sample++ = gdi::Blue(pixel);
            *sample++ = static_cast<png_byte>(pixel >> 24);
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
    png_set_IHDR(png, encoder.info, static_cast<png_uint_32>(encoder.size.width),
                 static_cast<png_uint_32>(encoder.size.height), 8, PNG_COLOR_TYPE_RGB_ALPHA,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, encoder.info);
    png_write_image(png, encoder.rows.data());
    png_write_end(png, nullptr);
    return true;
}

}  // namespace

ByteList PngBytes(const gdi::IconPlanes& icon) {
    gdi::IconPlanes joined = icon;
    JoinAlpha(joined);
    return PngBytes(joined.image);
}

ByteList PngBytes(const gdi::Surface& pixels) {
    PngEncoder encoder(pixels);
    // Memory is all that a picture of known size can lack.
    if (!RunEncoder(encoder)) throw std::bad_alloc();
    encoder.bytes.resize(encoder.bytes.size() - encoder.unwritten.size());
    return std::move(encoder.bytes);
}

}  // namespace kestrel::formats
