#pragma once

#include <array>
#include <string_view>

namespace kestrel::resources {

// Pictures beside the colour wells and beside the preview, dots see-through. Inks: kImageListInks.

// 16 x 16: the black and the white that the wells begin with.
inline constexpr std::string_view kDefaultColors = R"(
    ................
    .mmmmmmmmmm.....
    .mkkkkkkkkm.....
    .mkkkkkkkkm.....
    .mkkkkkkkkm.....
    .mkkkkkkkkmmmmm.
    .mkkkkkkkkmwwwm.
    .mkkkkkkkkmwwwm.
    .mkkkkkkkkmwwwm.
    .mkkkkkkkkmwwwm.
    .mmmmmmmmmmwwwm.
    .....mwwwwwwwwm.
    .....mwwwwwwwwm.
    .....mwwwwwwwwm.
    .....mmmmmmmmmm.
    ................)";

// 16 x 16: the two wells change places.
inline constexpr std::string_view kInterchangeColors = R"(
    ................
    ....NN..........
    ...NBN..........
    ..NBBNNNNNN.....
    .NBBBBBBBBBN....
    .NbbbbbbbbbbN...
    ..NbbNNNNNbbN...
    ...NbN...NbbN...
    ....NN...NbbN...
    .........NbbN...
    .......NNNbbNNN.
    .......NBbbbbbN.
    ........NBbbbN..
    .........NBbN...
    ..........NN....
    ................)";

// 16 x 16: the place of a colour that is not there.
inline constexpr std::string_view kTransparentMarker = R"(
    ................
    .mmmmmmmmmmmmmm.
    .mwwwlllwwwlrrm.
    .mwwwlllwwwrrXm.
    .mwwwlllwwrrXlm.
    .mlllwwwlrrXwwm.
    .mlllwwwrrXwwwm.
    .mlllwwrrXlwwwm.
    .mwwwlrrXwwlllm.
    .mwwwrrXwwwlllm.
    .mwwrrXlwwwlllm.
    .mlrrXwwlllwwwm.
    .mrrXlwwlllwwwm.
    .mrXllwwlllwwwm.
    .mmmmmmmmmmmmmm.
    ................)";

// 11 x 11: where the pointer is.
inline constexpr std::string_view kPointerPictogram = R"(
    .....n.....
    ...mmnmm...
    ..mwwnwwm..
    .mwwwnwwwm.
    .mwwwwwwwm.
    nnnnwrwnnnn
    .mwwwwwwwm.
    .mwwwnwwwm.
    ..mwwnwwm..
    ...mmnmm...
    .....n.....)";

// 11 x 11: how far the pointer was dragged.
inline constexpr std::string_view kDragSizePictogram = R"(
    mmmmmmmmmmm
    mwwwwwwwwwm
    mwnnnnwwwwm
    mwnnwwwwwwm
    mwnwnwwwwwm
    mwnwwnwwnwm
    mwwwwwnwnwm
    mwwwwwwnnwm
    mwwwwnnnnwm
    mwwwwwwwwwm
    mmmmmmmmmmm)";

// Counted from 1, as an image list does.
inline constexpr std::array kWellPictures = {kDefaultColors, kInterchangeColors, kTransparentMarker,
                                             kPointerPictogram, kDragSizePictogram};
inline constexpr int kDefaultColorsPicture = 1;
inline constexpr int kInterchangeColorsPicture = 2;
inline constexpr int kTransparentMarkerPicture = 3;
inline constexpr int kPointerPicture = 4;
inline constexpr int kDragSizePicture = 5;

}  // namespace kestrel::resources
