#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "formats/ByteReader.h"
#include "platform/Result.h"
#include "platform/system/ByteSource.h"

namespace kestrel::formats {

// A stretch of a file, in bytes.
struct Extent {
    std::uint64_t offset = 0;
    std::uint64_t size = 0;
};

// One record of a table in a file: a copy, so that no field is ever fetched twice.
template <std::size_t N>
struct SourceRecord {
    std::uint16_t U16(std::uint64_t offset) const { return ByteReader(bytes).U16(offset); }
    std::uint32_t U32(std::uint64_t offset) const { return ByteReader(bytes).U32(offset); }

    std::array<std::uint8_t, N> bytes{};
};

// Takes copies of parts of an untrusted file. What lies outside reads as 0 or is cut off. Once the
// file itself fails everything reads so, and Check() tells why.
class SourceReader {
  public:
    explicit SourceReader(system::ByteSource& source) : source_(source), size_(source.Size()) {}

    std::uint64_t Size() const { return size_; }

    // What of the extent lies in the file.
    Extent Inside(Extent extent) const;

    template <std::size_t N>
    SourceRecord<N> Record(std::uint64_t offset) {
        SourceRecord<N> record;
        const Extent inside = Inside({offset, N});
        Read(inside.offset, std::span(record.bytes).first(static_cast<std::size_t>(inside.size)));
        return record;
    }
    // The caller caps the size.
    std::vector<std::uint8_t> Part(Extent extent);

    // Whether all reading so far went well.
    Result<void> Check() const {
        if (failure_) return tl::unexpected(*failure_);
        return {};
    }
    // And whether the file is still the same.
    Result<void> CheckUnchanged() const { return failure_ ? Check() : source_.CheckUnchanged(); }

  private:
    void Read(std::uint64_t offset, std::span<std::uint8_t> out);

    system::ByteSource& source_;
    std::uint64_t size_;
    std::optional<Error> failure_;
};

}  // namespace kestrel::formats
