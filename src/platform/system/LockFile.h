#pragma once

#include <unistd.h>

#include <chrono>
#include <string>
#include <utility>

#include "platform/Result.h"

namespace kestrel::system {

// Owns an open file descriptor, or none (-1).
class FileHandle {
  public:
    explicit FileHandle(int file = -1) : file_(file) {}
    FileHandle(FileHandle&& other) noexcept : file_(std::exchange(other.file_, -1)) {}
    FileHandle& operator=(FileHandle&& other) noexcept {
        std::swap(file_, other.file_);
        return *this;
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    ~FileHandle() {
        if (file_ >= 0) close(file_);
    }

    int Number() const { return file_; }

  private:
    int file_;
};

// Creates the file as needed and locks it against other processes (and other handles of this one),
// for as long as the handle is open. Waits up to `patience` for a holder to let go, then fails
// with EWOULDBLOCK. The file itself stays: removing it would let two holders lock two files.
Result<FileHandle> LockFile(const std::string& path, std::chrono::milliseconds patience);
// The same with an existing folder, in which nothing is made for it.
Result<FileHandle> LockFolder(const std::string& path, std::chrono::milliseconds patience);

}  // namespace kestrel::system
