#include "platform/controls/ImageList.h"

namespace kestrel::controls {

gdi::IconPlanes ImageList::Picture(int number) const {
    return gdi::ReadIconArt(pictures_[static_cast<std::size_t>(number) - 1], inks_);
}

}  // namespace kestrel::controls
