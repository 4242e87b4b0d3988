#pragma once

#include <array>
#include <string_view>

namespace kestrel::resources {

// The pictures of the magnifier's two switches, 16 x 16, dots see-through. Inks: kImageListInks.

// Enlarged pixels with lines between them.
inline constexpr std::string_view kPixelGrid = R"(
    NNNNNNNNNNNNNNNN
    NwwwwNBBBBNwwwwN
    NwwwwNBbbbNwwwwN
    NwwwwNBbbbNwwwwN
    NwwwwNBbbbNwwwwN
    NNNNNNNNNNNNNNNN
    NBBBBNYYYYNBBBBN
    NBbbbNYyyyNBbbbN
    NBbbbNYyyyNBbbbN
    NBbbbNYyyyNBbbbN
    NNNNNNNNNNNNNNNN
    NwwwwNBBBBNwwwwN
    NwwwwNBbbbNwwwwN
    NwwwwNBbbbNwwwwN
    NwwwwNBbbbNwwwwN
    NNNNNNNNNNNNNNNN)";

// A pin that holds the window where it is.
inline constexpr std::string_view kPin = R"(
    ................
    .........XX.....
    ........XRRX....
    ........XRrrX...
    .......XRRrrrX..
    ...X..XRRrrrrrX.
    ..XRXXRRrrrrrrX.
    ..XRRRRrrrrXXX..
    ..XrRRrrrrX.....
    ...XrRrrrX......
    ....XrrrrX......
    ...ddXrrrrX.....
    ..dld.XrrrX.....
    .dld...XXX......
    .dd.............
    ................)";

// Counted from 1, as an image list does.
inline constexpr std::array kZoomPictures = {kPixelGrid, kPin};
inline constexpr int kPixelGridPicture = 1;
inline constexpr int kPinPicture = 2;

}  // namespace kestrel::resources
