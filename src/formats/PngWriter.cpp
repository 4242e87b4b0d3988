#include "formats/PngWriter.h"

#include <png.h>

#include <algorithm>
#include <array>
#include <csetjmp>
#include <new>
#include <optional>
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

// The colours of a picture that has few, in the order of their first pixels.
class FewColors {
  public:
    // The colour's number; none for a colour too many.
    std::optional<std::uint8_t> IndexOf(gdi::COLORREF color) {
        std::size_t slot = (color * 2654435761U) >> (32 - kSlotBits);
        for (; slots_[slot] != 0; slot = (slot + 1) % kSlots) {
            if (colors_[slots_[slot] - 1U] == color)
                return static_cast<std::uint8_t>(slots_[slot] - 1);
        }
        if (colors_.size() == PNG_MAX_PALETTE_LENGTH) return std::nullopt;
        colors_.push_back(color);
        slots_[slot] = static_cast<std::uint16_t>(colors_.size());
        return static_cast<std::uint8_t>(colors_.size() - 1);
    }
    const std::vector<gdi::COLORREF>& Colors() const { return colors_; }

  private:
    static constexpr unsigned kSlotBits = 10;
    static constexpr std::size_t kSlots = 1U << kSlotBits;

    std::array<std::uint16_t, kSlots> slots_{};  // number + 1; 0 where there is none
    std::vector<gdi::COLORREF> colors_;
};

png_byte AlphaByte(gdi::COLORREF pixel) {
    return static_cast<png_byte>(pixel >> 24);
}

// What libpng's callbacks and the frame that catches its jumps share. Nothing in it has to be
// unwound by a jump: the owner frees it afterwards.
struct PngEncoder {
    PngEncoder(const gdi::Surface& pixels, PngPixels stored);
    ~PngEncoder() { png_destroy_write_struct(&png, &info); }
    PngEncoder(const PngEncoder&) = delete;
    PngEncoder& operator=(const PngEncoder&) = delete;

    bool FillIndexes(const gdi::Surface& pixels);
    void FillSamples(const gdi::Surface& pixels);

    png_structp png = nullptr;
    png_infop info = nullptr;
    gdi::Size size;
    // The numbers of colours of the palette or, where that is empty, red, green, blue and alpha.
    ByteList samples;
    std::vector<png_color> palette;
    ByteList alphas;
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

PngEncoder::PngEncoder(const gdi::Surface& pixels, PngPixels stored)
    : size{pixels.Width(), pixels.Height()} {
    if (stored == PngPixels::Direct || !FillIndexes(pixels)) FillSamples(pixels);
    const std::size_t pitch = samples.size() / static_cast<std::size_t>(size.height);
    for (int y = 0; y < size.height; ++y)
        rows.push_back(&samples[static_cast<std::size_t>(y) * pitch]);
    bytes.resize(samples.size() + samples.size() / 8 + kMostOverhead);
    unwritten = bytes;
    png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, OnError, OnWarning);
    if (png == nullptr) return;
    info = png_create_info_struct(png);
    png_set_write_fn(png, this, WriteBytes, FlushNothing);
}

bool PngEncoder::FillIndexes(const gdi::Surface& pixels) {
    FewColors found;
    samples.reserve(pixels.Pixels().size());
    for (const gdi::COLORREF pixel : pixels.Pixels()) {
        const auto index = found.IndexOf(pixel);
        if (!index) return false;
        samples.push_back(*index);
    }
    for (const gdi::COLORREF color : found.Colors()) {
        palette.push_back({gdi::Red(color), gdi::Green(color), gdi::Blue(color)});
        alphas.push_back(AlphaByte(color));
    }
    // Those at the end that are opaque need not be told.
    while (!alphas.empty() && alphas.back() == UINT8_MAX)
        alphas.pop_back();
    return true;
}

void PngEncoder::FillSamples(const gdi::Surface& pixels) {
    samples.resize(kBytesAPixel * pixels.Pixels().size());
    png_bytep sample = samples.data();
    for (const gdi::COLORREF pixel : pixels.Pixels()) {
        *sample++ = gdi::Red(pixel);
        *sample++ = gdi::Green(pixel);
        *sample++ = gdi::Blue(pixel);
        *sample++ = AlphaByte(pixel);
    }
}

// Everything in libpng that may jump.
bool RunEncoder(PngEncoder& encoder) {
    png_structp png = encoder.png;
    if (png == nullptr || encoder.info == nullptr || setjmp(png_jmpbuf(png)) != 0) return false;
    png_set_compression_mem_level(png, kCompressionMemory);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_IHDR(png, encoder.info, static_cast<png_uint_32>(encoder.size.width),
                 static_cast<png_uint_32>(encoder.size.height), 8,
                 encoder.palette.empty() ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_PALETTE,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (!encoder.palette.empty()) {
        png_set_PLTE(png, encoder.info, encoder.palette.data(),
                     static_cast<int>(encoder.palette.size()));
    }
    if (!encoder.alphas.empty()) {
        png_set_tRNS(png, encoder.info, encoder.alphas.data(),
                     static_cast<int>(encoder.alphas.size()), nullptr);
    }
    png_write_info(png, encoder.info);
    png_write_image(png, encoder.rows.data());
    png_write_end(png, nullptr);
    return true;
}

}  // namespace

ByteList PngBytes(const gdi::IconPlanes& icon) {
    gdi::IconPlanes joined = icon;
    JoinAlpha(joined);
    return PngBytes(joined.image, PngPixels::FewInPalette);
}

ByteList PngBytes(const gdi::Surface& pixels, PngPixels stored) {
    PngEncoder encoder(pixels, stored);
    // Memory is all that a picture of known size can lack.
    if (!RunEncoder(encoder)) throw std::bad_alloc();
    encoder.bytes.resize(encoder.bytes.size() - encoder.unwritten.size());
    return std::move(encoder.bytes);
}

}  // namespace kestrel::formats
