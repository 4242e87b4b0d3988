#include "windows/ToolsPane.h"

#include <QToolTip>

#include "desktop/Text.h"
#include "windows/FrmMouseButtons.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::windows {

ToolsPane::ToolsPane(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    // Edges with the tool's picture between them.
    picTools_.DivideBy({"|...################..|", "|...###############..|"});
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
