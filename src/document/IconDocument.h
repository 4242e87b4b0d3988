#pragma once

#include <string>
#include <string_view>

#include "formats/IconImage.h"
#include "platform/gdi/Surface.h"

namespace kestrel::document {

// Icon pixels along each side.
inline constexpr int kIconSize = 32;
// The file path of an icon that has no file yet.
inline constexpr std::string_view kUntitled = "Untitled";

// The one open icon. A transparent pixel is white in PicMask and black in PicImage; an opaque pixel
// is black in PicMask and has its colour in PicImage. White in PicMask with any other colour is an
// inverted-screen pixel; such pixels only come from opened files.
struct IconDocument {
    gdi::Surface PicImage{kIconSize, kIconSize, gdi::kBlack};
    gdi::Surface PicMask{kIconSize, kIconSize, gdi::kWhite};

    std::string FilePath{kUntitled};
    // The file-name part of FilePath; empty for a new icon. During and after a save that failed,
    // the name that was tried.
    std::string FileTitle;

    bool Modified = false;
    bool SaveSucceeded = false;
    bool MultipleIcons = false;

    bool IsUntitled() const { return FilePath == kUntitled; }
    bool IsTransparent(int x, int y) const { return PicMask.GetPixel(x, y) == gdi::kWhite; }

    // An empty, untitled, unmodified icon.
    void Reset();

    // Makes `icon` the content of both planes, fitted to 32 x 32 by repeating or dropping pixels.
    void TakeIcon(const formats::IconImage& icon);
};

}  // namespace kestrel::document
