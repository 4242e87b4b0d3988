#include "i18n/ClassicMenu.h"

#include <algorithm>
#include <array>

namespace kestrel::i18n {

namespace {

// One row a line.
// clang-format off
constexpr auto kRows = std::to_array<ClassicRow>({
    {"mnuFile", {"&File", "(F)文件"}},
    {"mnuNew", {"&New Icon", "新图标"}},
    {"mnuOpen", {"&Open", "打开"}},
    {"mnuExtract", {"&Library", "图标库"}},
    {"mnuSave", {"&Save", "保存"}},
    {"mnuSaveAs", {"Save &As ...", "保存为..."}},
    {"mnuPrint", {"&Print", "打印"}},
    {"mnuExit", {"E&xit\tAlt+F4", "退出\tAlt+F4"}},
    {"mnuEdit", {"&Edit", "(E)编辑"}},
    {"mnuEditOpts0", {"&Undo", "撤消"}},
    {"mnuEditOpts1", {"&Redo", "恢复"}},
    {"mnuEditOpts3", {"Cu&t", "剪切"}},
    {"mnuEditOpts4", {"&Copy", "复制"}},
    {"mnuEditOpts5", {"&Paste", "粘贴"}},
    {"mnuEditOpts6", {"Paste &Opaque", "粘贴 不透明"}},
    {"mnuEditOpts7", {"&Delete Image", "清除图像"}},
    {"mnuEditOpts9", {"&Select All", "全选"}},
    {"mnuTools", {"&Tools", "(T)工具"}},
    {"mnuToolsOpts0", {"Capture Image", "捕捉图像"}},
    {"mnuToolsOpts1", {"&Gradient Background", "填充渐变色"}},
    {"mnuToolsOpts2", {"Palette", "调色板"}},
    {"mnuToolsOpts3", {"ScreenZoom", "屏幕放大工具"}},
    {"mnuPaletteOpts0", {"&Default Palette", "默认调色板"}},
    {"mnuPaletteOpts1", {"&Random Palette", "随机调色板"}},
    {"mnuImage", {"&Image", "(I)图像"}},
    {"mnuImageOpts0", {"Color &Adjustment", "颜色调整"}},
    {"mnuImageOpts1", {"&Buttonize", "按钮效果"}},
    {"mnuImageOpts2", {"&Grayscale", "黑白效果"}},
    {"mnuImageOpts3", {"&Invert", "胶片效果"}},
    {"mnuImageOpts4", {"&Mirror", "镜子效果"}},
    {"mnuImageOpts6", {"&Rotate", "旋转"}},
    {"mnuMirrorOpts0", {"R&eflect Left Half In Right Half", "反射左半部分"}},
    {"mnuMirrorOpts1", {"Re&flect Right Half In Left Half", "反射右半部分"}},
    {"mnuMirrorOpts2", {"Reflect &Top Half In Bottom Half", "反射上半部分"}},
    {"mnuMirrorOpts3", {"Reflect Botto&m Half In Top Half", "反射下半部分"}},
    {"mnuRotateOpts0", {"Rotate 90゜ &Left", "90度(逆时针)"}},
    {"mnuRotateOpts1", {"Rotate 90゜ &Right", "90度(顺时针)"}},
    {"mnuRotateOpts3", {"Flip &Horizontal", "水平翻转"}},
    {"mnuRotateOpts4", {"Flip &Vertical", "垂直翻转"}},
    {"mnuPopup2Opts0", {"Cu&t    Ctrl+X", "剪切  Ctrl+X"}},
    {"mnuPopup2Opts1", {"&Copy   Ctrl+C", "复制  Ctrl+C"}},
    {"mnuPopup2Opts2", {"&Paste  Ctrl+V", "粘贴  Ctrl+V"}},
    {"mnuPopup2Opts3", {"&Delete Image Del", "清除图像 Del"}},
    {"mnuPopup2Opts4", {"&Select All  Ctrl+A", "全选  Ctrl+A"}},
    {"mnuPopup2Opts6", {"&Rotate", "旋转"}},
    {"mnuPopup2Opts7", {"Flip", "翻转"}},
    {"mnuRotate2Opts0", {"Rotate 90゜ &Left", "90度(逆时针)"}},
    {"mnuRotate2Opts1", {"Rotate 90゜ &Right", "90度(顺时针)"}},
    {"mnuFlip2Opts0", {"Flip &Horizontal", "水平翻转"}},
    {"mnuFlip2Opts1", {"Flip &Vertical", "垂直翻转"}},
    {"mnuView", {"&View", "(V)查看"}},
    {"mnuViewOpts0", {"Language", "语言"}},
    {"mnuLanguageOpts0", {"Chinese", "简体中文"}},
    {"mnuLanguageOpts1", {"English", "英语"}},
    {"mnuHelp", {"&Help", "(H)帮助"}},
    {"mnuHomePage", {"Home Page", "主页"}},
    {"mnuHelp2", {"&Help", "帮助"}},
    {"mnuAbout", {"&About...", "关于..."}},
    {"mnuRestore", {"&Restore Window", "还原窗口"}},
    {"mnuClose", {"&Close", "退出"}},
});
// clang-format on

}  // namespace

std::span<const ClassicRow> ClassicRows() {
    return kRows;
}

Text ClassicCaption(std::string_view key) {
    const auto* const row = std::find_if(
        kRows.begin(), kRows.end(), [key](const ClassicRow& entry) { return entry.key == key; });
    return row == kRows.end() ? Text{} : row->caption;
}

}  // namespace kestrel::i18n
