#pragma once

#include <string>
#include <string_view>

#include "platform/Result.h"
#include "platform/gdi/IconPlanes.h"
#include "platform/system/FileSystem.h"

namespace kestrel::tools {

// Names in the Windows folder.
inline constexpr std::string_view kPrintedIcon = "tmp001.ico";
inline constexpr std::string_view kPreviewedIcon = "tmp111.ico";

// What would be saved of the icon: written to the file of this name in the folder and read back.
// The file is gone afterwards, also when that failed. Where there is no folder it goes by memory.
Result<gdi::IconPlanes> ThroughTemporaryFile(system::FileSystem& files, const std::string& folder,
                                             std::string_view name, const gdi::IconPlanes& icon);

// Removes the files that a run which was killed left in the folder, unless one that lives, on
// another display, is about to read them.
void RemoveLeftTemporaries(system::FileSystem& files, const std::string& folder);

}  // namespace kestrel::tools
