#include "formats/PngChunks.h"

#include <zlib.h>

#include <algorithm>

namespace kestrel::formats {
namespace {

constexpr std::size_t kSignatureBytes = 8;
constexpr std::size_t kNameBytes = 4;
constexpr std::size_t kSumBytes = 4;
constexpr std::uint32_t kOpaque = 0xFF000000;
constexpr std::uint32_t kColorBits = 0xFFFFFF;

bool TakePalette(Bytes content, PngColors& colors) {
    constexpr std::size_t kEntry = 3;
    const std::size_t count = content.size() / kEntry;
    if (count * kEntry != content.size() || count == 0 || count > colors.palette.size())
        return false;
    for (std::size_t i = 0; i < count; ++i) {
        const Bytes entry = content.subspan(kEntry * i);
        colors.palette[i] =
            (colors.palette[i] & ~kColorBits) | gdi::Rgb(entry[0], entry[1], entry[2]);
    }
    return true;
}

// One that does not fit the kind of picture is passed over.
void TakeAlpha(Bytes content, PngColors& colors) {
    if (colors.colorType == PngColors::kPalette) {
        for (std::size_t i = 0; i < std::min(content.size(), colors.palette.size()); ++i)
            colors.palette[i] = (colors.palette[i] & kColorBits) | std::uint32_t{content[i]} << 24;
        return;
    }
    const std::size_t samples = colors.SamplesAPixel();
    if ((colors.colorType & PngColors::kAlphaBit) != 0 || content.size() != 2 * samples) return;
    colors.transparent.emplace();
    for (std::size_t i = 0; i < colors.transparent->size(); ++i) {
        const Bytes sample = content.subspan(samples == 1 ? 0 : 2 * i);
        const auto stored = static_cast<unsigned>(sample[0] << 8 | sample[1]);
        (*colors.transparent)[i] = stored & ((1U << colors.bitDepth) - 1);
    }
}

}  // namespace

bool PngChunk::IsWhole() const {
    const std::size_t summed = stored.size() - kSumBytes;
    return crc32_z(0, stored.data(), summed) == ByteReader(stored).BigEndianU32(summed);
}

PngChunks::PngChunks(Bytes image) : unread_(ByteReader(image).Part(kSignatureBytes)) {}

std::optional<PngChunk> PngChunks::Next() {
    const ByteReader reader(unread_);
    const std::uint64_t length = reader.BigEndianU32(0);
    const std::uint64_t stored = kNameBytes + length + kSumBytes;
    if (!reader.Has(4, stored)) return std::nullopt;
    PngChunk chunk;
    chunk.stored = reader.Part(4, stored);
    chunk.name = reader.BigEndianU32(4);
    chunk.content = reader.Part(4 + kNameBytes, length);
    unread_ = reader.Part(4 + stored);
    return chunk;
}

std::optional<PngChunk> ReadPngColors(PngChunks& chunks, PngColors& colors) {
    colors.palette.fill(kOpaque);
    bool hasPalette = colors.colorType != PngColors::kPalette;
    while (const auto chunk = chunks.Next()) {
        if (!chunk->IsCritical()) {
            if (chunk->name == kPngAlpha && chunk->IsWhole()) TakeAlpha(chunk->content, colors);
            continue;
        }
        if (!chunk->IsWhole()) return std::nullopt;
        if (chunk->name == kPngPixels) return hasPalette ? chunk : std::nullopt;
        if (chunk->name == kPngPalette && colors.colorType == PngColors::kPalette) {
            hasPalette = TakePalette(chunk->content, colors);
        } else if (chunk->name != kPngPalette && chunk->name != kPngHeader) {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

}  // namespace kestrel::formats
