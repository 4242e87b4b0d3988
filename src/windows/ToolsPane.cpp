#include "windows/ToolsPane.h"

#include <QToolTip>

#include "desktop/Text.h"
#include "editing/ToolTable.h"
#include "windows/FrmMouseButtons.h"
#include "windows/widgets/AccessibleCells.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::windows {

namespace {

using editing::ToolPalette;

constexpr widgets::CellLayout kToolCells{ToolPalette::kColumns, ToolPalette::kRows,
                                         QSize(ToolPalette::kCellWidth, ToolPalette::kCellHeight),
                                         0, widgets::MarkGround::Window};

editing::ToolId ToolIn(QPoint cell) {
    return static_cast<editing::ToolId>(cell.y() * ToolPalette::kColumns + cell.x() + 1);
}

}  // namespace

ToolsPane::ToolsPane(QWidget* parent) : QWidget(parent), picTools_(kToolCells, this) {
    setMouseTracking(true);
    // Edges with the tool's picture between them.
    picTools_.DivideBy({"|...################..|", "|...###############..|"});
    picTools_.setObjectName("PicTools");
    picTools_.move(widgets::kEdgeDistance, widgets::kEdgeDistance);
}

void ToolsPane::Show(editing::Editor& editor) {
    editing::ToolPalette& tools = editor.Tools();
    picTools_.Show(tools.PicTools());
    setFixedSize(widgets::WithEdge(picTools_.size()));
    picTools_.onMouseDown = [&editor, &tools](Qt::MouseButton button, QPoint at) {
        editor.EndGesture();
        tools.PicTools_MouseDown(ToButton(button), at.x(), at.y());
    };
    picTools_.onMouseMove = [&tools](Qt::MouseButtons held, QPoint at) {
        tools.PicTools_MouseMove(ToHeldButtons(held), at.x(), at.y());
    };
    picTools_.onMouseUp = [&tools](Qt::MouseButton button, QPoint at) {
        tools.PicTools_MouseUp(ToButton(button), at.x(), at.y());
    };
    picTools_.nameOf = [](QPoint cell) {
        return desktop::ToText(editing::RowOf(ToolIn(cell)).toolTip.Now());
    };
    picTools_.isChosen = [&tools](QPoint cell) { return tools.CurrentTool() == ToolIn(cell); };
}

void ToolsPane::RepaintTools() {
    picTools_.update();
    widgets::TellAccessibleCells(picTools_);
}

void ToolsPane::SetToolTipOfTools(std::string_view text) {
    const QString toolTip = desktop::ToText(text);
    if (toolTip == picTools_.toolTip()) return;
    picTools_.setToolTip(toolTip);
    // What is shown belongs to another tool.
    QToolTip::hideText();
}

void ToolsPane::paintEvent(QPaintEvent* /*event*/) {
    widgets::DrawEdgeAround(*this, picTools_.geometry());
}

}  // namespace kestrel::windows
