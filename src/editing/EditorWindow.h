#pragma once

#include <string>
#include <string_view>

#include "document/Canvas.h"

namespace kestrel::editing {

// Pointer shapes over the editing grid.
enum class GridCursor { Cross, Pencil };

// The panels of the status bar, from the left.
enum class StatusPanel { Hint = 1, Pixel = 2, Cell = 3, DragSize = 4, Zoom = 5 };

// What the editor needs of the window around it.
class EditorWindow : public document::CanvasWindow {
  public:
    virtual void SetTitle(const std::string& title) = 0;
    virtual void SetStatusPanel(StatusPanel panel, std::string_view text) = 0;
    // The cell under the pointer, printed on the window beside the preview.
    virtual void PrintPointerCell(std::string_view text) = 0;
    virtual void SetGridCursor(GridCursor cursor) = 0;
    // The enabled state of the Edit commands may have changed.
    virtual void RefreshEditCommands() = 0;
};

}  // namespace kestrel::editing
