#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/gdi/Color.h"

namespace kestrel::cli {

// The parts between commas; an empty text is one empty part.
std::vector<std::string_view> Split(std::string_view list);

// A decimal integer that fills the text and lies within the limits.
std::optional<std::int64_t> NumberIn(std::string_view text, std::int64_t least, std::int64_t most);

// R,G,B, each from 0 to 255, or #rrggbb in hexadecimal.
std::optional<gdi::COLORREF> ColorIn(std::string_view text);

}  // namespace kestrel::cli
