#pragma once

#include <cstdint>
#include <vector>

#include "document/IconDocument.h"

namespace kestrel::cli {

// The icon as a PNG of 8-bit red, green, blue and alpha; transparent pixels are black.
std::vector<std::uint8_t> PngBytes(const document::IconDocument& icon);

}  // namespace kestrel::cli
