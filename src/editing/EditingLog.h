#pragma once

#include "editing/PictureHistory.h"

namespace kestrel::editing {

class Editor;

// Whoever keeps account of what is done in the editor.
class EditingLog {
  public:
    virtual ~EditingLog() = default;
    // What the history does, in this order. Belongs to the step that ends next.
    virtual void Did(HistoryAct act, const PictureDifference& change) = 0;
    // The history is another one, found at the end of the step.
    virtual void HistoryReplaced() = 0;
    // A change is complete: one can come back to the editor as it is.
    virtual void StepEnded(const Editor& editor) = 0;
    // Whether what is unsaved at the end of a step outlives the program.
    virtual bool Keeps() const = 0;
};

}  // namespace kestrel::editing
