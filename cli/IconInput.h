#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "imaging/PasteFit.h"
#include "platform/Result.h"
#include "platform/gdi/IconPlanes.h"

namespace kestrel::cli {

// Every failure below begins with the file's name.

// The bytes of a file of icons, of a pipe or of standard input ("-").
Result<std::vector<std::uint8_t>> ReadInput(const std::string& name);

// The icon in a file, as the editor opens it. A PNG, told by its content, is pasted at the top left
// of an empty icon instead: a larger one is fitted, a smaller one leaves the rest transparent.
Result<gdi::IconPlanes> ReadIcon(const std::string& name, imaging::PasteFit fit);

// A reader's failure for this file.
tl::unexpected<Error> InputFailure(const std::string& name, const Error& error);

}  // namespace kestrel::cli
