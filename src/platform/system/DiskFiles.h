#pragma once

#include "platform/system/FileCalls.h"
#include "platform/system/FileSystem.h"

namespace kestrel::system {

// How a path names a file: as FileSystem says, or byte for byte, as everywhere else on the system.
enum class PathNames { AnyCase, AsWritten };

// The files of the running system.
class DiskFiles : public FileSystem {
  public:
    explicit DiskFiles(PathNames names = PathNames::AnyCase);
    // `calls` must outlive this object.
    explicit DiskFiles(FileCalls& calls);
    DiskFiles(const DiskFiles&) = delete;
    DiskFiles& operator=(const DiskFiles&) = delete;

    Result<LoadedFile> LoadFile(const std::string& path, std::size_t limit) override;
    Result<std::unique_ptr<ByteSource>> OpenSource(const std::string& path) override;
    // The new content is written to a file without a name (else to a hidden one) in the old one's
    // folder, which then replaces the old one under its name, with its permissions. Other hard
    // links to the old file keep the old content. Needs write permission to the folder too.
    Result<FileIdentity> ReplaceFile(const std::string& path,
                                     std::span<const std::uint8_t> bytes) override;
    std::optional<std::string> Find(const std::string& path) override;
    std::optional<FileIdentity> Identify(const std::string& path) override;
    bool FileExists(const std::string& path) override;
    Result<void> RemoveFile(const std::string& path) override;
    Result<void> RenameFile(const std::string& from, const std::string& to) override;
    bool MakeFolder(const std::string& folder) override;

  private:
    std::string Resolved(const std::string& path) const;
    Result<LoadedFile> ReadOpened(int file, std::size_t limit);

    FileCalls systemCalls_;
    FileCalls& calls_;
    PathNames names_ = PathNames::AnyCase;
};

}  // namespace kestrel::system
