#pragma once

#include <cstdint>
#include <string_view>

namespace kestrel::system {

// How many characters of a UTF-8 text take two bytes in the ANSI code page of a locale, given by
// its identifier. None outside East Asia; characters that the code page lacks take one.
int DoubleByteCharacters(std::string_view text, std::uint32_t lcid);

}  // namespace kestrel::system
