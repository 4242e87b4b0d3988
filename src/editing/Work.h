#pragma once

#include <array>
#include <optional>
#include <string>

#include "document/IconDocument.h"
#include "editing/PackedPicture.h"
#include "editing/Palette.h"
#include "resources/DefaultPalette.h"

namespace kestrel::editing {

// What the user would miss of an editor, besides the history: at first that of a new icon.
struct Work {
    struct Floating {
        GridPoint leftTop;
        gdi::IconPlanes planes;
        bool operator==(const Floating& other) const {
            return leftTop == other.leftTop && planes.SamePixels(other.planes);
        }
    };
    struct Well {
        gdi::COLORREF color = gdi::kBlack;
        bool transparent = false;
        bool operator==(const Well&) const = default;
    };
    // What the document knows of its file.
    struct File {
        std::string path{document::kUntitled};
        std::string title;
        std::optional<system::FileIdentity> onDisk;
        bool multipleIcons = false;
        bool operator==(const File&) const = default;
    };
    struct Colors {
        gdi::PaletteColors palette = resources::kDefaultPalette;
        PaletteKind kind = PaletteKind::Default;
        bool chkPal = false;
        bool operator==(const Colors&) const = default;
    };

    PackedPicture planes = EmptyPicture();
    std::optional<Floating> floating;
    File file;
    bool modified = false;
    // Left and right.
    std::array<Well, 2> wells{{{gdi::kBlack, false}, {gdi::kWhite, false}}};
    Colors colors;
    bool operator==(const Work&) const = default;
};

}  // namespace kestrel::editing
