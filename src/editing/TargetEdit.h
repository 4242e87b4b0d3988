#pragma once

#include <optional>

#include "editing/IconEdit.h"
#include "editing/Selection.h"

namespace kestrel::editing {

// A change of the selected pixels where there is a selection, else of the whole icon. When it
// closes, what floats is shown where it floats, and what is marked is back in the icon.
class TargetEdit {
  public:
    // `leaves` is what a change of the selection leaves; one of the icon always leaves an entry.
    TargetEdit(const EditParts& parts, Selection& selection, Leaves leaves);
    TargetEdit(const TargetEdit&) = delete;
    TargetEdit& operator=(const TargetEdit&) = delete;
    ~TargetEdit();

    // Those of a floating selection may come to have another size; its top left corner stays.
    gdi::IconPlanes& Planes();

  private:
    EditParts parts_;
    EditSteps::Step step_;
    Selection& selection_;
    Leaves leaves_;
    // The edit of the whole icon; empty while the selection is edited.
    std::optional<IconEdit> icon_;
};

}  // namespace kestrel::editing
