#pragma once

#include <zlib.h>

#include <cstdint>
#include <vector>

#include "formats/PngChunks.h"

namespace kestrel::formats {

// Unpacks the rows of a PNG one after the other, and holds two of them.
// Format: Portable Network Graphics Specification (Second Edition), 9 "Filtering" and 10
// "Compression".
class PngRows {
  public:
    // Begins at the first chunk of pixels; the others follow it in `chunks`. A row takes at most
    // `mostBytes`, and filters look back by `pixelBytes`, from 1 to 8.
    PngRows(PngChunks& chunks, const PngChunk& first, std::size_t mostBytes,
            std::size_t pixelBytes);
    ~PngRows() { inflateEnd(&stream_); }
    PngRows(const PngRows&) = delete;
    PngRows& operator=(const PngRows&) = delete;

    // The first row of an image has no row above it.
    void BeginImage();
    // The next row, good until the next call. Empty when it is missing or damaged.
    Bytes Next(std::size_t bytes);

  private:
    bool Unpack(std::uint8_t* to, std::size_t count);
    bool TakeChunk();
    void TakeInput(Bytes input);

    PngChunks& chunks_;
    z_stream stream_{};
    bool usable_ = false;
    std::size_t pixelBytes_;
    // Each begins with the number of its filter.
    std::vector<std::uint8_t> row_;
    std::vector<std::uint8_t> above_;
};

}  // namespace kestrel::formats
