#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/Result.h"

namespace kestrel::system {

// No file beyond this many bytes is read in parts: offsets in all formats have 32 bits.
inline constexpr std::uint64_t kLargestSource = UINT32_MAX;

// The bytes of a file, read in the parts that are asked for. Nothing is mapped: a file that another
// program writes to or cuts short meanwhile ends in kFileChanged.
class ByteSource {
  public:
    virtual ~ByteSource() = default;

    virtual std::uint64_t Size() const = 0;
    // Fills `out` with the bytes from `offset` on; all of them lie below Size(). That another
    // program wrote to the file is noticed by and by.
    virtual Result<void> Read(std::uint64_t offset, std::span<std::uint8_t> out) = 0;
    // Notices it at once.
    virtual Result<void> CheckUnchanged() = 0;
};

// Bytes in memory; a span must outlive its source.
class MemoryBytes : public ByteSource {
  public:
    explicit MemoryBytes(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}
    explicit MemoryBytes(std::vector<std::uint8_t>&& bytes)
        : owned_(std::move(bytes)), bytes_(owned_) {}
    MemoryBytes(const MemoryBytes&) = delete;
    MemoryBytes& operator=(const MemoryBytes&) = delete;

    std::uint64_t Size() const override { return bytes_.size(); }
    Result<void> Read(std::uint64_t offset, std::span<std::uint8_t> out) override;
    Result<void> CheckUnchanged() override { return {}; }

  private:
    std::vector<std::uint8_t> owned_;
    std::span<const std::uint8_t> bytes_;
};

// Opens a regular file, its name as it is spelled on the disk. Fails with an errno value: EISDIR or
// EINVAL for anything that is no regular file, EFBIG for more than kLargestSource bytes.
Result<std::unique_ptr<ByteSource>> OpenByteSource(const std::string& path);

}  // namespace kestrel::system
