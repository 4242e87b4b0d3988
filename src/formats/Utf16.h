#pragma once

#include <string>

#include "formats/ByteReader.h"

namespace kestrel::formats {

// Text of 16-bit little-endian units as UTF-8; halves of a pair that stand alone become U+FFFD.
std::string Utf8OfUtf16(Bytes text);

// Appends one character.
void AppendUtf8(std::string& text, char32_t character);

}  // namespace kestrel::formats
