#include "commands/ToolbarTable.h"

#include <array>

namespace kestrel::commands {

namespace {

// One row a line, however long.
// clang-format off
constexpr auto kButtons = std::to_array<ToolbarButton>({
    {"New", {"Create a new Icon (*.ico)", "创建新图标(*.ico) "}, {"New Icon (Ctrl+N)", "新图标(Ctrl+N)"}, 1},
    {"Open", {"Open a file", "打开文件"}, {"Open (Ctrl+O)", "打开(Ctrl+O)"}, 2},
    {"Extract", {"System icon library and Extract library", "系统图标库 提取图标"}, {"New icon library", "图标库(Ctrl+L)"}, 3},
    {"Save", {"Save  current file", "保存当前文件"}, {"Save (Ctrl+s)", "保存(Ctrl+S)"}, 4},
    {"Undo", {"Reverses the last command", "取消最后的命令"}, {"Undo (Ctrl+Z)", "撤消(Ctrl+Z)"}, 5},
    {"Redo", {"Reapplies the last undo action", "恢复最后的撤消命令"}, {"Redo (Ctrl+Y)", "恢复(Ctrl+Y)"}, 6},
    {"Cut", {"Cuts the selection and puts it on the Clipboard ", "删除选择内容并放置到剪切板"}, {"Cut (Ctrl+X)", "剪切(Ctrl+X)"}, 7},
    {"Copy", {"Copies the selection and puts it on the Clipboard ", "复制选择内容到剪切板"}, {"Copy (Ctrl+C)", "复制(Ctrl+C)"}, 8},
    {"Paste", {"Inserts Clipboard contents", "插入剪切板内容"}, {"Paste (Ctrl+V)", "粘贴(Ctrl+V)"}, 9},
    {"Delete", {"Clears the image", "删除所选择的内容"}, {"Delete Image (Del)", "清除图像(Del)"}, 10},
    {"Capture", {"Dynamic Capture Image", "动态捕获图标"}, {"Capture Image(Ctrl+Q)", "捕捉图像(Ctrl+Q)"}, 11},
    {"ScreenZoom", {"ZoomIn or zoomout Screen Zoom", "缩放显示屏幕"}, {"Screen Zoom", "屏幕放大工具"}, 13},
    {"Help", {"Display the help  contents", "显示帮助主题"}, {"Help ", "帮助"}, 12},
});
// clang-format on

}  // namespace

std::span<const ToolbarButton> ToolbarButtons() {
    return kButtons;
}

}  // namespace kestrel::commands
