#include "formats/SourceReader.h"

#include <algorithm>

namespace kestrel::formats {

Extent SourceReader::Inside(Extent extent) const {
    if (extent.offset >= Size()) return {Size(), 0};
    return {extent.offset, std::min(extent.size, Size() - extent.offset)};
}

std::vector<std::uint8_t> SourceReader::Part(Extent extent) {
    const Extent inside = Inside(extent);
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(inside.size));
    Read(inside.offset, bytes);
    return bytes;
}

void SourceReader::Read(std::uint64_t offset, std::span<std::uint8_t> out) {
    if (failure_) return;
    if (auto read = source_.Read(offset, out); !read) {
        failure_ = read.error();
        std::ranges::fill(out, std::uint8_t{0});
    }
}

}  // namespace kestrel::formats
