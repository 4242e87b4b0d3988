#include "editing/ToolPalette.h"

namespace kestrel::editing {

void ToolPalette::SelectTool(ToolId tool) {
    currentTool_ = tool;
    window_.SetGridCursor(tool == ToolId::Pencil ? GridCursor::Pencil : GridCursor::Cross);
}

}  // namespace kestrel::editing
