#pragma once

#include <string>
#include <string_view>

namespace kestrel::system {

// The part of a path after its last '\' or '/'; the whole path when it has none.
std::string_view FileTitleOf(std::string_view path);

// The last component of a path as it stands on the disk, where '\' may be part of a name.
std::string_view NameOnDisk(std::string_view path);

// The part of a path before its last '\' or '/', without it; empty when it has none.
std::string_view FolderOf(std::string_view path);

// The path of an existing file or folder that `path` names, with '/' between components: as
// written when that exists, else with '\' read as '/', else by a match of each component without
// regard to letter case (the first in byte order when several match). Components that match
// nothing are kept as written, so the result is also the path under which a new file is created.
std::string ResolvePath(const std::string& path);

// Each word's first letter upper-case, its other letters lower-case; blanks and path separators
// end a word. Only ASCII letters change.
std::string ProperCase(std::string_view text);

}  // namespace kestrel::system
