#include "editing/ModCollections.h"

namespace kestrel::editing {

void ModCollections::PushUndoSnapshot() {
    Snapshot& snapshot = undoList_.emplace_back();
    const auto masks = document_.PicMask.Pixels();
    const auto colors = document_.PicImage.Pixels();
    for (std::size_t i = 0; i < kPixels; ++i) {
        if (masks[i] == gdi::kWhite) {
            snapshot.mask[i / 8] = static_cast<std::uint8_t>(snapshot.mask[i / 8] | 1U << i % 8);
        }
        snapshot.image[3 * i] = gdi::Red(colors[i]);
        snapshot.image[3 * i + 1] = gdi::Green(colors[i]);
        snapshot.image[3 * i + 2] = gdi::Blue(colors[i]);
    }
}

void ModCollections::ClearRedoList() {
    redoList_.clear();
}

void ModCollections::ClearUndoHistory() {
    undoList_.clear();
    redoList_.clear();
}

}  // namespace kestrel::editing
