#pragma once

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

}  // namespace kestrel::editing
