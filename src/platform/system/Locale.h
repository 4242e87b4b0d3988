#pragma once

#include <cstdint>
#include <string_view>

namespace kestrel::system {

// The Windows locale identifier of a POSIX locale name such as "zh_CN.UTF-8"; 1033 (English,
// United States) for "C", "POSIX" and names it does not know. Numbers: [MS-LCID].
std::uint32_t LcidOfLocaleName(std::string_view name);

// The identifier of the locale the environment asks for (LC_ALL, LC_MESSAGES, LANG).
std::uint32_t GetSystemDefaultLCID();

}  // namespace kestrel::system
