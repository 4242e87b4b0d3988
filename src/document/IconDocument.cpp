#include "document/IconDocument.h"

namespace kestrel::document {

void IconDocument::Reset() {
    FilePath = kUntitled;
    FileTitle.clear();
    SaveSucceeded = false;
    Modified = false;
    MultipleIcons = false;
    PicImage.Clear();
    PicMask.Clear();
}

}  // namespace kestrel::document
