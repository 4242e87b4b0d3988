#pragma once

#include <string>

#include "formats/IconTable.h"

namespace kestrel::formats {

// Portable executables: programs and libraries of 32 and 64 bits for any processor, as "PE Format"
// in the Windows documentation describes them.

bool IsPe(SourceReader& file);
IconTable ListPe(SourceReader& file);
// A resource's name in UTF-8.
std::string PeText(SourceReader& file, std::uint64_t offset);

}  // namespace kestrel::formats
