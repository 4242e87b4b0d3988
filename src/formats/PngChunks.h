#pragma once

#include <cstdint>
#include <optional>

#include "formats/ByteReader.h"
#include "formats/PngColors.h"

namespace kestrel::formats {

// One chunk of a PNG; `name` holds its four letters, the first in the highest byte.
struct PngChunk {
    std::uint32_t name = 0;
    Bytes content;
    // Whether name and content have the check sum that is stored behind them.
    bool IsWhole() const;
    // Without it the picture cannot be shown.
    bool IsCritical() const { return (name & 0x20000000) == 0; }

    // Name, content and check sum as they are stored.
    Bytes stored;
};

inline constexpr std::uint32_t kPngHeader = 0x49484452;   // "IHDR"
inline constexpr std::uint32_t kPngPalette = 0x504C5445;  // "PLTE"
inline constexpr std::uint32_t kPngAlpha = 0x74524E53;    // "tRNS"
inline constexpr std::uint32_t kPngPixels = 0x49444154;   // "IDAT"

// Goes through the chunks of a PNG in the order of the file.
// Format: Portable Network Graphics Specification (Second Edition), 5.3 "Chunk layout".
class PngChunks {
  public:
    // The chunks behind the signature.
    explicit PngChunks(Bytes image);

    // Nothing at the end, and when the chunk is cut.
    std::optional<PngChunk> Next();
    std::size_t BytesLeft() const { return unread_.size(); }

  private:
    Bytes unread_;
};

// Takes what the chunks before the pixels say of colours into `colors`, whose type and depth are
// known, and returns the first chunk of pixels. Other chunks are skipped unread. Nothing when one
// that is needed is missing or damaged.
std::optional<PngChunk> ReadPngColors(PngChunks& chunks, PngColors& colors);

}  // namespace kestrel::formats
