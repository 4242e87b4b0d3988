#include "platform/system/ByteSource.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cassert>
#include <cerrno>

#include "platform/system/SystemError.h"

namespace kestrel::system {
namespace {

constexpr std::size_t kBlockSize = 4096;
constexpr std::size_t kBlocks = 64;

bool SameTime(const timespec& one, const timespec& other) {
    return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

tl::unexpected<Error> Changed() {
    return Fail(kFileChanged, "The file was changed while it was read");
}

// An open file. Small parts, the records of a table above all, are taken from the blocks that were
// read last.
class FileBytes : public ByteSource {
  public:
    FileBytes(int file, const struct stat& status) : file_(file), status_(status) {}
    ~FileBytes() override { close(file_); }
    FileBytes(const FileBytes&) = delete;
    FileBytes& operator=(const FileBytes&) = delete;

    std::uint64_t Size() const override { return static_cast<std::uint64_t>(status_.st_size); }
    Result<void> Read(std::uint64_t offset, std::span<std::uint8_t> out) override;
    Result<void> CheckUnchanged() override;

  private:
    Result<void> ReadFromDisk(std::uint64_t offset, std::span<std::uint8_t> out) const;
    Result<std::span<const std::uint8_t>> BlockAt(std::uint64_t offset);

    int file_;
    struct stat status_;
    // Which block lies in each place, by its number in the file plus one, and the bytes of all.
    std::array<std::uint64_t, kBlocks> held_{};
    std::unique_ptr<std::uint8_t[]> blocks_ =
        std::make_unique_for_overwrite<std::uint8_t[]>(kBlocks * kBlockSize);
};

Result<void> FileBytes::ReadFromDisk(std::uint64_t offset, std::span<std::uint8_t> out) const {
    while (!out.empty()) {
        const ssize_t count =
            Retry([&] { return pread(file_, out.data(), out.size(), static_cast<off_t>(offset)); });
        if (count < 0) return SystemFailure(errno);
        if (count == 0) return Changed();
        offset += static_cast<std::uint64_t>(count);
        out = out.subspan(static_cast<std::size_t>(count));
    }
    return {};
}

// What the block that holds this byte has from it on.
Result<std::span<const std::uint8_t>> FileBytes::BlockAt(std::uint64_t offset) {
    const std::uint64_t number = offset / kBlockSize;
    const std::uint64_t start = number * kBlockSize;
    const std::uint64_t place = number % kBlocks;
    const std::uint64_t size = std::min<std::uint64_t>(kBlockSize, Size() - start);
    const std::span bytes(&blocks_[place * kBlockSize], static_cast<std::size_t>(size));
    if (held_[place] != number + 1) {
        held_[place] = 0;
        if (auto read = ReadFromDisk(start, bytes); !read) return tl::unexpected(read.error());
        held_[place] = number + 1;
    }
    return bytes.subspan(static_cast<std::size_t>(offset - start));
}

Result<void> FileBytes::Read(std::uint64_t offset, std::span<std::uint8_t> out) {
    assert(offset <= Size() && out.size() <= Size() - offset);
    if (out.size() > kBlockSize) return ReadFromDisk(offset, out);
    while (!out.empty()) {
        const auto block = BlockAt(offset);
        if (!block) return tl::unexpected(block.error());
        const std::size_t count = std::min(out.size(), block->size());
        std::copy_n(block->begin(), count, out.begin());
        offset += count;
        out = out.subspan(count);
    }
    return {};
}

Result<void> FileBytes::CheckUnchanged() {
    struct stat now {};
    if (fstat(file_, &now) < 0) return SystemFailure(errno);
    if (now.st_size != status_.st_size || !SameTime(now.st_mtim, status_.st_mtim)) return Changed();
    return {};
}

// 0 for a file that can be read in parts, else the errno value that refuses it.
int RefusalOf(const struct stat& status) {
    if (S_ISDIR(status.st_mode)) return EISDIR;
    if (!S_ISREG(status.st_mode)) return EINVAL;
    return static_cast<std::uint64_t>(status.st_size) > kLargestSource ? EFBIG : 0;
}

tl::unexpected<Error> RefusalFailure(int refusal) {
    return refusal == EFBIG ? Fail(EFBIG, "The file is larger than 4 GB") : SystemFailure(refusal);
}

}  // namespace

Result<void> MemoryBytes::Read(std::uint64_t offset, std::span<std::uint8_t> out) {
    assert(offset <= Size() && out.size() <= Size() - offset);
    std::copy_n(bytes_.subspan(static_cast<std::size_t>(offset)).begin(), out.size(), out.begin());
    return {};
}

Result<std::unique_ptr<ByteSource>> OpenByteSource(const std::string& path) {
    // Looked at before it is opened too: opening alone can move a device or wake a pipe's writer.
    struct stat status {};
    if (stat(path.c_str(), &status) < 0) return SystemFailure(errno);
    if (const int refusal = RefusalOf(status); refusal != 0) return RefusalFailure(refusal);
    constexpr int kFlags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
    const int file = Retry([&] { return open(path.c_str(), kFlags); });
    if (file < 0) return SystemFailure(errno);
    int refusal = fstat(file, &status) < 0 ? errno : RefusalOf(status);
    if (refusal != 0) {
        close(file);
        return RefusalFailure(refusal);
    }
    return std::make_unique<FileBytes>(file, status);
}

}  // namespace kestrel::system
