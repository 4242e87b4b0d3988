#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <span>
#include <string>

#include "platform/system/FileCalls.h"

namespace kestrel::system {

// A new file that stands beside the one it is to replace, and is gone again unless it came to
// replace it. Every step returns 0 or the errno value of its failure.
class TemporaryFile {
  public:
    TemporaryFile(FileCalls& calls, std::string folder);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    // `mode` is narrowed by the process's umask.
    int Create(mode_t mode);
    int Write(std::span<const std::uint8_t> bytes);
    // Takes over the old file's owner where the system allows it, and its permissions.
    int Inherit(const struct stat& old);
    // Brings the content to the disk and closes the file.
    int Finish();
    // Gives the file its final name. That the folder reaches the disk is tried, not asserted: the
    // new content is in place by then.
    int MoveTo(const std::string& target);

  private:
    FileCalls& calls_;
    std::string folder_;
    std::string path_;  // empty while there is no such file
    int file_ = -1;
};

}  // namespace kestrel::system
