#pragma once

#include <string>
#include <vector>

#include "formats/DibWriter.h"
#include "formats/LibraryWriter.h"
#include "platform/gdi/Blit.h"
#include "tests/formats/HexBytes.h"

namespace kestrel::test {

// The colour of the icons below by their number, counted from 0: no two are alike.
inline gdi::COLORREF ColorOf(int icon) {
    return gdi::Rgb(static_cast<std::uint8_t>(icon), static_cast<std::uint8_t>(icon >> 8), 90);
}

// Of that colour, but pixel 0, 0 is transparent.
inline formats::ImageBytes ColoredIcon(int icon) {
    gdi::IconPlanes planes;
    gdi::PatBlt(planes.mask, planes.Bounds(), gdi::kBlack);
    gdi::PatBlt(planes.image, planes.Bounds(), ColorOf(icon));
    planes.SetTransparent(0, 0);
    return formats::EncodeDib(planes);
}

// A library of 32 bits with so many icons.
inline std::vector<std::uint8_t> LibraryOf(int count) {
    std::vector<formats::LibraryIcon> icons;
    for (int i = 0; i < count; ++i)
        icons.push_back({"", {ColoredIcon(i)}});
    return formats::LibraryBytes(icons).value();
}

// A PNG of 1025 x 1 pixels in the colour of icon 7: wider than what is edited may be.
inline std::vector<std::uint8_t> WidePng() {
    return Hex(
        "89504E470D0A1A0A 0000000D 49484452 00000401 00000001 0103000000 95022548"
        "00000003 504C5445 07005A 298B93B5 0000000C 49444154 78DA63601868000000820001 61084889"
        "00000000 49454E44 AE426082");
}

// An animated cursor of the icons 700 and 701, with no more than a reader needs.
inline std::vector<std::uint8_t> Animation() {
    std::string file = "RIFF    ACON";
    for (const int i : {700, 701}) {
        const auto frame = formats::IconFileOf(std::vector{ColoredIcon(i)});
        file += "icon";
        for (unsigned shift = 0; shift < 32; shift += 8)
            file += static_cast<char>(frame.size() >> shift);
        file.append(frame.begin(), frame.end());
    }
    return {file.begin(), file.end()};
}

}  // namespace kestrel::test
