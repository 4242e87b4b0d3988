#include "document/ApplicationIcon.h"

#include "platform/gdi/PixelArt.h"
#include "resources/KestrelIcon.h"

namespace kestrel::document {

IconDocument ApplicationIcon() {
    using namespace resources;
    IconDocument icon;
    icon.PicImage = gdi::ReadPixelArt(kKestrelIcon, kKestrelInks, gdi::kBlack);
    icon.PicMask = gdi::ReadPixelArt(kKestrelIcon, {{'.', gdi::kWhite}}, gdi::kBlack);
    return icon;
}

}  // namespace kestrel::document
