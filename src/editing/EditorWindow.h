#pragma once

#include <string>
#include <string_view>

#include "document/Canvas.h"

namespace kestrel::editing {

// Pointer shapes over the editing grid.
enum class GridCursor { Cross, Move, Pencil, Eraser, Picker, FloodFill };

// The panels of the status bar, from the left.
enum class StatusPanel { Hint = 1, Pixel = 2, Cell = 3, DragSize = 4, Zoom = 5 };

// What the editor needs of the window around it.
class EditorWindow : public document::CanvasWindow {
  public:
    virtual void SetTitle(const std::string& title) = 0;
    virtual void SetStatusPanel(StatusPanel panel, std::string_view text) = 0;
    // Prints the text of the Cell or DragSize panel on the window too, beside the preview.
    virtual void PrintReadout(StatusPanel panel, std::string_view text) = 0;
    virtual void SetGridCursor(GridCursor cursor) = 0;
    // The tool palette has new pixels.
    virtual void RepaintTools() = 0;
    virtual void SetToolTipOfTools(std::string_view text) = 0;
    // A colour well has changed.
    virtual void RepaintWells() = 0;
    // The palette, its kind or ChkPal has changed.
    virtual void PaletteChanged() = 0;
    // Opens the editing pop-up at the pointer.
    virtual void ShowEditingPopup() = 0;
    // The enabled state of the Edit commands may have changed.
    virtual void RefreshEditCommands() = 0;
};

}  // namespace kestrel::editing
