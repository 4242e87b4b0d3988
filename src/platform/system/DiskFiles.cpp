#include "platform/system/DiskFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <limits>
#include <utility>

#include "platform/system/PathText.h"
#include "platform/system/Replacement.h"
#include "platform/system/SystemError.h"

namespace kestrel::system {
namespace {

// The absolute path of a file that was found. What "." and ".." say goes, unless a link before
// them leads elsewhere.
std::string AbsolutePath(const std::string& found) {
    std::error_code failed;
    const std::filesystem::path absolute = std::filesystem::absolute(found, failed);
    if (failed) return found;  // the current folder is gone
    const std::filesystem::path plain = absolute.lexically_normal();
    return (std::filesystem::equivalent(plain, absolute, failed) ? plain : absolute).string();
}

}  // namespace

DiskFiles::DiskFiles(PathNames names) : calls_(systemCalls_), names_(names) {}

DiskFiles::DiskFiles(FileCalls& calls) : calls_(calls) {}

std::string DiskFiles::Resolved(const std::string& path) const {
    return names_ == PathNames::AnyCase ? ResolvePath(path) : path;
}

Result<LoadedFile> DiskFiles::LoadFile(const std::string& path, std::size_t limit) {
    const std::string found = Resolved(path);
    // Looked at before it is opened too: opening alone can move a device or wake a pipe's writer.
    struct stat status {};
    if (stat(found.c_str(), &status) < 0) return SystemFailure(errno);
    if (const int refusal = RefusalOf(status); refusal != 0) return SystemFailure(refusal);
    constexpr int kFlags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
    const int file = Retry([&] { return calls_.Open(found, kFlags, 0); });
    if (file < 0) return SystemFailure(errno);
    Result<LoadedFile> loaded = ReadOpened(file, limit);
    calls_.Close(file);
    if (loaded) loaded->path = AbsolutePath(found);
    return loaded;
}

Result<LoadedFile> DiskFiles::ReadOpened(int file, std::size_t limit) {
    struct stat status {};
    if (fstat(file, &status) < 0) return SystemFailure(errno);
    if (const int refusal = RefusalOf(status); refusal != 0) return SystemFailure(refusal);
    limit = std::min(limit, std::numeric_limits<std::size_t>::max() - 1);
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size > limit) return SystemFailure(EFBIG);

    // One byte of room past the stated size: the file may have grown, or state none at all.
    std::vector<std::uint8_t> bytes(size + 1);
    std::size_t filled = 0;
    for (;;) {
        const ssize_t count =
            Retry([&] { return calls_.Read(file, bytes.data() + filled, bytes.size() - filled); });
        if (count < 0) return SystemFailure(errno);
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
        if (filled > limit) return SystemFailure(EFBIG);
        if (filled == bytes.size()) bytes.resize(std::min(filled * 2, limit) + 1);
    }
    bytes.resize(filled);
    return LoadedFile{{}, IdentityOf(status), std::move(bytes)};
}

Result<std::unique_ptr<ByteSource>> DiskFiles::OpenSource(const std::string& path) {
    return OpenByteSource(Resolved(path));
}

Result<FileIdentity> DiskFiles::ReplaceFile(const std::string& path,
                                            std::span<const std::uint8_t> bytes) {
    const auto replacement = Replacement::Write(calls_, path, bytes);
    if (!replacement) return tl::unexpected(replacement.error());
    if (auto flushed = (*replacement)->Flush(); !flushed) return tl::unexpected(flushed.error());
    auto placed = (*replacement)->TakePlace();
    if (placed) (*replacement)->FlushName();
    return placed;
}

std::optional<std::string> DiskFiles::Find(const std::string& path) {
    const std::string found = Resolved(path);
    struct stat status {};
    if (stat(found.c_str(), &status) < 0 || RefusalOf(status) != 0) return std::nullopt;
    return AbsolutePath(found);
}

std::optional<FileIdentity> DiskFiles::Identify(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) < 0 || RefusalOf(status) != 0) return std::nullopt;
    return IdentityOf(status);
}

bool DiskFiles::FileExists(const std::string& path) {
    return Find(path).has_value();
}

Result<void> DiskFiles::RemoveFile(const std::string& path) {
    if (calls_.Unlink(Resolved(path)) < 0) return SystemFailure(errno);
    return {};
}

Result<void> DiskFiles::RenameFile(const std::string& from, const std::string& to) {
    if (calls_.Rename(Resolved(from), Resolved(to)) < 0) return SystemFailure(errno);
    return {};
}

bool DiskFiles::MakeFolder(const std::string& folder) {
    constexpr mode_t kOwnerOnly = 0700;
    for (std::size_t end = 0; end < folder.size();) {
        end = std::min(folder.find('/', end + 1), folder.size());
        mkdir(folder.substr(0, end).c_str(), kOwnerOnly);
    }
    std::error_code unreachable;
    return std::filesystem::is_directory(folder, unreachable);
}

}  // namespace kestrel::system
