#pragma once

#include <unistd.h>

#include <utility>

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

}  // namespace kestrel::system
