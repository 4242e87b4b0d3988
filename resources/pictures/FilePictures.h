#pragma once

#include <string_view>

namespace kestrel::resources {

// Pictures of files, of the program's windows and of its help.
// Inks: kImageListInks. Light from the upper left.
inline constexpr std::string_view kNew = R"(
    .ddddddddd......
    .dwwwwwwwdd.....
    .dwwwwwwwdld....
    .dwwwwwwwdlld...
    .dwwwwwwwddddd..
    .dwwwwwwwwwwld..
    .dwwwwwwwwFwld..
    .dwwwwwwwFYFld..
    .dwwwwwwwFYFld..
    .dwwwwwFFYyyFF..
    .dwwwwFYYYyyyyF.
    .dwwwwwFFyyfFF..
    .dwwwwwwwFyFld..
    .dwwwwwwwFyFld..
    .dllllllllFlld..
    .ddddddddddddd..)";

inline constexpr std::string_view kOpen = R"(
    ................
    ..FFFFF.........
    .FYYYYYF........
    .FYyyyyyFFFFFF..
    .FYyyyyyyyyyyfF.
    .FYydddddddddfF.
    .FYydwwwwwwwlfF.
    .FYFFFFFFFFFFFFF
    .FYFYYYYYYYYYYfF
    .FFYYyyyyyyyyyfF
    .FFYyyyyyyyyyfF.
    .FYyyyyyyyyyyfF.
    .FYyyyyyyyyyfF..
    .Fyyffffffffff..
    .FFFFFFFFFFFF...
    ................)";

inline constexpr std::string_view kLibrary = R"(
    .CCCCCCCCCCCCCC.
    CWWWWWWWWWWWWWcC
    CWwrwrwWcwbbbwcC
    CWrRrrrWcbBBbbcC
    CWrrrrrWcbBbbbcC
    CWwrrrwWcbbbbncC
    CWwwrwwWcwbnnwcC
    CWWWWWWWWWWWWWcC
    CWcccccccccccccC
    CWwwewwWcwwfwwcC
    CWwGeewWcwfyfwcC
    CWwGeewWcfyyffcC
    CWGeeeeWcwfffwcC
    CWwwCwwWcwwfwwcC
    CccccccccccccccC
    .CCCCCCCCCCCCCC.)";

inline constexpr std::string_view kSave = R"(
    ................
    .NNNNNNNNNNNNN..
    .NBNwlllNNlmNbN.
    .NBNwlllNNlmNbN.
    .NBNwlllNNlmNnN.
    .NBNlllllllmNnN.
    .NBbNNNNNNNNbnN.
    .NBbbbbbbbbbbnN.
    .NBNNNNNNNNNNnN.
    .NBNwwwwwwwwNnN.
    .NBNwmmmmmmwNnN.
    .NBNwwwwwwwwNnN.
    .NBNwmmmmwwlNnN.
    .NnNwwwwwwllNnN.
    .NNNNNNNNNNNNNN.
    ................)";

inline constexpr std::string_view kPrint = R"(
    ...dddddddd.....
    ...dwwwwwwdd....
    ...dwmmmmwdld...
    ...dwwwwwwdddd..
    ...dwmmmmwwwld..
    .dddwwwwwwwwlddd
    dllldddddddddlld
    dwllllllllllllmd
    dwlllllllllerlmd
    dllllllllllllmmd
    dmddddddddddddmd
    dmdwwwwwwwwwwdmd
    .ddwmmmmmmmmwdd.
    ..dwwwwwwwwwld..
    ..dlllllllllld..
    ..dddddddddddd..)";

