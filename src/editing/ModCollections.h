#pragma once

#include <deque>
#include <optional>

#include "document/IconDocument.h"
#include "editing/PackedPicture.h"

namespace kestrel::editing {

// The undo and redo history of one document, without a limit. Its entries are pictures of both
// planes, oldest first; the last undo entry is the picture as it was recorded last. Only that one
// is kept whole; of the others, what differs from the entry beside them.
class ModCollections {
  public:
    explicit ModCollections(const document::IconDocument& document) : document_(document) {}

    // Records the planes as they are now. A redo list that was not emptied before leads on from
    // another picture and goes.
    void PushUndoSnapshot();
    void ClearRedoList();
    void ClearUndoHistory();

    // Planes that were changed without being recorded count as one more entry, which CanUndo and
    // PopUndoSnapshot record first: nothing that the user saw is out of reach.
    bool CanUndo();
    bool CanRedo() const { return !redoList_.empty(); }

    // One step back or forward: the picture that the caller is to bring into the planes. Null when
    // there is none: then nothing happens.
    [[nodiscard]] const PackedPicture* PopUndoSnapshot();
    [[nodiscard]] const PackedPicture* PopRedoSnapshot();

    std::size_t UndoCount() const { return undoList_.size() + (last_ ? 1 : 0); }
    std::size_t RedoCount() const { return redoList_.size(); }

  private:
    using Steps = std::deque<PictureDifference>;

    void RecordUnrecorded();
    const PackedPicture* Step(Steps& from, Steps& to);

    const document::IconDocument& document_;
    // The entry recorded last, and the steps that lead away from it, the nearest at the end.
    std::optional<PackedPicture> last_;
    Steps undoList_;
    Steps redoList_;
};

}  // namespace kestrel::editing
