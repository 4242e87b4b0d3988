#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace kestrel::formats {

using Bytes = std::span<const std::uint8_t>;

// Little-endian integers out of untrusted bytes. Offsets are 64-bit so that sums of 32-bit fields
// cannot wrap; what lies outside reads as 0.
class ByteReader {
  public:
    explicit ByteReader(Bytes bytes) : bytes_(bytes) {}

    std::uint64_t Size() const { return bytes_.size(); }
    bool Has(std::uint64_t offset, std::uint64_t count) const {
        return offset <= bytes_.size() && count <= bytes_.size() - offset;
    }

    std::uint8_t U8(std::uint64_t offset) const {
        return Has(offset, 1) ? bytes_[static_cast<std::size_t>(offset)] : std::uint8_t{0};
    }
    std::uint16_t U16(std::uint64_t offset) const {
        return static_cast<std::uint16_t>(LittleEndian(offset, 2));
    }
    std::uint32_t U32(std::uint64_t offset) const { return LittleEndian(offset, 4); }
    std::int32_t S32(std::uint64_t offset) const { return static_cast<std::int32_t>(U32(offset)); }
    // PNG stores its integers with the highest byte first.
    std::uint32_t BigEndianU32(std::uint64_t offset) const {
        const std::uint32_t value = U32(offset);
        return value << 24 | (value & 0xFF00) << 8 | (value >> 8 & 0xFF00) | value >> 24;
    }

    // The bytes from `offset` on, at most `count`, cut at the end of the data.
    Bytes Part(std::uint64_t offset, std::uint64_t count = UINT64_MAX) const {
        if (offset >= bytes_.size()) return {};
        const Bytes rest = bytes_.subspan(static_cast<std::size_t>(offset));
        return count < rest.size() ? rest.first(static_cast<std::size_t>(count)) : rest;
    }

  private:
    std::uint32_t LittleEndian(std::uint64_t offset, unsigned count) const {
        if (!Has(offset, count)) return 0;
        std::uint32_t value = 0;
        for (unsigned i = 0; i < count; ++i)
            value |= std::uint32_t{bytes_[static_cast<std::size_t>(offset) + i]} << (8 * i);
        return value;
    }

    Bytes bytes_;
};

}  // namespace kestrel::formats
