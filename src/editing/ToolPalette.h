#pragma once

#include "editing/EditorWindow.h"

namespace kestrel::editing {

// The tools in the order of the palette's cells, row by row.
enum class ToolId {
    Selection = 1,
    Pencil,
    ColorEraser,
    ColorPicker,
    FloodFill,
    Line,
    Rectangle,
    SolidRectangle,
    FilledRectangle,
    Ellipse,
    SolidEllipse,
    FilledEllipse,
};

// Which tool the editing grid obeys.
class ToolPalette {
  public:
    explicit ToolPalette(EditorWindow& window) : window_(window) {}

    ToolId CurrentTool() const { return currentTool_; }
    // Makes a tool current and gives the grid its pointer shape.
    void SelectTool(ToolId tool);

  private:
    EditorWindow& window_;
    ToolId currentTool_ = ToolId::Pencil;
};

}  // namespace kestrel::editing
