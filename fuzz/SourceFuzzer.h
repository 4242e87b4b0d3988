#pragma once

#include <algorithm>
#include <cstdint>
#include <span>

#include "formats/IconTable.h"

namespace kestrel::fuzz {

// Reads the bytes as this kind of source, whatever they begin with: all icons are listed, the first
// few looked into.
inline void ReadAs(formats::SourceKind kind, std::span<const std::uint8_t> file) {
    const auto formats = formats::Formats();
    const auto format = std::ranges::find(formats, kind, &formats::Format::kind);
    system::MemoryBytes bytes(file);
    formats::SourceReader reader(bytes);
    const formats::IconTable table = formats::ListReadable(*format, reader);
    for (const auto& icon :
         std::span(table.icons).first(std::min<std::size_t>(table.icons.size(), 8))) {
        if (icon.named) static_cast<void>(format->text(reader, icon.name));
        static_cast<void>(format->images(reader, table, icon));
    }
}

}  // namespace kestrel::fuzz
