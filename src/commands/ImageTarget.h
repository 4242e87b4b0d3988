#pragma once

#include "editing/Editor.h"

namespace kestrel::commands {

// What a command changes: the pixels of the selection where there is one, else the whole icon.
class ImageTarget {
  public:
    explicit ImageTarget(editing::Editor& editor) : editor_(editor) {}

    bool IsSelection() const { return editor_.Selected().Exists(); }
    gdi::Surface& Image() const;
    gdi::Surface& Mask() const;

    // Brings what was changed to the views, and a marked selection back into the icon.
    void Show() const;
    // The icon as it is becomes an entry of the history, and nothing can be redone.
    void Record() const;
    // The same for commands that leave no entry of what they do to a selection.
    void RecordUnlessSelection() const;

  private:
    editing::Editor& editor_;
};

}  // namespace kestrel::commands
