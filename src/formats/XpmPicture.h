#pragma once

#include <string_view>

#include "platform/Result.h"
#include "platform/gdi/IconPlanes.h"

namespace kestrel::formats {

// Reads an XPM picture of version 3, the text of a C array: size, colours and rows as strings.
// Colours are "#RRGGBB" or "None", which is transparent. Fails with kInvalidPicture, telling what
// is wrong.
Result<gdi::IconPlanes> ReadXpm(std::string_view text);

}  // namespace kestrel::formats
