#include "platform/system/LockFile.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <thread>

#include "platform/system/SystemError.h"

namespace kestrel::system {

namespace {

Result<FileHandle> Lock(const std::string& path, int flags, std::chrono::milliseconds patience) {
    constexpr mode_t kOwnerOnly = 0600;
    FileHandle file(Retry([&] { return open(path.c_str(), flags | O_CLOEXEC, kOwnerOnly); }));
    if (file.Number() < 0) return SystemFailure(errno);

    constexpr std::chrono::milliseconds kPause{5};
    const auto end = std::chrono::steady_clock::now() + patience;
    while (Retry([&] { return flock(file.Number(), LOCK_EX | LOCK_NB); }) < 0) {
        if (errno != EWOULDBLOCK) return SystemFailure(errno);
        if (std::chrono::steady_clock::now() >= end) return SystemFailure(EWOULDBLOCK);
        std::this_thread::sleep_for(kPause);
    }
    return file;
}

}  // namespace

Result<FileHandle> LockFile(const std::string& path, std::chrono::milliseconds patience) {
    return Lock(path, O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK, patience);
}

Result<FileHandle> LockFolder(const std::string& path, std::chrono::milliseconds patience) {
    return Lock(path, O_RDONLY | O_DIRECTORY, patience);
}

}  // namespace kestrel::system
