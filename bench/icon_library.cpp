// Writes an icon library as large as is asked for: icon_library <library> <icons>
// Every icon has pixels of its own, 32 x 32 and 16 x 16.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "formats/DibWriter.h"
#include "formats/LibraryWriter.h"
#include "platform/system/DiskFiles.h"

namespace {

using namespace kestrel;

// Some hundred colours, as many icons have, with a transparent rim.
formats::ImageBytes Picture(std::uint32_t seed, int side) {
    gdi::IconPlanes planes(side, side);
    for (int y = 1; y < side - 1; ++y) {
        for (int x = 1; x < side - 1; ++x) {
            const auto shade = static_cast<std::uint8_t>((x * 8 + y) & 0xF0);
            planes.SetOpaque(x, y, gdi::Rgb(shade, static_cast<std::uint8_t>(seed), 0x80));
        }
    }
    planes.SetOpaque(side / 2, side / 2, seed & gdi::kWhite);
    return formats::EncodeDib(planes);
}

}  // namespace

int main(int argc, char* argv[]) {
    const long count = argc == 3 ? std::strtol(argv[2], nullptr, 10) : 0;
    if (count < 1) {
        std::fputs("Usage: icon_library <library> <icons>\n", stderr);
        return 2;
    }
    std::vector<formats::LibraryIcon> icons(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < icons.size(); ++i) {
        const auto seed = static_cast<std::uint32_t>(i * 2654435761U);
        icons[i].images = {Picture(seed, gdi::kIconSize), Picture(seed, gdi::kIconSize / 2)};
    }
    const auto bytes = formats::LibraryBytes(icons);
    system::DiskFiles files(system::PathNames::AsWritten);
    if (bytes && files.ReplaceFile(argv[1], *bytes)) return 0;
    std::fprintf(stderr, "%s cannot be written\n", argv[1]);
    return 1;
}
