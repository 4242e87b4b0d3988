#pragma once

#include <array>
#include <string_view>

#include "platform/gdi/PixelArt.h"
#include "resources/pictures/ArrowPictures.h"
#include "resources/pictures/EditPictures.h"
#include "resources/pictures/FilePictures.h"
#include "resources/pictures/ImagePictures.h"
#include "resources/pictures/ToolPictures.h"

namespace kestrel::resources {

// The pictures of the menus and of the toolbar, 16 x 16 each, dots see-through. Every material has
// an outline in its own darkest shade, so that the pictures stand on light and on dark windows.
inline constexpr auto kImageListInks = std::to_array<gdi::ArtInk>({
    {'k', gdi::Rgb(40, 40, 52)},     // lettering
    {'d', gdi::Rgb(84, 92, 112)},    // graphite
    {'m', gdi::Rgb(140, 150, 168)},  // grey
    {'l', gdi::Rgb(204, 212, 222)},  // silver
    {'w', gdi::Rgb(255, 255, 252)},  // white
    {'F', gdi::Rgb(148, 92, 20)},    // ochre
    {'f', gdi::Rgb(220, 152, 40)},   // amber
    {'y', gdi::Rgb(246, 196, 76)},   // gold
    {'Y', gdi::Rgb(255, 230, 144)},  // straw
    {'N', gdi::Rgb(36, 72, 136)},    // navy
    {'n', gdi::Rgb(56, 108, 180)},   // steel
    {'b', gdi::Rgb(92, 152, 220)},   // blue
    {'B', gdi::Rgb(168, 208, 246)},  // sky
    {'E', gdi::Rgb(32, 100, 52)},    // fir
    {'e', gdi::Rgb(88, 172, 72)},    // leaf
    {'G', gdi::Rgb(172, 220, 116)},  // lime
    {'X', gdi::Rgb(144, 28, 40)},    // wine
    {'r', gdi::Rgb(222, 68, 56)},    // red
    {'R', gdi::Rgb(250, 148, 116)},  // coral
    {'C', gdi::Rgb(108, 64, 36)},    // umber
    {'c', gdi::Rgb(184, 120, 68)},   // wood
    {'W', gdi::Rgb(230, 180, 124)},  // pine
    {'p', gdi::Rgb(152, 104, 188)},  // violet
});

// Picture number n of the image list is kImageList[n - 1].
inline constexpr std::array<std::string_view, 40> kImageList = {
    kNew,              // 1
    kOpen,             // 2
    kLibrary,          // 3
    kSave,             // 4
    kUndo,             // 5
    kRedo,             // 6
    kCut,              // 7
    kCopy,             // 8
    kPaste,            // 9
    kDelete,           // 10
    kCapture,          // 11
    kHelp,             // 12
    kMagnifier,        // 13
    kTest,             // 14
    kRotateLeft,       // 15
    kRotateRight,      // 16
    kFlipHorizontal,   // 17
    kFlipVertical,     // 18
    kPalette,          // 19
    kHome,             // 20
    kGradient,         // 21
    kLoadPalette,      // 22
    kSavePalette,      // 23
    kPrint,            // 24
    kInformation,      // 25
    kLanguage,         // 26
    kViewer,           // 27
    kScreenshot,       // 28
    kAdjust,           // 29
    kRotate,           // 30
    kButtonize,        // 31
    kInvert,           // 32
    kClipboardViewer,  // 33
    kMoveUp,           // 34
    kMoveDown,         // 35
    kMoveLeft,         // 36
    kMoveRight,        // 37
    kRoll,             // 38
    kExit,             // 39
    kFlip,             // 40
};

}  // namespace kestrel::resources
