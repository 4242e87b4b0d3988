#include "platform/system/FileCalls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

namespace kestrel::system {

int FileCalls::Open(const std::string& path, int flags, mode_t mode) {
    return open(path.c_str(), flags, mode);
}
ssize_t FileCalls::Read(int file, void* bytes, std::size_t count) {
    return read(file, bytes, count);
}
ssize_t FileCalls::Write(int file, const void* bytes, std::size_t count) {
    return write(file, bytes, count);
}
int FileCalls::ChangeOwner(int file, uid_t user, gid_t group) {
    return fchown(file, user, group);
}
int FileCalls::ChangeMode(int file, mode_t mode) {
    return fchmod(file, mode);
}
int FileCalls::Sync(int file) {
    return fsync(file);
}
int FileCalls::SyncFileSystem(int file) {
    return syncfs(file);
}
int FileCalls::Close(int file) {
    return close(file);
}
int FileCalls::Link(int file, const std::string& path) {
    // The kernel's own way by descriptor needs privileges, or Linux 6.10.
    const std::string opened = "/proc/self/fd/" + std::to_string(file);
    return linkat(AT_FDCWD, opened.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW);
}
int FileCalls::Rename(const std::string& from, const std::string& to) {
    return rename(from.c_str(), to.c_str());
}
int FileCalls::Unlink(const std::string& path) {
    return unlink(path.c_str());
}

}  // namespace kestrel::system
