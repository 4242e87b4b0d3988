#include "platform/system/TemporaryFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <string_view>
#include <utility>

#include "platform/system/LockFile.h"
#include "platform/system/SystemError.h"

namespace kestrel::system {
namespace {

// So many names are looked at for leftovers always, and the following ones as far as there are any.
constexpr int kLikelyNames = 8;
constexpr int kCommonNames = 92;
constexpr int kMaxNames = 100;
constexpr mode_t kPermissions = 07777;

std::string FolderOfTarget(const std::string& target) {
    const std::size_t slash = target.rfind('/');
    return slash == std::string::npos ? "./" : target.substr(0, slash + 1);
}

// The 64-bit FNV-1a hash: short and plain whatever the name that it stands for.
std::uint64_t HashOf(std::string_view name) {
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char letter : name)
        hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001B3;
    return hash;
}

// The hidden names beside a target, by number. The first ones are the same for every process, so
// that what a killed one left is found without a look through the folder; the last ones are new,
// for file systems whose files cannot be locked: there nothing that is left is ever removed.
std::string PathFor(const std::string& target, int number) {
    const std::uint64_t hash = HashOf(std::string_view(target).substr(target.rfind('/') + 1));
    std::array<char, 16> digits{};
    const auto hex = std::to_chars(digits.data(), digits.data() + digits.size(), hash, 16);
    std::string path = FolderOfTarget(target) + ".kestrel-";
    path.append(digits.data(), hex.ptr).append("-").append(std::to_string(number));
    if (number >= kCommonNames) {
        const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
        path.append("-").append(std::to_string(now));
    }
    return path + ".tmp";
}

bool Lock(int file) {
    return Retry([&] { return flock(file, LOCK_EX | LOCK_NB); }) == 0;
}

// Whether the path still leads to this open file.
bool IsAt(const std::string& path, int file) {
    struct stat opened {};
    struct stat found {};
    return fstat(file, &opened) == 0 && lstat(path.c_str(), &found) == 0 &&
           opened.st_dev == found.st_dev && opened.st_ino == found.st_ino;
}

// Whether another process took this new file for a leftover before it was locked. Where files
// cannot be locked none does.
bool IsTaken(const std::string& path, int file) {
    return (!Lock(file) && errno == EWOULDBLOCK) || !IsAt(path, file);
}

// A file whose lock is free has no writer any more. One that a live writer has just put in the
// target's place may be locked too, but is no longer at the path. Returns whether there was a file.
bool RemoveUnlocked(FileCalls& calls, const std::string& path) {
    struct stat status {};
    if (lstat(path.c_str(), &status) < 0) return false;
    if (!S_ISREG(status.st_mode)) return true;
    constexpr int kFlags = O_WRONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    const FileHandle file(Retry([&] { return calls.Open(path, kFlags, 0); }));
    if (file.Number() >= 0 && Lock(file.Number()) && IsAt(path, file.Number())) calls.Unlink(path);
    return true;
}

}  // namespace

TemporaryFile::TemporaryFile(FileCalls& calls, std::string target)
    : calls_(calls), target_(std::move(target)) {}

TemporaryFile::~TemporaryFile() {
    Discard();
}

void TemporaryFile::Discard() {
    // The name goes before the lock.
    if (!path_.empty()) calls_.Unlink(std::exchange(path_, {}));
    if (file_ >= 0) calls_.Close(std::exchange(file_, -1));
}

// Offers names until one is free, which becomes the file's.
int TemporaryFile::TryNames(const std::function<int(const std::string& path)>& use) {
    for (int number = 0; number < kMaxNames; ++number) {
        const std::string path = PathFor(target_, number);
        if (use(path) >= 0) {
            path_ = path;
            return 0;
        }
        if (errno != EEXIST) return errno;
    }
    return EEXIST;
}

int TemporaryFile::CreateUnnamed(mode_t mode) {
    constexpr int kFlags = O_RDWR | O_TMPFILE | O_CLOEXEC;
    file_ = Retry([&] { return calls_.Open(FolderOfTarget(target_), kFlags, mode); });
    if (file_ < 0) return errno;
    Lock(file_);
    return 0;
}

int TemporaryFile::CreateNamed(mode_t mode) {
    Discard();
    return TryNames([&](const std::string& path) {
        constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
        file_ = Retry([&] { return calls_.Open(path, kFlags, mode); });
        if (file_ < 0 || !IsTaken(path, file_)) return file_;
        calls_.Close(std::exchange(file_, -1));
        errno = EEXIST;
        return file_;
    });
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

int TemporaryFile::ReadBack(std::vector<std::uint8_t>& bytes) {
    struct stat status {};
    if (fstat(file_, &status) < 0 || lseek(file_, 0, SEEK_SET) < 0) return errno;
    bytes.resize(static_cast<std::size_t>(status.st_size));
    for (std::span rest(bytes); !rest.empty();) {
        const ssize_t count = Retry([&] { return calls_.Read(file_, rest.data(), rest.size()); });
        if (count < 0) return errno;
        if (count == 0) return EIO;
        rest = rest.subspan(static_cast<std::size_t>(count));
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
    // Others tell at closing what they could not write. A second handle is closed: the first one
    // holds the lock.
    const int second = fcntl(file_, F_DUPFD_CLOEXEC, 0);
    if (second < 0) return errno;
    // An interrupted close has closed the handle all the same.
    return calls_.Close(second) < 0 && errno != EINTR ? errno : 0;
}

int TemporaryFile::GiveName() {
    if (!path_.empty()) return 0;
    return TryNames([&](const std::string& path) { return calls_.Link(file_, path); });
}

int TemporaryFile::ReplaceTarget() {
    if (calls_.Rename(path_, target_) < 0) return errno;
    path_.clear();
    return 0;
}

void TemporaryFile::FlushFolder() {
    const int folder = calls_.Open(FolderOfTarget(target_), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
    if (folder < 0) return;
    calls_.Sync(folder);
    calls_.Close(folder);
}

int TemporaryFile::BecomeTarget() {
    if (path_.empty()) return calls_.Link(file_, target_) < 0 ? errno : 0;
    struct stat status {};
    if (lstat(target_.c_str(), &status) == 0) return EEXIST;
    if (errno != ENOENT || calls_.Rename(path_, target_) < 0) return errno;
    path_.clear();
    return 0;
}

FileIdentity TemporaryFile::Identity() const {
    struct stat status {};
    fstat(file_, &status);
    return IdentityOf(status);
}

void RemoveLeftovers(FileCalls& calls, const std::string& target) {
    bool found = true;
    for (int number = 0; number < kCommonNames && (found || number < kLikelyNames); ++number)
        found = RemoveUnlocked(calls, PathFor(target, number));
}

}  // namespace kestrel::system
