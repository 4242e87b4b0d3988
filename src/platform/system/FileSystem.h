#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/Result.h"
#include "platform/system/ByteSource.h"

namespace kestrel::system {

// Access to files. Paths are UTF-8 with '\' or '/' between components; an existing file is found
// as written or else by a match of each component without regard to letter case. Errors carry the
// errno value and the system's description of it.
class FileSystem {
  public:
    virtual ~FileSystem() = default;

    // The whole content of a regular file of at most `limit` bytes (EFBIG beyond it, EISDIR or
    // EINVAL for anything that is no regular file).
    virtual Result<std::vector<std::uint8_t>> ReadFile(const std::string& path,
                                                       std::size_t limit) = 0;

    // The same file for reading in parts, whatever its size up to 4 GB (EFBIG beyond it).
    virtual Result<std::unique_ptr<ByteSource>> OpenSource(const std::string& path) = 0;

    // Makes `bytes` the content of the file, wholly or not at all: after a failure the old file,
    // or its absence, is as it was. A file without write permission is refused (EACCES), links are
    // followed, permissions kept. A path that names an existing file in other letter case replaces
    // that file.
    virtual Result<void> ReplaceFile(const std::string& path,
                                     std::span<const std::uint8_t> bytes) = 0;

    // The absolute path of an existing regular file, spelled as on the disk.
    virtual std::optional<std::string> Find(const std::string& path) = 0;
    virtual bool FileExists(const std::string& path) = 0;
    virtual Result<void> RemoveFile(const std::string& path) = 0;
    // Gives whatever lies at `from`, links as they stand, the name `to`; a file of that name goes.
    virtual Result<void> RenameFile(const std::string& from, const std::string& to) = 0;

    // Creates the folder, named as written, and those above it, for this user only where it creates
    // them. False when it does not exist afterwards.
    virtual bool MakeFolder(const std::string& folder) = 0;
    // Whether this user may create files in the folder, named as written.
    virtual bool CanWriteIn(const std::string& folder) = 0;
};

}  // namespace kestrel::system
