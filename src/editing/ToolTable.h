#pragma once

#include <memory>
#include <span>

#include "editing/EditorViews.h"
#include "editing/GridTool.h"
#include "editing/ToolId.h"
#include "i18n/Language.h"

namespace kestrel::editing {

// Which size is shown while a tool is dragged: none, the steps from the first cell to the last, or
// the cells covered.
enum class DragSize { None, Steps, Cells };

// All that the program knows of one tool.
struct ToolRow {
    ToolId id{};
    i18n::Text toolTip;
    // The hints on the status bar, over the palette and over the grid.
    i18n::Text status;
    i18n::Text gridHint;
    GridCursor cursor{};
    DragSize dragSize{};
    std::unique_ptr<GridTool> (*make)(const ToolParts& parts){};
};

// All tools in the order of ToolId.
std::span<const ToolRow> ToolTable();

inline const ToolRow& RowOf(ToolId tool) {
    return ToolTable()[static_cast<std::size_t>(tool) - 1];
}

}  // namespace kestrel::editing
