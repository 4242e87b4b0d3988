#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>

namespace kestrel::system {

// The system calls that change or read files, each as its POSIX namesake: -1 and errno on failure.
// A seam: what a full disk or a failing device does to a save can be tried without one.
class FileCalls {
  public:
    virtual ~FileCalls() = default;

    virtual int Open(const std::string& path, int flags, mode_t mode);
    virtual ssize_t Read(int file, void* bytes, std::size_t count);
    virtual ssize_t Write(int file, const void* bytes, std::size_t count);
    virtual int ChangeOwner(int file, uid_t user, gid_t group);
    virtual int ChangeMode(int file, mode_t mode);
    virtual int Sync(int file);
    // The whole file system that the file or folder lies on.
    virtual int SyncFileSystem(int file);
    virtual int Close(int file);
    // Gives an open file that has no name this one.
    virtual int Link(int file, const std::string& path);
    virtual int Rename(const std::string& from, const std::string& to);
    virtual int Unlink(const std::string& path);
};

}  // namespace kestrel::system
