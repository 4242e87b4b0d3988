#pragma once

#include "document/JournalFolder.h"
#include "editing/Editor.h"
#include "services/MessageBoxes.h"

namespace kestrel::commands {

// Offers what runs that did not end in order left unsaved.
class Recovery {
  public:
    Recovery(editing::Editor& editor, const editing::EditingLog& log,
             const document::JournalFolder& journals, services::MessageBoxes& boxes)
        : editor_(editor), log_(log), journals_(journals), boxes_(boxes) {}

    // Whether there may be something to offer. Takes a look at file names alone.
    bool MayOffer() const { return journals_.HasAny(); }
    // Asks about the newest work that was not saved, and restores it or sets it aside; older work
    // waits for the next start.
    void Offer();

  private:
    editing::Editor& editor_;
    const editing::EditingLog& log_;
    const document::JournalFolder& journals_;
    services::MessageBoxes& boxes_;
};

}  // namespace kestrel::commands
