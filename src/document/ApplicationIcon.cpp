#include "document/ApplicationIcon.h"

#include "platform/gdi/PixelArt.h"
#include "resources/KestrelIcon.h"

namespace kestrel::document {

gdi::IconPlanes ApplicationIcon() {
    return gdi::ReadIconArt(resources::kKestrelIcon, resources::kKestrelInks);
}

}  // namespace kestrel::document
