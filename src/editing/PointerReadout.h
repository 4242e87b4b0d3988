#pragma once

#include <optional>

#include "document/IconDocument.h"
#include "editing/EditorViews.h"
#include "editing/Mouse.h"
#include "editing/ToolTable.h"

namespace kestrel::editing {

// Tells on the status bar and beside the preview what lies under the pointer.
class PointerReadout {
  public:
    PointerReadout(const document::IconDocument& document, StatusView& status, PreviewView& preview)
        : document_(document), status_(status), preview_(preview) {}

    // Hint of the tool, pixel and cell under the point and, while a button is held that was pressed
    // at `press`, the size of the drag.
    void Show(ToolId tool, GridPoint at, std::optional<GridPoint> press);

  private:
    void ShowPixel(int cx, int cy);
    void ShowPointerReadout(int cx, int cy);
    void ShowDragSize(DragSize kind, int cx, int cy, std::optional<GridPoint> press);
    // On the status bar and on the window.
    void Print(StatusPanel panel, std::string_view text);

    const document::IconDocument& document_;
    StatusView& status_;
    PreviewView& preview_;
};

}  // namespace kestrel::editing
