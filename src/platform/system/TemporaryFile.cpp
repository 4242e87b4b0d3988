#include "platform/system/TemporaryFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <utility>

#include "platform/system/SystemError.h"

namespace kestrel::system {
namespace {

constexpr int kMaxNames = 100;
constexpr mode_t kPermissions = 07777;

// O_EXCL makes sure of a free name; this one only has to differ from try to try.
std::string TemporaryName() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    return ".kestrel-" + std::to_string(getpid()) + "-" + std::to_string(now) + ".tmp";
}

}  // namespace

TemporaryFile::TemporaryFile(FileCalls& calls, std::string folder)
    : calls_(calls), folder_(std::move(folder)) {}

TemporaryFile::~TemporaryFile() {
    if (file_ >= 0) calls_.Close(file_);
    if (!path_.empty()) calls_.Unlink(path_);
}

int TemporaryFile::Create(mode_t mode) {
    for (int names = 0; names < kMaxNames; ++names) {
        const std::string path = folder_ + "/" + TemporaryName();
        constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
        file_ = Retry([&] { return calls_.Open(path, kFlags, mode); });
        if (file_ >= 0) {
            path_ = path;
            return 0;
        }
        if (errno != EEXIST) return errno;
    }
    return EEXIST;
}

int TemporaryFile::Write(std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t written =
            Retry([&] { return calls_.Write(file_, bytes.data(), bytes.size()); });
        if (written < 0) return errno;
        if (written == 0) return EIO;
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return 0;
}

int TemporaryFile::Inherit(const struct stat& old) {
    struct stat now {};
    if (fstat(file_, &now) < 0) return errno;
    if (now.st_uid != old.st_uid || now.st_gid != old.st_gid) {
        // Only the superuser may give files away; then the group alone may still be ours to set.
        if (calls_.ChangeOwner(file_, old.st_uid, old.st_gid) < 0) {
            calls_.ChangeOwner(file_, static_cast<uid_t>(-1), old.st_gid);
        }
    }
    // File systems without permissions refuse every change; there both modes agree already.
    const mode_t mode = old.st_mode & kPermissions;
    if ((now.st_mode & kPermissions) == mode) return 0;
    return calls_.ChangeMode(file_, mode) < 0 ? errno : 0;
}

int TemporaryFile::Finish() {
    // Some file systems cannot flush a file, and say so.
    if (Retry([&] { return calls_.Sync(file_); }) < 0 && errno != EINVAL) return errno;
    // An interrupted close has closed the file all the same.
    const int closed = calls_.Close(std::exchange(file_, -1));
    return closed < 0 && errno != EINTR ? errno : 0;
}

int TemporaryFile::MoveTo(const std::string& target) {
    if (calls_.Rename(path_, target) < 0) return errno;
    path_.clear();
    const int folder = calls_.Open(folder_ + "/", O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
    if (folder >= 0) {
        calls_.Sync(folder);
        calls_.Close(folder);
    }
    return 0;
}

}  // namespace kestrel::system
