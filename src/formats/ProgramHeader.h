#pragma once

#include <cstdint>
#include <optional>

#include "formats/SourceReader.h"

namespace kestrel::formats {

// Programs of all kinds begin as one for DOS does, "MZ" and 64 bytes of header, the last four of
// which tell where the header of the program proper lies: anywhere, also inside the first.
inline std::optional<std::uint64_t> ProgramHeader(SourceReader& file) {
    constexpr std::uint16_t kDosSignature = 0x5A4D;
    const auto dos = file.Record<64>(0);
    if (dos.U16(0) != kDosSignature) return std::nullopt;
    return dos.U32(60);
}

}  // namespace kestrel::formats
