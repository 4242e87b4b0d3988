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
    ..EGeENBbbbbbbnN
    ...EE.NBbbbbbbnN
    ......NBbbbbbbnN
    ......NBbbbbbbnN
    ......NBbbbbbbnN
    ......NBnnnnnnnN
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
    NnbbbbbbBNEeGE..
    NnbbbbbbBN.EE...
    NnbbbbbbBN......
    NnbbbbbbBN......
    NnbbbbbbBN......
    NnnnnnnnBN......
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
    .....N.d.N......
    ....NN.d.NN.....
    ....NN...NN.....
    ...NBN.d.NwN....
    ...NbN.d.NwN....
    ..NBbN...NwwN...
    ..NbbN.d.NwwN...
    .NBbbN.d.NwwwN..
    .NbbbN...NwwwN..
    NBbbbN.d.NwwwwN.
    NbbbbN.d.NwwwwN.
    NbbbbN...NwwwwN.
    NnnnnN.d.NllllN.
    NNNNNN.d.NNNNNN.
    ................)";

inline constexpr std::string_view kFlipVertical = R"(
    .NNNNN..........
    .NnbbBNN........
    .NnbbbbBNN......
    .NnbbbbbbBNN....
    .NnbbbbbbbbBNN..
    .NNNNNNNNNNNNNN.
    ................
    .dd.dd.dd.dd.dd.
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
    ...XXXX.........
    ...XRrX.........
    dddXRrXddddddddd
    dlmXRrXllllllllm
    dddXrrXddddddddd
    ...XXXXEEEE.....
    .......EGeE.....
    dddddddEGeEddddd
    dlllllmEGeElllld
    dddddddEeeEddddd
    .......EEEENNNN.
    ...........NBbN.
    dddddddddddNBbNd
    dllllllllllNBbNd
    dddddddddddNbbNd
    ...........NNNN.)";

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
