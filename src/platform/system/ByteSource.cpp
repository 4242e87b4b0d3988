#include "platform/system/ByteSource.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cassert>
#include <cerrno>

#include "platform/system/FileIdentity.h"
#include "platform/system/SystemError.h"

namespace kestrel::system {
namespace {

// Records of tables follow each other, and so do the heads of small pictures: soon after another
// record, and at the start of the file, a block is read. Heads of large pictures are read alone: to
// copy what lies between them takes longer than to ask for each.
constexpr std::uint64_t kBlockSize = 32768;
constexpr std::size_t kBlocks = 4;
constexpr std::size_t kLargestRecord = 256;
constexpr std::uint64_t kNear = 4096;
// Tables are read side by side: so many records that were read alone are remembered.
constexpr std::size_t kRecentRecords = 4;
// To look whether the file is still the same takes as long as to read a record.
constexpr unsigned kReadsUnwatched = 64;

bool SameTime(const timespec& one, const timespec& other) {
    return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

tl::unexpected<Error> Changed() {
    return Fail(kFileChanged, "The file was changed while it was read");
}

// An open file. Small parts are taken from the blocks that were used last.
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
    struct Block {
        bool Has(std::uint64_t offset) const {
            return offset >= start && offset - start < bytes.size();
        }

        std::uint64_t start = 0;
        std::uint64_t lastUse = 0;
        std::span<std::uint8_t> bytes{};
    };

    Result<void> ReadFromDisk(std::uint64_t offset, std::span<std::uint8_t> out);
    Block* FindBlock(std::uint64_t offset);
    Result<Block*> ReadBlock(std::uint64_t offset);
    bool StandsAlone(std::uint64_t offset, std::size_t size);

    int file_;
    struct stat status_;
    unsigned reads_ = 0;
    std::unique_ptr<std::uint8_t[]> memory_ =
        std::make_unique_for_overwrite<std::uint8_t[]>(kBlocks * kBlockSize);
    std::array<Block, kBlocks> blocks_{};
    std::uint64_t uses_ = 0;
    std::array<std::uint64_t, kRecentRecords> recordEnds_{};
    std::size_t oldestRecord_ = 0;
};

Result<void> FileBytes::ReadFromDisk(std::uint64_t offset, std::span<std::uint8_t> out) {
    while (!out.empty()) {
        const ssize_t count =
            Retry([&] { return pread(file_, out.data(), out.size(), static_cast<off_t>(offset)); });
        if (count < 0) return SystemFailure(errno);
        if (count == 0) return Changed();
        offset += static_cast<std::uint64_t>(count);
        out = out.subspan(static_cast<std::size_t>(count));
    }
    if (++reads_ % kReadsUnwatched == 0) return CheckUnchanged();
    return {};
}

Result<void> FileBytes::CheckUnchanged() {
    struct stat now {};
    if (fstat(file_, &now) < 0) return SystemFailure(errno);
    if (now.st_size != status_.st_size || !SameTime(now.st_mtim, status_.st_mtim)) return Changed();
    return {};
}

FileBytes::Block* FileBytes::FindBlock(std::uint64_t offset) {
    auto* const found =
        std::ranges::find_if(blocks_, [offset](const Block& block) { return block.Has(offset); });
    return found != blocks_.end() ? found : nullptr;
}

// Reads the block that begins here in place of the one that was not used for the longest.
Result<FileBytes::Block*> FileBytes::ReadBlock(std::uint64_t offset) {
    Block* block = std::ranges::min_element(blocks_, {}, &Block::lastUse);
    const auto place = static_cast<std::size_t>(block - blocks_.data());
    const std::uint64_t size = std::min(kBlockSize, Size() - offset);
    *block = {offset, 0, {}};
    const std::span bytes(&memory_[place * kBlockSize], static_cast<std::size_t>(size));
    if (auto read = ReadFromDisk(offset, bytes); !read) return tl::unexpected(read.error());
    block->bytes = bytes;
    return block;
}

bool FileBytes::StandsAlone(std::uint64_t offset, std::size_t size) {
    if (size > kLargestRecord || offset < kBlockSize) return false;
    for (const std::uint64_t end : recordEnds_)
        if (offset >= end && offset - end <= kNear) return false;
    recordEnds_[oldestRecord_] = offset + size;
    oldestRecord_ = (oldestRecord_ + 1) % kRecentRecords;
    return true;
}

Result<void> FileBytes::Read(std::uint64_t offset, std::span<std::uint8_t> out) {
    assert(offset <= Size() && out.size() <= Size() - offset);
    if (out.size() > kBlockSize) return ReadFromDisk(offset, out);
    for (bool begins = true; !out.empty(); begins = false) {
        Block* block = FindBlock(offset);
        if (block == nullptr) {
            if (begins && StandsAlone(offset, out.size())) return ReadFromDisk(offset, out);
            const auto read = ReadBlock(offset);
            if (!read) return tl::unexpected(read.error());
            block = *read;
        }
        block->lastUse = ++uses_;
        const auto rest = block->bytes.subspan(static_cast<std::size_t>(offset - block->start));
        const std::size_t count = std::min(out.size(), rest.size());
        std::copy_n(rest.begin(), count, out.begin());
        offset += count;
        out = out.subspan(count);
    }
    return {};
}

// 0 for a file that can be read in parts, else the errno value that refuses it.
int RefusalToRead(const struct stat& status) {
    if (const int refusal = RefusalOf(status); refusal != 0) return refusal;
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
    if (const int refusal = RefusalToRead(status); refusal != 0) return RefusalFailure(refusal);
    constexpr int kFlags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
    const int file = Retry([&] { return open(path.c_str(), kFlags); });
    if (file < 0) return SystemFailure(errno);
    int refusal = fstat(file, &status) < 0 ? errno : RefusalToRead(status);
    if (refusal != 0) {
        close(file);
        return RefusalFailure(refusal);
    }
    return std::make_unique<FileBytes>(file, status);
}

}  // namespace kestrel::system
