#include <algorithm>
#include <cstdint>
#include <memory>
#include <span>

#include "formats/IconExport.h"

using namespace kestrel;

// Whatever the bytes are, taking icons out of them ends, soon and without a fault.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span file(data, size);
    using formats::IconSource;
    const auto source = IconSource::Open(std::make_unique<system::MemoryBytes>(file), "",
                                         IconSource::Lists::Readable);
    if (!source) return 0;
    for (std::size_t icon = 0; icon < std::min<std::size_t>(source->count, 8); ++icon) {
        static_cast<void>(source->NameOf(icon).has_value());
        static_cast<void>(formats::ExportIcon(*source, icon).has_value());
        const auto images = source->Images(icon);
        if (images && !images->empty()) static_cast<void>(source->Pixels(images->back()));
        static_cast<void>(source->Icon(icon, gdi::Size{gdi::kIconSize, gdi::kIconSize}));
    }
    return 0;
}
