#pragma once

#include <string_view>

#include "document/Canvas.h"
#include "editing/EditingLog.h"
#include "editing/EditorWindow.h"
#include "editing/Mouse.h"
#include "services/Application.h"

namespace kestrel::editing {

// Pointer shapes over the editing grid.
enum class GridCursor { Cross, Move, Pencil, Eraser, Picker, FloodFill };

// The panels of the status bar, from the left.
enum class StatusPanel { Hint = 1, Pixel = 2, Cell = 3, DragSize = 4, Zoom = 5 };

// What shows the editing grid.
class GridView : public document::GridDisplay {
  public:
    virtual void SetGridCursor(GridCursor cursor) = 0;
    // Opens the editing pop-up at the pointer.
    virtual void ShowEditingPopup() = 0;
};

// What shows the icon in actual size, and beside it what lies under the pointer.
class PreviewView : public document::PreviewDisplay {
  public:
    // Prints the text of the Cell or DragSize panel on the window too.
    virtual void PrintReadout(StatusPanel panel, std::string_view text) = 0;
};

// What shows the tool palette.
class ToolsView {
  public:
    virtual ~ToolsView() = default;
    // The palette has new pixels.
    virtual void RepaintTools() = 0;
    virtual void SetToolTipOfTools(std::string_view text) = 0;
};

// What shows the colour wells and the colour palette.
class ColorsView {
  public:
    virtual ~ColorsView() = default;
    // What the well of a button holds.
    virtual void ShowWell(Button button, gdi::COLORREF color, bool transparent) = 0;
    // The palette has new pixels.
    virtual void RepaintPalette() = 0;
    virtual void ShowChkPal(bool ticked) = 0;
};

class StatusView {
  public:
    virtual ~StatusView() = default;
    virtual void SetStatusPanel(StatusPanel panel, std::string_view text) = 0;
};

// All that the editor asks of its surroundings. It asks from its first moment on.
struct EditorViews {
    GridView& grid;
    PreviewView& preview;
    ToolsView& tools;
    ColorsView& colors;
    StatusView& status;
    EditorWindow& window;
    services::Application& application;
    EditingLog& log;
};

}  // namespace kestrel::editing
