#pragma once

#include <sys/stat.h>

#include <cerrno>
#include <cstdint>

namespace kestrel::system {

// Tells a file and its content from those that another program may have put in its place since.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t size = 0;  // bytes
    // When the content was last changed, since 1970.
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;

    bool operator==(const FileIdentity&) const = default;
};

inline FileIdentity IdentityOf(const struct stat& status) {
    return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
            status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

// 0 for a regular file, else the errno value that refuses it.
inline int RefusalOf(const struct stat& status) {
    if (S_ISDIR(status.st_mode)) return EISDIR;
    return S_ISREG(status.st_mode) ? 0 : EINVAL;
}

}  // namespace kestrel::system
