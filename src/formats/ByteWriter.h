#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "formats/ByteReader.h"

namespace kestrel::formats {

// Little-endian integers and bytes, one behind the other.
class ByteWriter {
  public:
    std::size_t Size() const { return bytes_.size(); }

    void U8(std::uint64_t value) { Number(value, 1); }
    void U16(std::uint64_t value) { Number(value, 2); }
    void U32(std::uint64_t value) { Number(value, 4); }
    void Append(Bytes bytes) { bytes_.insert(bytes_.end(), bytes.begin(), bytes.end()); }
    // Fills up with zeros to this size, if there are fewer bytes.
    void FillTo(std::size_t size) {
        if (bytes_.size() < size) bytes_.resize(size);
    }

    // Leaves none.
    std::vector<std::uint8_t> Take() { return std::exchange(bytes_, {}); }

  private:
    void Number(std::uint64_t value, int count) {
        for (int i = 0; i < count; ++i, value >>= 8)
            bytes_.push_back(static_cast<std::uint8_t>(value));
    }

    std::vector<std::uint8_t> bytes_;
};

}  // namespace kestrel::formats
