#pragma once

#include "document/IconDocument.h"
#include "editing/EditorWindow.h"
#include "editing/ToolPalette.h"

namespace kestrel::editing {

// Tells on the status bar and beside the preview what lies under the pointer.
class PointerReadout {
  public:
    PointerReadout(const document::IconDocument& document, EditorWindow& window)
        : document_(document), window_(window) {}

    // Hint for the tool, pixel and cell under the grid point.
    void Show(ToolId tool, int x, int y);

  private:
    void ShowPixel(int cx, int cy);
    void ShowPointerReadout(int cx, int cy);

    const document::IconDocument& document_;
    EditorWindow& window_;
};

}  // namespace kestrel::editing
