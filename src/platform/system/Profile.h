#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Result.h"
#include "platform/system/FileSystem.h"
#include "platform/system/IniText.h"

namespace kestrel::system {

// What an INI file holds. That is nothing where there is no file, or where what lies there is
// damaged: no regular file, larger than 1 MB, or no text.
Result<IniText> ReadProfile(FileSystem& files, const std::string& file);

// Changes a text; false when there was nothing to change, which costs no write.
using ProfileEdit = std::function<bool(IniText&)>;

// Changes what an INI file holds, creating it and its folder as needed. What is damaged is first
// kept under its name with ".damaged" added, in place of what was kept there before.
Result<void> ChangeProfile(FileSystem& files, const std::string& file, const ProfileEdit& edit);

// The value of `key` in `[section]` of an INI file; `otherwise` when it is absent or the file
// cannot be read. A value ends after 2,048 characters at the latest.
std::string ReadProfileString(FileSystem& files, std::string_view section, std::string_view key,
                              std::string_view otherwise, const std::string& file);

// Sets that value. Texts that would not read back as given are refused (EINVAL).
Result<void> WriteProfileString(FileSystem& files, std::string_view section, std::string_view key,
                                std::string_view value, const std::string& file);

}  // namespace kestrel::system
