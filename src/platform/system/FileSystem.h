#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "platform/Result.h"

namespace kestrel::system {

// Whole-file access. Paths are UTF-8 with '\' or '/' between components; an existing file is found
// as written or else by a match of each component without regard to letter case. Errors carry the
// errno value and the system's description of it.
class FileSystem {
  public:
    virtual ~FileSystem() = default;

    // The whole content of a regular file of at most `limit` bytes (EFBIG beyond it, EISDIR or
    // EINVAL for anything that is no regular file).
    virtual Result<std::vector<std::uint8_t>> ReadFile(const std::string& path,
                                                       std::size_t limit) = 0;

    // Makes `bytes` the content of the file, wholly or not at all: after a failure the old file,
    // or its absence, is as it was. A file without write permission is refused (EACCES), links are
    // followed, permissions kept. A path that names an existing file in other letter case replaces
    // that file.
    virtual Result<void> ReplaceFile(const std::string& path,
                                     std::span<const std::uint8_t> bytes) = 0;

    virtual bool FileExists(const std::string& path) = 0;
    virtual Result<void> RemoveFile(const std::string& path) = 0;
};

}  // namespace kestrel::system
