#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "platform/system/FileSystem.h"
#include "platform/system/Registry.h"
#include "platform/system/RegistryText.h"

namespace kestrel::system {

// A registry kept in one text file, whose folder is made when the first value is written. The
// sessions of one user may share the file: it is read anew for every question, and changed under a
// lock beside it. A file that is not wholly understood holds nothing and is never written to.
class FileRegistry : public Registry {
  public:
    // `files` must outlive this object; the disk is not touched yet.
    FileRegistry(FileSystem& files, std::string path);

    std::optional<std::string> ReadValue(RegistryRoot root, std::string_view key,
                                         std::string_view name) override;
    // A key also exists when only keys below it do.
    bool KeyExists(RegistryRoot root, std::string_view key) override;
    // A value that is there already costs no write.
    Result<void> WriteValue(RegistryRoot root, std::string_view key, std::string_view name,
                            std::string_view value) override;
    Result<void> ChangeValues(RegistryRoot root, std::string_view key,
                              std::span<const NamedValue> values) override;

  private:
    // Changes the keys; false when there was nothing to change.
    using Edit = std::function<bool(RegistryKeys&)>;

    Result<RegistryKeys> Load();
    Result<void> Change(const Edit& edit);
    Result<void> Store(const RegistryKeys& keys);

    FileSystem& files_;
    std::string path_;
    // Spent on a lock that another session holds; after that nothing waits any more.
    std::chrono::milliseconds lockPatience_{2000};
};

}  // namespace kestrel::system
