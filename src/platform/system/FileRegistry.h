#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "platform/system/FileSystem.h"
#include "platform/system/Profile.h"
#include "platform/system/Registry.h"

namespace kestrel::system {

// A registry kept in an INI file with the keys as its sections:
//
//     [ClassesRoot\.ico]
//     @=icofile
//
// "@" is the key's default value. In a value a backslash stands before itself, in \n, \r and \0 for
// a line feed, a carriage return and a zero byte, and in \xHH for other control characters. Keys
// and names that an INI file cannot hold are refused (EINVAL), and so is the name "@".
//
// The sessions of one user may share the file: it is read anew for every question, and changed
// under a lock beside it. A change that another session's lock is in the way of counts as made, and
// is made with the next one or by CatchUp.
class FileRegistry : public Registry {
  public:
    // `files` must outlive this object; the disk is not touched yet. A registry without a path is
    // empty and takes no change.
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

    // Makes what was put off as far as that can be; false when a lock is still in the way. Never
    // waits; but from the first call on a change does, for up to 2 s, until that was in vain. A
    // program that starts has more urgent things to do.
    bool CatchUp();

  private:
    Result<void> Change(const ProfileEdit& edit);
    Result<void> MakePutOff();

    FileSystem& files_;
    std::string path_;
    std::chrono::milliseconds patience_{};
    std::vector<ProfileEdit> putOff_;
};

}  // namespace kestrel::system
