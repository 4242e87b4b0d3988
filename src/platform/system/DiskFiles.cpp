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
#include "platform/system/SystemError.h"
#include "platform/system/TemporaryFile.h"

namespace kestrel::system {
namespace {

constexpr int kMaxLinks = 40;
constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
// A new file is everybody's as far as the umask lets it; a replacement is private until it has
// taken over the old file's permissions.
constexpr mode_t kNewFileMode = 0666;
constexpr mode_t kReplacementMode = 0600;

// 0 for a regular file, else the errno value that refuses it.
int RefusalOf(const struct stat& status) {
    if (S_ISDIR(status.st_mode)) return EISDIR;
    return S_ISREG(status.st_mode) ? 0 : EINVAL;
}

// The same for a file that is to be replaced. The superuser is held to the write bits as well: a
// file without any was meant to be kept.
int RefusalToReplace(const std::string& path, const struct stat& status) {
    if (const int refusal = RefusalOf(status); refusal != 0) return refusal;
    if ((status.st_mode & kAnyWrite) == 0) return EACCES;
    return access(path.c_str(), W_OK) < 0 ? errno : 0;
}

// The absolute path of a file that was found. What "." and ".." say goes, unless a link before
// them leads elsewhere.
std::string AbsolutePath(const std::string& found) {
    std::error_code failed;
    const std::filesystem::path absolute = std::filesystem::absolute(found, failed);
    if (failed) return found;  // the current folder is gone
    const std::filesystem::path plain = absolute.lexically_normal();
    return (std::filesystem::equivalent(plain, absolute, failed) ? plain : absolute).string();
}

// The place that a chain of links ends at, also when nothing is there yet.
Result<std::string> FollowLinks(std::filesystem::path path) {
    for (int links = 0; links < kMaxLinks; ++links) {
        std::error_code notALink;
        const std::filesystem::path target = std::filesystem::read_symlink(path, notALink);
        if (notALink) return path.string();
        path = path.parent_path() / target;
    }
    return SystemFailure(ELOOP);
}

// 0 or an errno value. `old` is the file that is to be replaced, if there is one.
int Fill(TemporaryFile& replacement, const struct stat* old, std::span<const std::uint8_t> bytes) {
    int error = replacement.Write(bytes);
    if (error == 0 && old != nullptr) error = replacement.Inherit(*old);
    return error == 0 ? replacement.Finish() : error;
}

// Writes a file that is ready to replace the old one. Not every file system makes files without a
// name, and without /proc they cannot be given one: there the file is named from the start.
int Prepare(TemporaryFile& replacement, const struct stat* old,
            std::span<const std::uint8_t> bytes) {
    const mode_t mode = old != nullptr ? kReplacementMode : kNewFileMode;
    if (replacement.CreateUnnamed(mode) == 0) {
        if (const int error = Fill(replacement, old, bytes); error != 0) return error;
        if (replacement.GiveName() == 0) return 0;
    }
    const int error = replacement.CreateNamed(mode);
    return error == 0 ? Fill(replacement, old, bytes) : error;
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
    if (path.empty()) return SystemFailure(ENOENT);
    const Result<std::string> target = FollowLinks(path);
    if (!target) return tl::unexpected(target.error());
    struct stat old {};
    const bool exists = stat(target->c_str(), &old) == 0;
    if (!exists && errno != ENOENT) return SystemFailure(errno);
    if (exists) {
        if (const int refusal = RefusalToReplace(*target, old); refusal != 0) {
            return SystemFailure(refusal);
        }
    }
    RemoveLeftovers(calls_, *target);
    TemporaryFile replacement(calls_, *target);
    int error = Prepare(replacement, exists ? &old : nullptr, bytes);
    if (error == 0) error = replacement.ReplaceTarget();
    if (error == EACCES && exists) return Fail(EACCES, "Permission denied in the file's folder");
    if (error != 0) return SystemFailure(error);
    return replacement.Identity();
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
