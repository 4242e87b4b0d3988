#pragma once

#include "document/Canvas.h"
#include "document/IconDocument.h"
#include "editing/EditSteps.h"
#include "editing/EditorWindow.h"
#include "editing/ModCollections.h"

namespace kestrel::editing {

// What an edit reaches.
struct EditParts {
    document::IconDocument& document;
    document::Canvas& canvas;
    ModCollections& history;
    EditorWindow& window;
    EditSteps& steps;
};

// What an edit leaves in the history: nothing, an entry, or the oldest entry of a history that
// begins with it, as an opened icon does.
enum class Leaves { NoEntry, Entry, OldestEntry };

// The planes as they are become an entry of the history, and nothing can be redone.
void Record(const EditParts& parts);

// The one way to change the icon's planes. An edit that leaves an entry empties the redo list when
// it is opened. When it closes, the views show the planes, the document counts as modified (not
// one that was just opened), and the entry is recorded.
class IconEdit {
  public:
    IconEdit(const EditParts& parts, Leaves leaves);
    IconEdit(const IconEdit&) = delete;
    IconEdit& operator=(const IconEdit&) = delete;
    ~IconEdit();

    // The planes to be changed; all views are redrawn when the edit closes.
    gdi::IconPlanes& Planes();

    // Change one pixel, given in icon coordinates, and show it at once. Outside the icon nothing
    // happens.
    void PaintCell(int cx, int cy, gdi::COLORREF color);
    void PaintCellTransparent(int cx, int cy);

  private:
    EditParts parts_;
    // Ends after all that the edit does when it closes.
    EditSteps::Step step_;
    Leaves leaves_;
    bool redraw_ = false;
};

}  // namespace kestrel::editing
