#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/Result.h"
#include "platform/system/ByteSource.h"
#include "platform/system/FileIdentity.h"

namespace kestrel::system {

// A file that was read.
struct LoadedFile {
    // Absolute and spelled as on the disk.
    std::string path;
    // From before the first byte was read.
    FileIdentity identity;
    std::vector<std::uint8_t> bytes;
};

// Access to files. Paths are UTF-8 with '\' or '/' between components; an existing file is found
// as written or else by a match of each component without regard to letter case, unless a function
// says otherwise. Errors carry the errno value and the system's description of it.
class FileSystem {
  public:
    virtual ~FileSystem() = default;

    // The whole content of a regular file of at most `limit` bytes (EFBIG beyond it, EISDIR or
    // EINVAL for anything that is no regular file).
    virtual Result<LoadedFile> LoadFile(const std::string& path, std::size_t limit) = 0;
    Result<std::vector<std::uint8_t>> ReadFile(const std::string& path, std::size_t limit) {
        Result<LoadedFile> file = LoadFile(path, limit);
        if (!file) return tl::unexpected(file.error());
        return std::move(file->bytes);
    }

    // The same file for reading in parts, whatever its size up to 4 GB (EFBIG beyond it).
    virtual Result<std::unique_ptr<ByteSource>> OpenSource(const std::string& path) = 0;

    // Makes `bytes` the content of the file of exactly this path, wholly or not at all: after a
    // failure the old file, or its absence, is as it was. A file without write permission is
    // refused (EACCES), links are followed, permissions kept.
    virtual Result<FileIdentity> ReplaceFile(const std::string& path,
                                             std::span<const std::uint8_t> bytes) = 0;

    // The absolute path of an existing regular file, spelled as on the disk.
    virtual std::optional<std::string> Find(const std::string& path) = 0;
    // The regular file of exactly this path, if there is one.
    virtual std::optional<FileIdentity> Identify(const std::string& path) = 0;
    virtual bool FileExists(const std::string& path) = 0;
    virtual Result<void> RemoveFile(const std::string& path) = 0;
    // Gives whatever lies at `from`, links as they stand, the name `to`; a file of that name goes.
    virtual Result<void> RenameFile(const std::string& from, const std::string& to) = 0;

    // Creates the folder, named as written, and those above it, for this user only where it creates
    // them. False when it does not exist afterwards.
    virtual bool MakeFolder(const std::string& folder) = 0;
};

}  // namespace kestrel::system
