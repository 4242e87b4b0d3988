#include "formats/PngRows.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace kestrel::formats {
namespace {

// Pixels of the largest kind may be read as a whole at a row's end.
constexpr std::size_t kLargestPixel = 8;

// The filters take back what was subtracted from each byte: the one `distance` bytes before it, the
// one above it, their mean, or that of these and the one above the first which is nearest to
// before + above - before above.

void AddBefore(std::uint8_t* row, std::size_t count, std::size_t distance) {
    for (std::size_t i = distance; i < count; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + row[i - distance]);
}

void AddAbove(std::uint8_t* row, const std::uint8_t* above, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + above[i]);
}

void AddMean(std::uint8_t* row, const std::uint8_t* above, std::size_t count,
             std::size_t distance) {
    for (std::size_t i = 0; i < count; ++i) {
        const unsigned before = i < distance ? 0 : row[i - distance];
        row[i] = static_cast<std::uint8_t>(row[i] + (before + above[i]) / 2);
    }
}

// All bytes of a pixel at once: byte by byte, with a choice for each, this filter alone would take
// longer than all else. The vectors are those of g++ and clang++.
template <std::size_t kPixel>
void AddNearest(std::uint8_t* row, const std::uint8_t* aboveRow, std::size_t count) {
    using Pixel [[gnu::vector_size(8)]] = std::uint8_t;
    using Wide [[gnu::vector_size(16)]] = std::int16_t;
    const auto load = [](const std::uint8_t* from) {
        Pixel pixel;
        std::memcpy(&pixel, from, sizeof pixel);
        return __builtin_convertvector(pixel, Wide);
    };
    const auto absolute = [](Wide value) { return value < 0 ? -value : value; };
    Wide before{};
    Wide beforeAbove{};
    for (std::size_t i = 0; i < count; i += kPixel) {
        const Wide above = load(aboveRow + i);
        const Wide toBefore = above - beforeAbove;
        const Wide toAbove = before - beforeAbove;
        const Wide far = absolute(toBefore + toAbove);
        const Wide near = absolute(toBefore);
        const Wide high = absolute(toAbove);
        const Wide nearest =
            ((near <= high) & (near <= far)) ? before : (high <= far ? above : beforeAbove);
        before = (load(row + i) + nearest) & 0xFF;
        beforeAbove = above;
        const Pixel pixel = __builtin_convertvector(before, Pixel);
        std::memcpy(row + i, &pixel, kPixel);
    }
}

// By the bytes of a pixel.
using Nearest = void (*)(std::uint8_t* row, const std::uint8_t* above, std::size_t count);
constexpr std::array<Nearest, kLargestPixel + 1> kAddNearest{
    nullptr,       AddNearest<1>, AddNearest<2>, AddNearest<3>, AddNearest<4>,
    AddNearest<5>, AddNearest<6>, AddNearest<7>, AddNearest<8>};

bool Unfilter(unsigned filter, std::uint8_t* row, const std::uint8_t* above, std::size_t count,
              std::size_t pixelBytes) {
    switch (filter) {
        case 0:
            return true;
        case 1:
            AddBefore(row, count, pixelBytes);
            return true;
        case 2:
            AddAbove(row, above, count);
            return true;
        case 3:
            AddMean(row, above, count, pixelBytes);
            return true;
        case 4:
            kAddNearest[pixelBytes](row, above, count);
            return true;
        default:
            return false;
    }
}

}  // namespace

PngRows::PngRows(PngChunks& chunks, const PngChunk& first, std::size_t mostBytes,
                 std::size_t pixelBytes)
    : chunks_(chunks),
      pixelBytes_(pixelBytes),
      row_(1 + mostBytes + kLargestPixel),
      above_(row_.size()) {
    TakeInput(first.content);
    // The chunks' own sums tell of damage; another one over the pixels takes a fifth of the time.
    usable_ = inflateInit(&stream_) == Z_OK && inflateValidate(&stream_, 0) == Z_OK;
}

void PngRows::BeginImage() {
    std::ranges::fill(row_, std::uint8_t{0});
}

Bytes PngRows::Next(std::size_t bytes) {
    std::swap(row_, above_);
    usable_ = usable_ && Unpack(row_.data(), 1 + bytes) &&
              Unfilter(row_[0], &row_[1], &above_[1], bytes, pixelBytes_);
    return usable_ ? Bytes(row_).subspan(1, bytes) : Bytes();
}

bool PngRows::Unpack(std::uint8_t* to, std::size_t count) {
    stream_.next_out = to;
    stream_.avail_out = static_cast<uInt>(count);
    // What is unpacked may still be inside when all input is taken.
    while (stream_.avail_out > 0) {
        const int result = inflate(&stream_, Z_SYNC_FLUSH);
        if (result != Z_OK && result != Z_BUF_ERROR)
            return result == Z_STREAM_END && stream_.avail_out == 0;
        if (stream_.avail_out > 0 && !TakeChunk()) return false;
    }
    return true;
}

bool PngRows::TakeChunk() {
    const auto chunk = chunks_.Next();
    if (!chunk || chunk->name != kPngPixels || !chunk->IsWhole()) return false;
    TakeInput(chunk->content);
    return true;
}

void PngRows::TakeInput(Bytes input) {
    stream_.next_in = const_cast<std::uint8_t*>(input.data());
    stream_.avail_in = static_cast<uInt>(input.size());
}

}  // namespace kestrel::formats