inline constexpr std::string_view kViewer = R"(
    ................
    CCCCCCCCCCCCCCCC
    CWWWWWWWWWWWWWcC
    CWCCCCCCCCCCCCcC
    CWCBBBBBBBBBBCcC
    CWCBBBBBBByyBCcC
    CWCBBBBBBByyBCcC
    CWCBBGGBBBBBBCcC
    CWCBGGGGBBBBBCcC
    CWCGGGGGGBeeeCcC
    CWCGGGGGeeeeeCcC
    CWCGGGeeeeeeeCcC
    CWCCCCCCCCCCCCcC
    CccccccccccccccC
    CCCCCCCCCCCCCCCC
    ................)";

inline constexpr std::string_view kHelp = R"(
    ..NNNNNNNNNNNN..
    .NBBBBBBBBBBBnN.
    .NBbbbbbbbbbbnN.
    .NBbbwwwwwbbbnN.
    .NBbwwNNNwwbbnN.
    .NBbwwNbbwwNbnN.
    .NBbbNNbwwNNbnN.
    .NBbbbbwwNNbbnN.
    .NBbbbbwwNbbbnN.
    .NBbbbbbNNbbbnN.
    .NBbbbbwwbbbbnN.
    .NBbbbbwwNbbbnN.
    .NNNNNNNNNNNNnN.
    .NwwwwwwwwwwlNN.
    .NlmlmlmlmlmlNN.
    ..NNNNNNNNNNNN..)";

inline constexpr std::string_view kInformation = R"(
    ................
    .....NNNNNN.....
    ...NNBBBBBBNN...
    ..NBBbbwwbbbbN..
    ..NBbbbwwbbbbN..
    .NBBbbbbbbbbbnN.
    .NBbbwwwwbbbbnN.
    .NBbbbbwwbbbbnN.
    .NBbbbbwwbbbbnN.
    .NBbbbbwwbbbnnN.
    .NbbbbbwwbbbnnN.
    ..NbbwwwwwwnnN..
    ..NbbbbbbbnnnN..
    ...NNnnnnnnNN...
    .....NNNNNN.....
    ................)";

inline constexpr std::string_view kLanguage = R"(
    .NNNNNNNNNN.....
    NbbbbwbbbbbN....
    NbnnwnwnnnnN....
    NbnnwnwnnnnN....
    NbnwwwwwnnnN....
    NbnwnnnwnnnN....
    NnnnnnFFFFFFFFF.
    .NNnnFYYYYYYYYYF
    ..NnNFYYYYkYYYYF
    ..NN.FYkkkkkkkYF
    ..N..FYYkYYYkYYF
    .....FYYYkYkYYYF
    .....FYYYYkYYYYF
    .....FYYYkYkYYYF
    .....FYkkYYYkkYF
    ......FFFFFFFFF.)";

inline constexpr std::string_view kHome = R"(
    .......XX..XXX..
    ......XRRX.XcX..
    .....XRrrRXXcX..
    ....XRrrrrRXcX..
    ...XRrrrrrrRXX..
    ..XRrrrrrrrrrX..
    .XRrrrrrrrrrrrX.
    XRrrrrrrrrrrrrrX
    XXXXYYYYYYYYXXXX
    ..CYYYYYYYYYYC..
    ..CYNNNYYCCCYC..
    ..CYNBNYYCcCYC..
    ..CYNNNYYCcCYC..
    ..CYYYYYYCcCfC..
    ..CyyyyyyCcCfC..
    ..CCCCCCCCCCCC..)";

inline constexpr std::string_view kExit = R"(
    CCCCCCCCCC......
    CkkkkkkkkC......
    CCCkkkkkkC......
    CWWCCkkkkC......
    CWcccCkkkC......
    CWcccCkkkEE.....
    CWcccCkkkEGE....
    CWcccCEEEEGGE...
    CWcccCEGGGGGGE..
    CWcyyCEGeeeeeeE.
    CWcyyCEeeeeeeE..
    CWcccCEEEEeeE...
    CWcccCkkkEeE....
    CWcccCkkkEE.....
    CCcccCkkkC......
    ..CCCCCCCC......)";

}  // namespace kestrel::resources
