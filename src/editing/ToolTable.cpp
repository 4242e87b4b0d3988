#include "editing/ToolTable.h"

#include <array>

#include "editing/ColorEraser.h"
#include "editing/ColorPicker.h"
#include "editing/EllipseTool.h"
#include "editing/FloodFill.h"
#include "editing/LineTool.h"
#include "editing/Pencil.h"
#include "editing/RectangleTool.h"
#include "editing/SelectionTool.h"

namespace kestrel::editing {

namespace {

template <typename Tool, auto... arguments>
std::unique_ptr<GridTool> Make(const ToolParts& parts) {
    return std::make_unique<Tool>(parts, arguments...);
}

constexpr i18n::Text kNoHint{};

// clang-format off
constexpr auto kTools = std::to_array<ToolRow>({
    {ToolId::Selection, {"Selection", "矩形选框工具"},
     {"Selects a rectangular area editing ", "选择矩形区域进行编辑"},
     {"Right-Click Popup Menu", "点击鼠标右键 弹出菜单"},
     GridCursor::Cross, DragSize::Steps, Make<SelectionTool>},
    {ToolId::Pencil, {"Pencil", "画笔工具"},
     {"Draws a free-form line,one pixel width", "画自由线条，一个像素宽"},
     {"Left-Click (Forecolor) Or Right-Click (Backcolor)", "点击鼠标左键 (前景色) 或 点击鼠标右键 (背景色)"},
     GridCursor::Pencil, DragSize::None, Make<Pencil>},
    {ToolId::ColorEraser, {"Color Eraser", "橡皮擦工具"},
     {"Replaces color F with color B /Erases", "擦除任意颜色"}, kNoHint,
     GridCursor::Eraser, DragSize::None, Make<ColorEraser>},
    {ToolId::ColorPicker, {"Color picker", "拾取颜色"},
     {"Select color F or B from editing area", "选择编辑区的颜色"}, kNoHint,
     GridCursor::Picker, DragSize::None, Make<ColorPicker>},
    {ToolId::FloodFill, {"Flood fill", "填充工具"},
     {"Fill an area of one color", "用一种颜色填充"}, kNoHint,
     GridCursor::FloodFill, DragSize::None, Make<FloodFill>},
    {ToolId::Line, {"Line", "直线工具"},
     {"Draws a straight line", "画直线"}, kNoHint,
     GridCursor::Cross, DragSize::Cells, Make<LineTool>},
    {ToolId::Rectangle, {"Rectangle", "矩形工具"},
     {"Draws a rectangle", "画矩形"}, kNoHint,
     GridCursor::Cross, DragSize::Cells, Make<RectangleTool, Interior::Plain>},
    {ToolId::SolidRectangle, {"Solid Rectangle", "实心矩形工具"},
     {"Draws a solid rectangle", "画实心矩形"}, kNoHint,
     GridCursor::Cross, DragSize::Cells, Make<RectangleTool, Interior::Solid>},
    {ToolId::FilledRectangle, {"Filled Rectangle", "矩形填充工具"},
     {"Draws a filled rectangle", "矩形填充"}, kNoHint,
     GridCursor::Cross, DragSize::Cells, Make<RectangleTool, Interior::Filled>},
    {ToolId::Ellipse, {"Ellipse", "椭圆工具"},
     {"Draws an ellipse", "椭圆工具"}, kNoHint,
     GridCursor::Cross, DragSize::Cells, Make<EllipseTool, Interior::Plain>},
    {ToolId::SolidEllipse, {"Solid Ellipse", "实心椭圆工具"},
     {"Draws an solid ellipse", "画实心椭圆"}, kNoHint,
     GridCursor::Cross, DragSize::Cells, Make<EllipseTool, Interior::Solid>},
    {ToolId::FilledEllipse, {"Filled Ellipse", "椭圆填充工具"},
     {"Draws a filled ellipse", "椭圆填充形"}, kNoHint,
     GridCursor::Cross, DragSize::Cells, Make<EllipseTool, Interior::Filled>},
});
// clang-format on

}  // namespace

std::span<const ToolRow> ToolTable() {
    return kTools;
}

}  // namespace kestrel::editing
