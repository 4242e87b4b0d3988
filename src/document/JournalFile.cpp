#include "document/JournalFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <system_error>
#include <utility>

#include "document/JournalFolder.h"
#include "document/JournalRecords.h"
#include "platform/system/DiskFiles.h"
#include "platform/system/SystemError.h"

namespace kestrel::document {

namespace {

using std::chrono::milliseconds;

// The window's thread waits while so much is copied.
constexpr std::size_t kShortTail = std::size_t{64} << 10;

bool WriteAt(int file, formats::Bytes bytes, std::size_t at) {
    while (!bytes.empty()) {
        const ssize_t count = system::Retry(
            [&] { return pwrite(file, bytes.data(), bytes.size(), static_cast<off_t>(at)); });
        if (count <= 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(count));
        at += static_cast<std::size_t>(count);
    }
    return true;
}

// Nothing where not all of it is there.
std::vector<std::uint8_t> ReadAt(int file, std::size_t at, std::size_t count) {
    std::vector<std::uint8_t> bytes(count);
    for (std::size_t filled = 0; filled < count;) {
        const ssize_t more = system::Retry([&] {
            return pread(file, bytes.data() + filled, count - filled,
                         static_cast<off_t>(at + filled));
        });
        if (more <= 0) return {};
        filled += static_cast<std::size_t>(more);
    }
    return bytes;
}

std::string NewPath(const std::string& folder) {
    const auto now = std::chrono::system_clock::now().time_since_epoch().count();
    return folder + "/" + std::to_string(now) + "-" + std::to_string(getpid()) +
           std::string(kJournalSuffix);
}

}  // namespace

std::unique_ptr<JournalFile> JournalFile::Create(const std::string& folder, JournalLimits limits,
                                                 Shorten shorten) {
    if (folder.empty() || !system::DiskFiles(system::PathNames::AsWritten).MakeFolder(folder))
        return nullptr;
    std::string path = NewPath(folder);
    auto file = system::LockFile(path, milliseconds::zero());
    struct stat status {};
    // Not one that another process has filled.
    if (!file || fstat(file->Number(), &status) < 0 || status.st_size > 0) return nullptr;
    try {
        return std::unique_ptr<JournalFile>(
            new JournalFile(std::move(path), *std::move(file), limits, std::move(shorten)));
    } catch (const std::system_error& noThread) {
        return nullptr;
    }
}

JournalFile::JournalFile(std::string path, system::FileHandle file, JournalLimits limits,
                         Shorten shorten)
    : path_(std::move(path)),
      limits_(limits),
      shorten_(std::move(shorten)),
      file_(std::move(file)),
      rewriteAbove_(limits.rewriteAbove),
      thread_([this](const std::stop_token& stop) { KeepOnDisk(stop); }) {}

JournalFile::~JournalFile() = default;

bool JournalFile::Append(formats::Bytes records) {
    const std::lock_guard lock(mutex_);
    // What a failure leaves behind the end is torn, or overwritten later.
    if (size_ + records.size() > kMostJournalBytes || !WriteAt(file_.Number(), records, size_))
        return false;
    size_ += records.size();
    if (!std::exchange(changed_, true)) changes_.notify_one();
    return true;
}

void JournalFile::Remove() {
    {
        const std::lock_guard lock(mutex_);
        changed_ = false;
    }
    // It may be about to give another file this name.
    thread_.request_stop();
    thread_.join();
    unlink(path_.c_str());
}

void JournalFile::KeepOnDisk(const std::stop_token& stop) {
    std::unique_lock lock(mutex_);
    while (changes_.wait(lock, stop, [this] { return changed_; })) {
        changes_.wait_for(lock, stop, limits_.betweenSyncs, [] { return false; });
        changed_ = false;
        const std::size_t length = size_;
        lock.unlock();
        fdatasync(file_.Number());
        if (stop.stop_requested()) return;
        // Where that fails it is not tried again soon.
        if (length > rewriteAbove_ && !Rewrite(length, stop))
            rewriteAbove_ = length + limits_.rewriteAbove;
        lock.lock();
    }
}

// The state that the first `length` bytes tell, in fewer bytes, and what has been appended since.
bool JournalFile::Rewrite(std::size_t length, const std::stop_token& stop) {
    const std::string path = path_ + std::string(kUnfinishedSuffix);
    std::vector<std::uint8_t> shorter = shorten_(ReadAt(file_.Number(), 0, length), limits_.keep);
    auto file = system::LockFile(path, milliseconds::zero());
    bool written = file && ftruncate(file->Number(), 0) == 0 &&
                   WriteAt(file->Number(), shorter, 0) && fdatasync(file->Number()) == 0;
    std::size_t size = shorter.size();
    const auto copyUpTo = [&](std::size_t end) {
        if (!written) return;
        const std::vector<std::uint8_t> tail = ReadAt(file_.Number(), length, end - length);
        written = tail.size() == end - length && WriteAt(file->Number(), tail, size);
        size += tail.size();
        length = end;
    };
    std::unique_lock lock(mutex_);
    while (written && size_ - length > kShortTail) {
        const std::size_t end = size_;
        lock.unlock();
        copyUpTo(end);
        lock.lock();
    }
    copyUpTo(size_);
    if (!written || stop.stop_requested() || rename(path.c_str(), path_.c_str()) < 0) {
        unlink(path.c_str());
        return false;
    }
    file_ = *std::move(file);
    size_ = size;
    return true;
}

}  // namespace kestrel::document
