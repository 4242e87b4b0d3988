#include <zlib.h>

#include <cstdint>
#include <vector>

#include "formats/PngImage.h"

using namespace kestrel;

namespace {

// Gives every chunk its check sum, without which it would be refused unread.
void PutSums(std::vector<std::uint8_t>& png) {
    const formats::ByteReader reader(png);
    for (std::uint64_t at = 8; reader.Has(at, 12);) {
        const std::uint64_t length = reader.BigEndianU32(at);
        if (!reader.Has(at, 12 + length)) return;
        const std::uint64_t end = at + 8 + length;
        const auto sum = crc32_z(0, &png[at + 4], static_cast<std::size_t>(4 + length));
        for (unsigned i = 0; i < 4; ++i)
            png[end + i] = static_cast<std::uint8_t>(sum >> (24 - 8 * i));
        at = end + 4;
    }
}

}  // namespace

// Whatever the chunks of a PNG hold, reading it ends, soon and without a fault.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<std::uint8_t> png(data, data + size);
    PutSums(png);
    constexpr int kLongestSide = 512;
    const auto info = formats::ReadPngInfo(png, kLongestSide);
    if (!info) return 0;
    std::size_t work = 0;
    static_cast<void>(formats::DecodePng(png, *info, {info->width, info->height}, work));
    static_cast<void>(formats::DecodePng(png, *info, {32, 32}, work));
    return 0;
}
