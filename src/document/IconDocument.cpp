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

void IconDocument::TakeIcon(const formats::IconImage& icon) {
    using formats::DrawPart;
    formats::DrawIcon(PicMask, icon, kIconSize, kIconSize, DrawPart::Mask);
    formats::DrawIcon(PicImage, icon, kIconSize, kIconSize, DrawPart::Image);
}

}  // namespace kestrel::document
