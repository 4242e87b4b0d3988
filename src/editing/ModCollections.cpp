#include "editing/ModCollections.h"

#include <utility>

namespace kestrel::editing {

void ModCollections::PushUndoSnapshot() {
    Do(HistoryAct::Recorded, {pictures_.Present(), Pack(document_.Planes())});
}

void ModCollections::ClearRedoList() {
    if (CanRedo()) Do(HistoryAct::RedoCleared, {});
}

void ModCollections::ClearUndoHistory() {
    Do(HistoryAct::Cleared, {});
}

void ModCollections::Replace(PictureHistory pictures) {
    pictures_ = std::move(pictures);
    log_.HistoryReplaced();
}

bool ModCollections::CanUndo() {
    RecordUnrecorded();
    return !pictures_.UndoSteps().empty();
}

const PackedPicture* ModCollections::PopUndoSnapshot() {
    RecordUnrecorded();
    return Step(HistoryAct::Back, pictures_.UndoSteps());
}

const PackedPicture* ModCollections::PopRedoSnapshot() {
    return Step(HistoryAct::Forward, pictures_.RedoSteps());
}

void ModCollections::RecordUnrecorded() {
    if (!pictures_.IsEmpty() && Pack(document_.Planes()) != pictures_.Present()) PushUndoSnapshot();
}

const PackedPicture* ModCollections::Step(HistoryAct act, const PictureHistory::Steps& steps) {
    if (steps.empty()) return nullptr;
    Do(act, steps.back());
    return &pictures_.Present();
}

void ModCollections::Do(HistoryAct act, PictureDifference change) {
    log_.Did(act, change);
    pictures_.Do(act, std::move(change));
}

}  // namespace kestrel::editing
