#pragma once

#include <string>

#include "formats/IconTable.h"

namespace kestrel::formats {

// New executables: programs and libraries of 16 bits, and the icon libraries made in their image
// (".icl"), as "Executable-File Header Format" (Microsoft KB Q65260) describes them.

// Programs for OS/2 are none of these, whose resources are others.
bool IsNe(SourceReader& file);
IconTable ListNe(SourceReader& file);
// A resource's name; its bytes beyond ASCII are taken for Latin-1.
std::string NeText(SourceReader& file, std::uint64_t offset);

}  // namespace kestrel::formats
