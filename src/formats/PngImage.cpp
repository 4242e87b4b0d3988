#include "formats/PngImage.h"

#include <png.h>

#include <algorithm>
#include <array>
#include <bit>
#include <csetjmp>
#include <vector>

#include "formats/IconPixels.h"

namespace kestrel::formats {
namespace {

constexpr std::array<std::uint8_t, 8> kSignature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr std::uint64_t kFirstChunk = kSignature.size();
constexpr std::uint64_t kHeader = kFirstChunk + 8;
constexpr std::uint32_t kHeaderLength = 13;
constexpr std::uint32_t kHeaderName = 0x49484452;  // "IHDR"
constexpr png_alloc_size_t kMaxChunkMemory = 1U << 20;

// Samples a pixel by colour type (grey, -, RGB, palette, grey + alpha, -, RGBA) and the bits that
// each may have, as a set of powers of two.
struct ColorType {
    unsigned samples;
    unsigned depths;
};
constexpr std::array<ColorType, 7> kColorTypes{{{1, 1 | 2 | 4 | 8 | 16},
                                                {0, 0},
                                                {3, 8 | 16},
                                                {1, 1 | 2 | 4 | 8},
                                                {2, 8 | 16},
                                                {0, 0},
                                                {4, 8 | 16}}};

// What libpng's callbacks and the frame that catches its jumps share. Nothing in it has to be
// unwound by a jump: the owner frees it afterwards.
struct PngDecoder {
    explicit PngDecoder(Bytes image);
    ~PngDecoder() { png_destroy_read_struct(&png, &info, nullptr); }
    PngDecoder(const PngDecoder&) = delete;
    PngDecoder& operator=(const PngDecoder&) = delete;

    png_structp png = nullptr;
    png_infop info = nullptr;
    Bytes unread;
    std::vector<png_byte> pixels;  // red, green, blue, alpha
    std::vector<png_bytep> rows;
};

[[noreturn]] void OnError(png_structp png, png_const_charp) {
    png_longjmp(png, 1);
}
void OnWarning(png_structp, png_const_charp) {}

void ReadBytes(png_structp png, png_bytep out, std::size_t count) {
    auto& unread = static_cast<PngDecoder*>(png_get_io_ptr(png))->unread;
    if (count > unread.size()) png_error(png, "cut");
    std::copy_n(unread.begin(), count, out);
    unread = unread.subspan(count);
}

PngDecoder::PngDecoder(Bytes image) : unread(image) {
    png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, OnError, OnWarning);
    if (png == nullptr) return;
    info = png_create_info_struct(png);
    png_set_read_fn(png, this, ReadBytes);
}

// Everything in libpng that may jump, in the order it asks for. The image's size must be known and
// its buffers must be there, so that nothing is allocated on our side of a jump.
bool RunDecoder(PngDecoder& decoder, const ImageInfo& size) {
    png_structp png = decoder.png;
    if (setjmp(png_jmpbuf(png)) != 0) return false;
    png_set_user_limits(png, static_cast<png_uint_32>(size.width),
                        static_cast<png_uint_32>(size.height));
    png_set_chunk_malloc_max(png, kMaxChunkMemory);
    png_set_keep_unknown_chunks(png, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
    png_read_info(png, decoder.info);
    png_set_expand(png);
    png_set_scale_16(png);
    png_set_gray_to_rgb(png);
    png_set_add_alpha(png, 0xFF, PNG_FILLER_AFTER);
    png_set_interlace_handling(png);
    png_read_update_info(png, decoder.info);
    if (png_get_rowbytes(png, decoder.info) * decoder.rows.size() != decoder.pixels.size() ||
        png_get_image_height(png, decoder.info) != decoder.rows.size())
        return false;
    png_read_image(png, decoder.rows.data());
    return true;
}

}  // namespace

bool IsPng(Bytes image) {
    return image.size() >= kSignature.size() &&
           std::equal(kSignature.begin(), kSignature.end(), image.begin());
}

std::optional<ImageInfo> ReadPngInfo(Bytes image, int longestSide) {
    const ByteReader reader(image);
    if (!IsPng(image) || !reader.Has(kHeader, kHeaderLength) ||
        reader.BigEndianU32(kFirstChunk) != kHeaderLength ||
        reader.BigEndianU32(kFirstChunk + 4) != kHeaderName)
        return std::nullopt;
    const std::uint32_t width = reader.BigEndianU32(kHeader);
    const std::uint32_t height = reader.BigEndianU32(kHeader + 4);
    const unsigned depth = reader.U8(kHeader + 8);
    const unsigned type = reader.U8(kHeader + 9);
    const auto most = static_cast<std::uint32_t>(longestSide);
    if (width < 1 || width > most || height < 1 || height > most) return std::nullopt;
    if (type >= kColorTypes.size() || !std::has_single_bit(depth) ||
        (kColorTypes[type].depths & depth) == 0)
        return std::nullopt;
    return ImageInfo{static_cast<int>(width), static_cast<int>(height),
                     static_cast<int>(kColorTypes[type].samples * depth), true};
}

std::optional<IconImage> DecodePng(Bytes image, const ImageInfo& info) {
    PngDecoder decoder(image);
    if (decoder.png == nullptr || decoder.info == nullptr) return std::nullopt;
    const std::size_t stride = 4 * static_cast<std::size_t>(info.width);
    decoder.pixels.resize(stride * static_cast<std::size_t>(info.height));
    for (std::size_t start = 0; start < decoder.pixels.size(); start += stride)
        decoder.rows.push_back(&decoder.pixels[start]);
    if (!RunDecoder(decoder, info)) return std::nullopt;

    IconImage icon = EmptyImage(info);
    const png_byte* pixel = decoder.pixels.data();
    for (int y = 0; y < info.height; ++y) {
        for (gdi::COLORREF& out : icon.planes.image.Row(y)) {
            out = gdi::Rgb(pixel[0], pixel[1], pixel[2]) | std::uint32_t{pixel[3]} << 24;
            pixel += 4;
        }
    }
    SplitAlpha(icon);
    return icon;
}

}  // namespace kestrel::formats
