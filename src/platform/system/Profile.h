#pragma once

#include <string>
#include <string_view>

#include "platform/Result.h"
#include "platform/system/FileSystem.h"

namespace kestrel::system {

// The value of `key` in `[section]` of an INI file, names matched without regard to letter case;
// `otherwise` when it is absent or the file cannot be read. A value ends after 2,048 characters at
// the latest; blanks around it and one pair of quotes are not part of it.
std::string ReadProfileString(FileSystem& files, std::string_view section, std::string_view key,
                              std::string_view otherwise, const std::string& file);

// Sets that value and leaves every other line of the file as it is, creating file and section as
// needed. A file that cannot be read back as text of at most 1 MB is left alone and reported, and
// so are texts that would not read back as given (EINVAL). A value the file holds is not rewritten.
Result<void> WriteProfileString(FileSystem& files, std::string_view section, std::string_view key,
                                std::string_view value, const std::string& file);

}  // namespace kestrel::system
