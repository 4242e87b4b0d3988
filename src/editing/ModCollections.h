#pragma once

#include "document/IconDocument.h"
#include "editing/EditingLog.h"

namespace kestrel::editing {

// The undo and redo history of one document, without a limit. Its entries are pictures of both
// planes; the last undo entry is the picture as it was recorded last. The log is told of all that
// becomes of it.
class ModCollections {
  public:
    ModCollections(const document::IconDocument& document, EditingLog& log)
        : document_(document), log_(log) {}

    // Records the planes as they are now. A redo list that was not emptied before leads on from
    // another picture and goes.
    void PushUndoSnapshot();
    void ClearRedoList();
    void ClearUndoHistory();
    // Takes another history in the place of this one.
    void Replace(PictureHistory pictures);

    // Planes that were changed without being recorded count as one more entry, which CanUndo and
    // PopUndoSnapshot record first: nothing that the user saw is out of reach.
    bool CanUndo();
    bool CanRedo() const { return !pictures_.RedoSteps().empty(); }

    // One step back or forward: the picture that the caller is to bring into the planes. Null when
    // there is none: then nothing happens.
    [[nodiscard]] const PackedPicture* PopUndoSnapshot();
    [[nodiscard]] const PackedPicture* PopRedoSnapshot();

    std::size_t UndoCount() const {
        return pictures_.UndoSteps().size() + (pictures_.IsEmpty() ? 0 : 1);
    }
    std::size_t RedoCount() const { return pictures_.RedoSteps().size(); }
    const PictureHistory& Pictures() const { return pictures_; }

  private:
    void Do(HistoryAct act, PictureDifference change);
    void RecordUnrecorded();
    const PackedPicture* Step(HistoryAct act, const PictureHistory::Steps& steps);

    const document::IconDocument& document_;
    EditingLog& log_;
    PictureHistory pictures_;
};

}  // namespace kestrel::editing
