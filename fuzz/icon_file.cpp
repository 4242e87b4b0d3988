#include <algorithm>
#include <cstdint>
#include <span>

#include "formats/IconFile.h"

using namespace kestrel;

// Whatever the bytes are, reading them as an icon file ends, soon and without a fault.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span<const std::uint8_t> file(data, size);
    if (const auto entries = formats::ListImages(file)) {
        // A directory may name one image many times; the first few of them tell enough.
        for (const auto& entry :
             std::span(*entries).first(std::min<std::size_t>(entries->size(), 16)))
            static_cast<void>(formats::DecodeImage(file, entry).has_value());
    }
    static_cast<void>(formats::ReadBestImage(file, gdi::Size{gdi::kIconSize, gdi::kIconSize}));
    return 0;
}
