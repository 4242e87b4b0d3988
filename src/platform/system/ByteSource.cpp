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

// Records of a table and the heads of pictures mostly follow each other closely: a block that goes
// on from the last one is large, which takes hardly longer to read; any other is a page.
constexpr std::uint64_t kPage = 4096;
constexpr std::size_t kBlockSize = 8 * kPage;
constexpr std::size_t kBlocks = 8;

bool SameTime(const timespec& one, const timespec& other) {
    return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

tl::unexpected<Error> Changed() {
    return Fail(kFileChanged, "The file was changed while it was read");
}

// An open file. Small parts are taken from the blocks that were asked for last.
class FileBytes : public ByteSource {
  public:
    FileBytes(int file, const struct stat& status) : file_(file), status_(status) {}
    ~FileBytes() override { close(file_); }
    FileBytes(const FileBytes&) = delete;
    FileBytes& operator=(const FileBytes&) = delete;

    std::uint64_t Size() const override { return static_cast<std::uint64_t>(status_.st_size); }
    Result<void> Read(std::uint64_t offset, std::span<std::uint8_t> out) override;

  private:
    struct Block {
        bool Has(std::uint64_t offset) const {
            return offset >= start && offset - start < bytes.size();
        }

        std::uint64_t start = 0;
        std::uint64_t lastUse = 0;
        std::span<std::uint8_t> bytes{};
    };

    Result<void> ReadFromDisk(std::uint64_t offset, std::span<std::uint8_t> out) const;
    Result<std::span<const std::uint8_t>> BlockAt(std::uint64_t offset);
    Block& PlaceFor(std::uint64_t offset);

    int file_;
    struct stat status_;
    std::unique_ptr<std::uint8_t[]> memory_ =
        std::make_unique_for_overwrite<std::uint8_t[]>(kBlocks * kBlockSize);
    std::array<Block, kBlocks> blocks_{};
    std::uint64_t uses_ = 0;
    // Where the block ends that was read last.
    std::uint64_t readTo_ = 0;
};

// The file must be the same after it was read as it was when it was opened.
Result<void> FileBytes::ReadFromDisk(std::uint64_t offset, std::span<std::uint8_t> out) const {
    while (!out.empty()) {
        const ssize_t count =
            Retry([&] { return pread(file_, out.data(), out.size(), static_cast<off_t>(offset)); });
        if (count < 0) return SystemFailure(errno);
        if (count == 0) return Changed();
        offset += static_cast<std::uint64_t>(count);
        out = out.subspan(static_cast<std::size_t>(count));
    }
    struct stat now {};
    if (fstat(file_, &now) < 0) return SystemFailure(errno);
    if (now.st_size != status_.st_size || !SameTime(now.st_mtim, status_.st_mtim)) return Changed();
    return {};
}

// The block that holds this byte, or else the one that has not been used for the longest.
FileBytes::Block& FileBytes::PlaceFor(std::uint64_t offset) {
    auto* const found =
        std::ranges::find_if(blocks_, [offset](const Block& block) { return block.Has(offset); });
    return found != blocks_.end() ? *found
                                  : *std::ranges::min_element(blocks_, {}, &Block::lastUse);
}

// What the block that holds this byte has from it on.
Result<std::span<const std::uint8_t>> FileBytes::BlockAt(std::uint64_t offset) {
    Block& block = PlaceFor(offset);
    block.lastUse = ++uses_;
    if (!block.Has(offset)) {
        const auto place = static_cast<std::size_t>(&block - blocks_.data());
        const std::uint64_t start = offset - offset % kPage;
        const bool goesOn = start >= readTo_ && start - readTo_ < kBlockSize;
        const auto size = std::min(goesOn ? kBlockSize : kPage, Size() - start);
        block = {start, uses_, {}};
        const std::span bytes(&memory_[place * kBlockSize], static_cast<std::size_t>(size));
        if (auto read = ReadFromDisk(start, bytes); !read) return tl::unexpected(read.error());
        block.bytes = bytes;
        readTo_ = start + size;
    }
    return block.bytes.subspan(static_cast<std::size_t>(offset - block.start));
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
