#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "document/IconDocument.h"

namespace kestrel::editing {

// The undo and redo lists of one document: whole pictures of both planes, oldest first. The last
// undo entry is the picture as it was recorded last.
class ModCollections {
  public:
    explicit ModCollections(document::IconDocument& document) : document_(document) {}

    // Records the planes as they are now.
    void PushUndoSnapshot();
    void ClearRedoList();
    void ClearUndoHistory();

    std::size_t UndoCount() const { return undoList_.size(); }
    std::size_t RedoCount() const { return redoList_.size(); }

  private:
    static constexpr std::size_t kPixels = std::size_t{document::kIconSize} * document::kIconSize;

    // The mask as one bit a pixel (set: white), the colours as three bytes a pixel.
    struct Snapshot {
        std::array<std::uint8_t, kPixels / 8> mask{};
        std::array<std::uint8_t, kPixels * 3> image{};
    };

    document::IconDocument& document_;
    std::vector<Snapshot> undoList_;
    std::vector<Snapshot> redoList_;
};

}  // namespace kestrel::editing
