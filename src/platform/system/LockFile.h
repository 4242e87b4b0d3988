#pragma once

#include <chrono>
#include <string>

#include "platform/Result.h"
#include "platform/system/FileHandle.h"

namespace kestrel::system {

// Creates the file as needed and locks it against other processes (and other handles of this one),
// for as long as the handle is open. Waits up to `patience` for a holder to let go, then fails
// with EWOULDBLOCK. The file itself stays: removing it would let two holders lock two files.
Result<FileHandle> LockFile(const std::string& path, std::chrono::milliseconds patience);

}  // namespace kestrel::system
