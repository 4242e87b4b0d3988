#pragma once

#include <string_view>

namespace kestrel::resources {

// Pictures of what changes a whole image.
// Inks: kImageListInks. Light from the upper left, but for exact turns, which keep theirs.
inline constexpr std::string_view kRotateLeft = R"(
    ................
    .....EEEEEEEEEE.
    ...EEGGGGGGGGGE.
    ..EGGeeeeeeeeeE.
    ..EGeeEEEEEEEEE.
    ..EGeE..........
    EEEGeEEE........
    EGGGeeeENNNNNNNN
    .EGGeeENBBBBBBBN
    ..EGeENbbbbbbbbN
    ...EE.NbbbbbbbbN
    ......NbbbbbbbbN
    ......NbbbbbbbbN
    ......NbbbbbbbbN
    ......NnnnnnnnnN
    ......NNNNNNNNNN)";

inline constexpr std::string_view kRotateRight = R"(
    ................
    .EEEEEEEEEE.....
    .EGGGGGGGGGEE...
    .EeeeeeeeeeGGE..
    .EEEEEEEEEeeGE..
    ..........EeGE..
    ........EEEeGEEE
    NNNNNNNNEeeeGGGE
    NBBBBBBBNEeeGGE.
    NbbbbbbbbNEeGE..
    NbbbbbbbbN.EE...
    NbbbbbbbbN......
    NbbbbbbbbN......
    NbbbbbbbbN......
    NnnnnnnnnN......
    NNNNNNNNNN......)";

inline constexpr std::string_view kRotate = R"(
    .....EEEEE...EE.
    ...EEGGGGGEEEGE.
    ..EGGeeeeeeeGeE.
    .EGeeeEEEEeeeeE.
    .EGeEE...EEeeeE.
    EGeE.....EeeeeE.
    EGeE....EEEEEEE.
    EGeE............
    EGeE........EEEE
    EGeE........EeeE
    .EeeEE....EEeeE.
    .EeeeeEEEEeeeeE.
    ..EeeeeeeeeeeE..
    ...EEeeeeeeEE...
    .....EEEEEE.....
    ................)";

inline constexpr std::string_view kFlipHorizontal = R"(
    ................
    .....N.m.N......
    ....NN.m.NN.....
    ....NN...NN.....
    ...NBN.m.NwN....
    ...NbN.m.NwN....
    ..NBbN...NwwN...
    ..NbbN.m.NwwN...
    .NBbbN.m.NwwwN..
    .NbbbN...NwwwN..
    NBbbbN.m.NwwwwN.
    NbbbbN.m.NwwwwN.
    NbbbbN...NwwwwN.
    NnnnnN.m.NllllN.
    NNNNNN.m.NNNNNN.
    ................)";

inline constexpr std::string_view kFlipVertical = R"(
    .NNNNN..........
    .NnbbBNN........
    .NnbbbbBNN......
    .NnbbbbbbBNN....
    .NnbbbbbbbbBNN..
    .NNNNNNNNNNNNNN.
    ................
    .mm.mm.mm.mm.mm.
    ................
    .NNNNNNNNNNNNNN.
    .NlwwwwwwwwwNN..
    .NlwwwwwwwNN....
    .NlwwwwwNN......
    .NlwwwNN........
    .NNNNN..........
    ................)";

inline constexpr std::string_view kFlip = R"(
    ...........NN...
    ...........NBN..
    .NNNNNNNNNNNBBN.
    .NBBBBBBBBBBBBBN
    .NbbbbbbbbbbbbbN
    .NNNNNNNNNNNbbN.
    ...........NbN..
    ...........NN...
    ...EE...........
    ..EGE...........
    .EGGEEEEEEEEEEE.
    EGGGGGGGGGGGGGE.
    EeeeeeeeeeeeeeE.
    .EeeEEEEEEEEEEE.
    ..EeE...........
    ...EE...........)";

inline constexpr std::string_view kGradient = R"(
    ................
    .NNNNNNNNNNNNNN.
    .NwwwwwwwwwwwwN.
    .NwwwwwwwwwwwwN.
    .NwBwBwBwBwBwBN.
    .NBwBwBwBwBwBwN.
    .NBBBBBBBBBBBBN.
    .NBbBbBbBbBbBbN.
    .NbBbBbBbBbBbBN.
    .NbbbbbbbbbbbbN.
    .NbnbnbnbnbnbnN.
    .NnbnbnbnbnbnbN.
    .NnnnnnnnnnnnnN.
    .NnnnnnnnnnnnnN.
    .NNNNNNNNNNNNNN.
    ................)";

inline constexpr std::string_view kAdjust = R"(
    ..XXXX..........
    ..XRrX..........
    ddXRrXdddddddddd
    dmXRrXlllllllmmd
    ddXrrXdddddddddd
    ..XXXX...EEEE...
    .........EGeE...
    dddddddddEGeEddd
    dlllllllmEGeElmd
    dddddddddEeeEddd
    .....NNNNEEEE...
    .....NBbN.......
    dddddNBbNddddddd
    dlllmNBbNllllmmd
    dddddNbbNddddddd
    .....NNNN.......)";

inline constexpr std::string_view kButtonize = R"(
    ................
    .dddddddddddddd.
    dwwwwwwwwwwwwwmd
    dwwwwwwwwwwwwmmd
    dwwllllllllllmmd
    dwwllBBBByyllmmd
    dwwllBBBByyllmmd
    dwwllBGGBBkllmmd
    dwwllGGGeGkklmmd
    dwwlleeeeekwkmmd
    dwwlllllllkwwkmd
    dwmmmmmmmmkwwwkd
    dmmmmmmmmmkwwwwk
    .dddddddddkwwkkk
    ..........kkwk..
    ...........kkk..)";

inline constexpr std::string_view kInvert = R"(
    ................
    .dddddddddddddd.
    .dwwwwwwkkkkkkd.
    .dwwwwwwkkkkkkd.
    .dwwwwkkwwkkkkd.
    .dwwwkkkwwwkkkd.
    .dwwkkkkwwwwkkd.
    .dwwkkkkwwwwkkd.
    .dwwkkkkwwwwkkd.
    .dwwkkkkwwwwkkd.
    .dwwwkkkwwwkkkd.
    .dwwwwkkwwkkkkd.
    .dwwwwwwkkkkkkd.
    .dwwwwwwkkkkkkd.
    .dddddddddddddd.
    ................)";

}  // namespace kestrel::resources
