#include "commands/CommandTable.h"

#include <array>

#include "commands/CommandCalls.h"

namespace kestrel::commands {

namespace {

using enum controls::ItemKind;

// What the pop-up's own items of the Image menu stand for.
constexpr char kRotateLeft[] = "mnuRotateOpts0";
constexpr char kRotateRight[] = "mnuRotateOpts1";
constexpr char kFlipHorizontal[] = "mnuRotateOpts3";
constexpr char kFlipVertical[] = "mnuRotateOpts4";

constexpr CommandRow Button(std::string_view key, i18n::Text toolTip, i18n::Text hint, int picture,
                            Action run, Question enabled = Always) {
    return {key, {}, IconItem, toolTip, {}, picture, run, enabled, Never, hint};
}

constexpr CommandRow FirstOfGroup(CommandRow button) {
    button.beginsGroup = true;
    return button;
}

// One row a line, however long.
// clang-format off
constexpr auto kPopup = std::to_array<CommandRow>({
    {"mnuEdit", "", Item, {"&Edit ", "(E) 编辑  "}},
    {"mnuPopup2Opts0", "mnuEdit", IconItem, {"Cu&t", "剪切  "}, "Ctrl+X", 7, kCut, kIsSelected},
    {"mnuPopup2Opts1", "mnuEdit", IconItem, {"&Copy", "复制  "}, "Ctrl+C", 8, kCopy, kIsSelected},
    {"mnuPopup2Opts2", "mnuEdit", IconItem, {"&Paste", "粘贴  "}, "Ctrl+V", 9, kPaste, kCanPaste},
    {"mnuPopup2Opts3", "mnuEdit", IconItem, {"&Delete Image", "清除图像    "}, "Del", 10, kDelete, kIsSelected},
    {"mnuPopup2Opts4", "mnuEdit", Item, {"&Select All", "全选  "}, "Ctrl+A", 0, kSelectAll},
    {"Separator10", "mnuEdit", Separator},
    {"mnuPopup2Opts6", "mnuEdit", IconItem, {"&Rotate", "旋转  "}, "", 30},
    {"mnuRotate2Opts0", "mnuPopup2Opts6", IconItem, {"Rotate 90゜ &Left ", "90度(逆时针)    "}, "", 15, OperateAs<kRotateLeft>},
    {"mnuRotate2Opts1", "mnuPopup2Opts6", IconItem, {"Rotate 90゜ &Right ", "90度(顺时针)    "}, "", 16, OperateAs<kRotateRight>},
    {"mnuPopup2Opts7", "mnuEdit", IconItem, {"&Flip  ", "翻转  "}, "", 40},
    {"mnuFlip2Opts0", "mnuPopup2Opts7", IconItem, {"Flip &Horizontal", "水平翻转    "}, "", 17, OperateAs<kFlipHorizontal>},
    {"mnuFlip2Opts1", "mnuPopup2Opts7", IconItem, {"Flip &Vertical", "垂直翻转    "}, "", 18, OperateAs<kFlipVertical>},
});

constexpr auto kTray = std::to_array<CommandRow>({
    {"mnuRestore", "mnuPopup", Item, {}, "", 0, Call<&TrayCommands::mnuRestore_Click>},
    {"mnuClose", "mnuPopup", Item, {}, "", 0, Call<&TrayCommands::mnuClose_Click>},
});

constexpr auto kToolbar = std::to_array<CommandRow>({
    Button("New", {"New Icon (Ctrl+N)", "新图标(Ctrl+N)"}, {"Create a new Icon (*.ico)", "创建新图标(*.ico) "}, 1, kNew),
    Button("Open", {"Open (Ctrl+O)", "打开(Ctrl+O)"}, {"Open a file", "打开文件"}, 2, kOpen),
    Button("Extract", {"New icon library", "图标库(Ctrl+L)"}, {"System icon library and Extract library", "系统图标库 提取图标"}, 3, kExtract),
    Button("Save", {"Save (Ctrl+s)", "保存(Ctrl+S)"}, {"Save  current file", "保存当前文件"}, 4, kSave),
    FirstOfGroup(Button("Undo", {"Undo (Ctrl+Z)", "撤消(Ctrl+Z)"}, {"Reverses the last command", "取消最后的命令"}, 5, kUndo, kCanUndo)),
    Button("Redo", {"Redo (Ctrl+Y)", "恢复(Ctrl+Y)"}, {"Reapplies the last undo action", "恢复最后的撤消命令"}, 6, kRedo, kCanRedo),
    FirstOfGroup(Button("Cut", {"Cut (Ctrl+X)", "剪切(Ctrl+X)"}, {"Cuts the selection and puts it on the Clipboard ", "删除选择内容并放置到剪切板"}, 7, kCut, kIsSelected)),
    Button("Copy", {"Copy (Ctrl+C)", "复制(Ctrl+C)"}, {"Copies the selection and puts it on the Clipboard ", "复制选择内容到剪切板"}, 8, kCopy, kIsSelected),
    Button("Paste", {"Paste (Ctrl+V)", "粘贴(Ctrl+V)"}, {"Inserts Clipboard contents", "插入剪切板内容"}, 9, kPaste, kCanPaste),
    Button("Delete", {"Delete Image (Del)", "清除图像(Del)"}, {"Clears the image", "删除所选择的内容"}, 10, kDelete, kIsSelected),
    FirstOfGroup(Button("Capture", {"Capture Image(Ctrl+Q)", "捕捉图像(Ctrl+Q)"}, {"Dynamic Capture Image", "动态捕获图标"}, 11, kCapture)),
    Button("ScreenZoom", {"Screen Zoom", "屏幕放大工具"}, {"ZoomIn or zoomout Screen Zoom", "缩放显示屏幕"}, 13, kScreenZoom),
    FirstOfGroup(Button("Help", {"Help ", "帮助"}, {"Display the help  contents", "显示帮助主题"}, 12, kHelp)),
});
// clang-format on

}  // namespace

void Nothing(Commands& /*commands*/, std::string_view /*key*/) {}

bool Always(Commands& /*commands*/) {
    return true;
}

bool Never(Commands& /*commands*/) {
    return false;
}

std::span<const CommandRow> PopupRows() {
    return kPopup;
}

std::span<const CommandRow> TrayRows() {
    return kTray;
}

std::span<const CommandRow> ToolbarRows() {
    return kToolbar;
}

}  // namespace kestrel::commands
