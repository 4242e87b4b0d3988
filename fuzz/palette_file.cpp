#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "formats/PaletteFile.h"

// Any text gives colours of 24 bits, and what is written of them is read as the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kestrel;
    const std::vector<char> text(bytes, bytes + size);
    gdi::PaletteColors colors{};
    if (!formats::ReadPaletteText({text.data(), text.size()}, colors)) return 0;
    for (const gdi::COLORREF color : colors) {
        if (color > gdi::kColorBits) std::abort();
    }
    gdi::PaletteColors again{};
    if (!formats::ReadPaletteText(formats::PaletteText(colors), again) || again != colors)
        std::abort();
    return 0;
}
