#include "editing/TargetEdit.h"

namespace kestrel::editing {

TargetEdit::TargetEdit(const EditParts& parts, Selection& selection, Leaves leaves)
    : parts_(parts), step_(parts.steps), selection_(selection), leaves_(leaves) {
    if (!selection_.Exists()) icon_.emplace(parts, Leaves::Entry);
}

TargetEdit::~TargetEdit() {
    if (icon_) return;
    selection_.ShowChanged();
    if (leaves_ == Leaves::Entry) Record(parts_);
}

gdi::IconPlanes& TargetEdit::Planes() {
    return icon_ ? icon_->Planes() : selection_.planes_;
}

}  // namespace kestrel::editing
