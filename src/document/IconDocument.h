#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/gdi/IconPlanes.h"
#include "platform/system/FileIdentity.h"

namespace kestrel::document {

// The file path of an icon that has no file yet.
inline constexpr std::string_view kUntitled = "Untitled";

// The one open icon: its planes of 32 x 32 pixels and what is known of its file.
class IconDocument {
  public:
    // Otherwise the absolute path, spelled as on the disk, of the file opened or saved last.
    std::string FilePath{kUntitled};
    // That file as it was then.
    std::optional<system::FileIdentity> FileOnDisk;
    // The file-name part of FilePath; empty for a new icon. During and after a save that failed,
    // the name that was tried.
    std::string FileTitle;

    bool Modified = false;
    bool SaveSucceeded = false;
    bool MultipleIcons = false;

    const gdi::IconPlanes& Planes() const { return planes_; }
    const gdi::Surface& PicImage() const { return planes_.image; }
    const gdi::Surface& PicMask() const { return planes_.mask; }
    // For edits, which refresh what shows the planes.
    gdi::IconPlanes& ChangePlanes() { return planes_; }

    bool IsUntitled() const { return FilePath == kUntitled; }
    bool IsTransparent(int x, int y) const { return planes_.IsTransparent(x, y); }

    // An empty, untitled, unmodified icon.
    void Reset() { *this = {}; }

  private:
    gdi::IconPlanes planes_;
};

}  // namespace kestrel::document
