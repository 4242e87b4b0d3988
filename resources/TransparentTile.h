#pragma once

#include <string_view>

namespace kestrel::resources {

// The hatch inside a transparent cell of the editing grid: W white, G grey 0x808080.
inline constexpr std::string_view kTransparentTile = R"(
    W W W W W W W W W
    W W W G W W W G W
    W W G W W W G W W
    W G W W W G W W W
    W W W W G W W W W
    W W W G W W W G W
    W W G W W W G W W
    W G W W W G W W W
    W W W W W W W W W)";

}  // namespace kestrel::resources
