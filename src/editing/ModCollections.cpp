#include "editing/ModCollections.h"

#include <utility>

namespace kestrel::editing {

void ModCollections::PushUndoSnapshot() {
    const PackedPicture now = Pack(document_.Planes());
    if (last_) undoList_.emplace_back(*last_, now);
    last_ = now;
    ClearRedoList();
}

void ModCollections::ClearRedoList() {
    redoList_.clear();
}

void ModCollections::ClearUndoHistory() {
    last_.reset();
    undoList_.clear();
    redoList_.clear();
}

bool ModCollections::CanUndo() {
    RecordUnrecorded();
    return !undoList_.empty();
}

const PackedPicture* ModCollections::PopUndoSnapshot() {
    RecordUnrecorded();
    return Step(undoList_, redoList_);
}

const PackedPicture* ModCollections::PopRedoSnapshot() {
    return Step(redoList_, undoList_);
}

void ModCollections::RecordUnrecorded() {
    if (last_ && Pack(document_.Planes()) != *last_) PushUndoSnapshot();
}

const PackedPicture* ModCollections::Step(Steps& from, Steps& to) {
    if (from.empty() || !last_) return nullptr;
    to.push_back(std::move(from.back()));
    from.pop_back();
    to.back().ApplyTo(*last_);
    return &*last_;
}

}  // namespace kestrel::editing
