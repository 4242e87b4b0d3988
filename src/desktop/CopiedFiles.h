#pragma once

#include <QByteArray>
#include <string>

namespace kestrel::desktop {

// The name under which file managers offer the files that are copied.
inline constexpr const char* kFileList = "text/uri-list";

// The path of the first file of this computer in the list whose name ends in .png or .ico; empty
// for none. Format: RFC 2483, section 5, and RFC 8089 for the addresses of files.
std::string CopiedPicture(const QByteArray& list);

}  // namespace kestrel::desktop
