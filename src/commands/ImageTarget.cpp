#include "commands/ImageTarget.h"

namespace kestrel::commands {

gdi::Surface& ImageTarget::Image() const {
    return IsSelection() ? editor_.Selected().PicSelImage : editor_.Document().PicImage;
}

gdi::Surface& ImageTarget::Mask() const {
    return IsSelection() ? editor_.Selected().PicSelMask : editor_.Document().PicMask;
}

// Each of the three refreshes every view.
void ImageTarget::Show() const {
    editing::Selection& selection = editor_.Selected();
    if (selection.SelectionFloating()) {
        selection.ShowFloatingSelection();
    } else if (selection.SelectionMarked()) {
        selection.StampSelection();
    } else {
        editor_.Views().RedrawAll();
    }
}

void ImageTarget::Record() const {
    editor_.History().ClearRedoList();
    editor_.History().PushUndoSnapshot();
}

void ImageTarget::RecordUnlessSelection() const {
    if (!IsSelection()) Record();
}

}  // namespace kestrel::commands
