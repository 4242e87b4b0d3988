#include "platform/controls/ImageList.h"

namespace kestrel::controls {

gdi::Surface ImageList::Image(int number) const {
    return gdi::ReadPixelArt(pictures_[static_cast<std::size_t>(number) - 1], inks_, gdi::kBlack);
}

gdi::Surface ImageList::Mask(int number) const {
    return gdi::ReadPixelArt(pictures_[static_cast<std::size_t>(number) - 1], {{'.', gdi::kWhite}},
                             gdi::kBlack);
}

}  // namespace kestrel::controls
