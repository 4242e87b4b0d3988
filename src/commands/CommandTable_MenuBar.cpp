#include <array>

#include "commands/CommandCalls.h"
#include "commands/CommandTable.h"

namespace kestrel::commands {

namespace {

using editing::PaletteKind;
using i18n::kChinese;
using i18n::kEnglish;
using imaging::PasteMode;
using enum controls::ItemKind;

constexpr CommandRow Hidden(CommandRow row) {
    row.visible = false;
    return row;
}

// Captions carry their blanks: they keep the items apart from the shortcuts beside them.
// One row a line, however long.
// clang-format off
constexpr auto kMenuBar = std::to_array<CommandRow>({
    {"mnuFile", "", Item, {"&File ", "(F) 文件  "}},
    {"mnuNew", "mnuFile", IconItem, {"&New Icon", "新图标   "}, "Ctrl+N", 1, kNew},
    {"Separator10", "mnuFile", Separator},
    {"mnuOpen", "mnuFile", IconItem, {"&Open", "打开  "}, "Ctrl+O", 2, kOpen},
    {"mnuExtract", "mnuFile", IconItem, {"&Library", "图标库   "}, "Ctrl+L", 3, kExtract},
    Hidden({"mnuRecentFile0", "mnuFile", Item, {"Recent &Files", "最近使用的文件       "}}),
    Hidden({"mnuRecentFile1", "mnuRecentFile0", Item, {}, "", 0, Call<&DocumentCommands::mnuRecent_Click, 1>}),
    Hidden({"mnuRecentFile2", "mnuRecentFile0", Item, {}, "", 0, Call<&DocumentCommands::mnuRecent_Click, 2>}),
    Hidden({"mnuRecentFile3", "mnuRecentFile0", Item, {}, "", 0, Call<&DocumentCommands::mnuRecent_Click, 3>}),
    Hidden({"mnuRecentFile4", "mnuRecentFile0", Item, {}, "", 0, Call<&DocumentCommands::mnuRecent_Click, 4>}),
    {"Separator11", "mnuFile", Separator},
    {"mnuSave", "mnuFile", IconItem, {"&Save", "保存  "}, "Ctrl+S", 4, kSave},
    {"mnuSaveAs", "mnuFile", Item, {"Save &As ...", "保存为...   "}, "Ctrl+Shift+S", 0, Call<&DocumentCommands::mnuSaveAs_Click>},
    {"Separator12", "mnuFile", Separator},
    {"mnuPrint", "mnuFile", IconItem, {"&Print", "打印  "}, "Ctrl+P", 24, Call<&PrintCommands::mnuPrint_Click>},
    {"Separator13", "mnuFile", Separator},
    {"mnuExit", "mnuFile", IconItem, {"E&xit", "关闭  "}, "Alt+F4", 39, Call<&MainWindow::Unload>},
    {"mnuEdit", "", Item, {"&Edit ", "(E) 编辑  "}},
    {"mnuEditOpts0", "mnuEdit", IconItem, {"&Undo", "撤消  "}, "Ctrl+Z", 5, kUndo, kCanUndo},
    {"mnuEditOpts1", "mnuEdit", IconItem, {"&Redo", "恢复  "}, "Ctrl+Y", 6, kRedo, kCanRedo},
    {"Separator20", "mnuEdit", Separator},
    {"mnuEditOpts3", "mnuEdit", IconItem, {"Cu&t", "剪切  "}, "Ctrl+X", 7, kCut, kIsSelected},
    {"mnuEditOpts4", "mnuEdit", IconItem, {"&Copy", "复制  "}, "Ctrl+C", 8, kCopy, kIsSelected},
    {"mnuEditOpts5", "mnuEdit", IconItem, {"&Paste", "粘贴  "}, "Ctrl+V", 9, kPaste, kCanPaste},
    {"mnuEditOpts6", "mnuEdit", Item, {"Paste &Opaque", "粘贴 不透明     "}, "", 0, Paste<PasteMode::Opaque>, kCanPaste},
    {"mnuEditOpts7", "mnuEdit", IconItem, {"&Delete Image", "清除图像    "}, "Del", 10, kDelete, kIsSelected},
    {"Separator21", "mnuEdit", Separator},
    {"mnuEditOpts9", "mnuEdit", Item, {"&Select All", "全选  "}, "Ctrl+A", 0, kSelectAll},
    {"mnuTools", "", Item, {"&Tools ", "(T) 工具  "}},
    {"mnuToolsOpts0", "mnuTools", IconItem, {"Capture Image", "捕捉图像    "}, "Ctrl+Q", 11, kCapture},
    {"Separator30", "mnuTools", Separator},
    {"mnuToolsOpts1", "mnuTools", IconItem, {"&Gradient Background", "填充渐变色    "}, "", 21, Call<&ImageCommands::GradientBackground>},
    {"mnuToolsOpts2", "mnuTools", IconItem, {"Palette", "调色板   "}, "", 19},
    {"mnuPaletteOpts0", "mnuToolsOpts2", Option, {"&Default Palette", "默认调色板     "}, "", 0, Call<&PaletteCommands::UseDefaultPalette>, Always, IsPalette<PaletteKind::Default>},
    {"mnuPaletteOpts1", "mnuToolsOpts2", Option, {"&Random Palette", "随机调色板     "}, "", 0, Call<&PaletteCommands::UseRandomPalette>, Always, IsPalette<PaletteKind::Random>},
    {"Separator31", "mnuToolsOpts2", Separator},
    {"mnuPaletteOpts3", "mnuToolsOpts2", IconItem, {"&Load Palette...", "打开调色板     "}, "", 22, Call<&PaletteCommands::ImgLoadPalette_Click>},
    {"mnuPaletteOpts4", "mnuToolsOpts2", IconItem, {"&Save Palette...", "保存调色板     "}, "", 23, Call<&PaletteCommands::ImgSavePalette_Click>},
    {"Separator32", "mnuTools", Separator},
    {"mnuToolsOpts3", "mnuTools", IconItem, {"ScreenZoom", "屏幕缩放    "}, "", 13, kScreenZoom},
    {"mnuToolsOpts4", "mnuTools", Item, {"Test Icon", "测试图标    "}, "", 0, Call<&PrintCommands::TestIcon>},
    Hidden({"mnuToolsOpts5", "mnuTools", IconItem, {"QuilletShot", "截图工具    "}, "", 28, Call<&ShellCommands::StartSibling, Sibling::ScreenCapture>}),
    {"mnuToolsOpts6", "mnuTools", IconItem, {"Varnel", "图像浏览    "}, "", 27, Call<&ShellCommands::StartSibling, Sibling::IconBrowser>},
    {"mnuToolsOpts7", "mnuTools", IconItem, {"Ormsby Extender", "查看剪切板     "}, "", 33, Call<&ShellCommands::StartSibling, Sibling::ClipboardViewer>},
    {"mnuImage", "", Item, {"&Image ", "(I) 图像  "}},
    {"mnuImageOpts0", "mnuImage", IconItem, {"Color &Adjustment", "颜色调整    "}, "", 29, Call<&ImageCommands::AdjustColors>},
    {"mnuImageOpts1", "mnuImage", IconItem, {"&Buttonize", "按钮效果    "}, "", 31, Operate},
    {"mnuImageOpts2", "mnuImage", Item, {"&Grayscale", "黑白效果    "}, "", 0, Operate},
    {"mnuImageOpts3", "mnuImage", IconItem, {"&Invert", "胶片效果    "}, "", 32, Operate},
    {"mnuImageOpts4", "mnuImage", Item, {"&Mirror", "镜像效果    "}},
    {"mnuMirrorOpts0", "mnuImageOpts4", Item, {"R&eflect Left Half In Right Half", "反射左半部分      "}, "", 0, Operate, kEvenWidth},
    {"mnuMirrorOpts1", "mnuImageOpts4", Item, {"Re&flect Right Half In Left Half", "反射右半部分      "}, "", 0, Operate, kEvenWidth},
    {"mnuMirrorOpts2", "mnuImageOpts4", Item, {"Reflect &Top Half In Bottom Half", "反射上半部分      "}, "", 0, Operate, kEvenHeight},
    {"mnuMirrorOpts3", "mnuImageOpts4", Item, {"Reflect Botto&m Half In Top Half", "反射下半部分      "}, "", 0, Operate, kEvenHeight},
    {"mnuImageOpts6", "mnuImage", IconItem, {"&Rotate", "旋转  "}, "", 30},
    {"mnuRotateOpts0", "mnuImageOpts6", IconItem, {"Rotate 90゜ &Left ", "90度(逆时针)    "}, "", 15, Operate},
    {"mnuRotateOpts1", "mnuImageOpts6", IconItem, {"Rotate 90゜ &Right ", "90度(顺时针)    "}, "", 16, Operate},
    {"mnuImageOpts7", "mnuImage", IconItem, {"&Flip", "翻转  "}, "", 40},
    {"mnuRotateOpts3", "mnuImageOpts7", IconItem, {"Flip &Horizontal", "水平翻转    "}, "", 17, Operate},
    {"mnuRotateOpts4", "mnuImageOpts7", IconItem, {"Flip &Vertical", "垂直翻转    "}, "", 18, Operate},
    Hidden({"mnuImageOpts8", "mnuImage", IconItem, {"Roll", "移动  "}, "", 38}),
    Hidden({"mnuRollLeft", "mnuImageOpts8", IconItem, {"Left", "左移  "}, "", 36, Nothing}),
    Hidden({"mnuRollRight", "mnuImageOpts8", IconItem, {"Right", "右移  "}, "", 37, Nothing}),
    Hidden({"mnuRollUp", "mnuImageOpts8", IconItem, {"Up", "上移  "}, "", 34, Nothing}),
    Hidden({"mnuRollDown", "mnuImageOpts8", IconItem, {"Down", "下移  "}, "", 35, Nothing}),
    Hidden({"Separator40", "mnuImage", Separator}),
    Hidden({"Separator41", "mnuImage", Separator}),
    {"mnuFilters", "", Item, {"Eff&ect ", "(L) 滤镜  "}},
    {"mnuIntensity", "mnuFilters", Item, {"Intensity", "色相  "}},
    {"mnuBrighter", "mnuIntensity", Item, {"Brighter", "变亮  "}, "", 0, Operate},
    {"mnuDarker", "mnuIntensity", Item, {"Darker", "变暗  "}, "", 0, Operate},
    {"mnuContrast1", "mnuIntensity", Item, {"Increase Contrast +", "增加对比度 +     "}, "", 0, Operate},
    {"mnuContrast2", "mnuIntensity", Item, {"Decrease Contrast -", "减小对比度 -     "}, "", 0, Operate},
    {"mnuSaturationI", "mnuIntensity", Item, {"Increase Saturation +", "增加饱和度 +     "}, "", 0, Operate},
    {"mnuSaturationD", "mnuIntensity", Item, {"Decrease Saturation -", "减小饱和度 -     "}, "", 0, Operate},
    {"mnuFilter_Blur", "mnuFilters", Item, {"Blur", "模糊  "}},
    {"mnuBlur", "mnuFilter_Blur", Item, {"Blur", "模糊  "}, "", 0, Operate},
    {"mnuBlurMore", "mnuFilter_Blur", Item, {"Gauss Blur", "高斯模糊    "}, "", 0, Operate},
    {"mnuFilter_Sharpen", "mnuFilters", Item, {"Sharpen", "锐化  "}},
    {"mnuSharpen", "mnuFilter_Sharpen", Item, {"Sharpen", "锐化  "}, "", 0, Operate},
    {"mnuSharpenMore", "mnuFilter_Sharpen", Item, {"Sharpen More", "进一步锐化     "}, "", 0, Operate},
    {"mnuEdge", "mnuFilter_Sharpen", Item, {"Edge Enhance", "锐化边缘    "}, "", 0, Operate},
    {"mnuFilter_Diffuse", "mnuFilters", Item, {"Diffuse", "扩散  "}},
    {"mnuDiffuse", "mnuFilter_Diffuse", Item, {"Diffuse", "扩散  "}, "", 0, Operate},
    {"mnuDiffuseMore", "mnuFilter_Diffuse", Item, {"Diffuse More", "进一步扩散     "}, "", 0, Operate},
    {"mnuPixelize", "mnuFilters", Item, {"Pixelize", "像素化    "}, "", 0, Operate},
    {"mnuSwapColors", "mnuFilters", Item, {"Swap Colors", "替换颜色    "}},
    {"mnuSwapBank1", "mnuSwapColors", Item, {"RGB -> BRG", "RGB -> BRG"}, "", 0, Operate},
    {"mnuSwapBank2", "mnuSwapColors", Item, {"RGB -> GBR", "RGB -> GBR"}, "", 0, Operate},
    {"mnuSwapBank3", "mnuSwapColors", Item, {"RGB -> RBG", "RGB -> RBG"}, "", 0, Operate},
    {"mnuSwapBank4", "mnuSwapColors", Item, {"RGB -> BGR", "RGB -> BGR"}, "", 0, Operate},
    {"mnuSwapBank5", "mnuSwapColors", Item, {"RGB -> GRB", "RGB -> GRB"}, "", 0, Operate},
    {"mnuBlackWhite", "mnuFilters", Item, {"Paint", "素描  "}},
    {"mnuBW1", "mnuBlackWhite", Item, {"Nearest Color", "中间值   "}, "", 0, Operate},
    {"mnuBW2", "mnuBlackWhite", Item, {"Enhanced Diffusion", "增强扩散    "}, "", 0, Operate},
    {"mnuBW3", "mnuBlackWhite", Item, {"Ordered Dither", "抖动  "}, "", 0, Operate},
    {"mnuBW4", "mnuBlackWhite", Item, {"Floyd-Steinberg", "油墨  "}, "", 0, Operate},
    {"mnuBW5", "mnuBlackWhite", Item, {"Burke", "挤压  "}, "", 0, Operate},
    {"mnuBW6", "mnuBlackWhite", Item, {"Stucki", "喷溅  "}, "", 0, Operate},
    {"mnuEdges", "mnuFilters", Item, {"Edges", "风格化   "}},
    {"mnuEmboss", "mnuEdges", Item, {"Emboss", "浮雕  "}, "", 0, Operate},
    {"mnuEmbossMore", "mnuEdges", Item, {"Emboss More", "进一步浮雕化      "}, "", 0, Operate},
    {"mnuEngrave", "mnuEdges", Item, {"Engrave", "雕刻  "}, "", 0, Operate},
    {"mnuEngraveMore", "mnuEdges", Item, {"Engrave More", "图章  "}, "", 0, Operate},
    {"mnuRelief", "mnuEdges", Item, {"Relief", "突出  "}, "", 0, Operate},
    {"mnuContour", "mnuEdges", Item, {"Contour", "等高线   "}, "", 0, Operate},
    {"mnuConnection", "mnuEdges", Item, {"Connected Contour", "查找边缘    "}, "", 0, Operate},
    {"mnuColors", "mnuFilters", Item, {"Colors", "色彩  "}},
    {"mnuGreyScale", "mnuColors", Item, {"GreyScale", "灰度  "}, "", 0, Operate},
    {"mnuNegative", "mnuColors", Item, {"Negative", "胶片颗粒    "}, "", 0, Operate},
    {"mnuAddNoise", "mnuColors", Item, {"Add Noise", "添加杂色    "}, "", 0, Operate},
    {"mnuGamma", "mnuColors", Item, {"Gamma Correction", "伽马校正    "}, "", 0, Operate},
    {"mnuEffect", "mnuFilters", Item, {"Effect", "艺术效果    "}},
    {"mnuAqua", "mnuEffect", Item, {"Aqua", "水波  "}, "", 0, Operate},
    {"mnuOthers", "mnuFilters", Item, {"Others", "其它  "}},
    {"mnuDilate", "mnuOthers", Item, {"Dilate", "膨胀  "}, "", 0, Operate},
    {"mnuErode", "mnuOthers", Item, {"Erode", "溶解  "}, "", 0, Operate},
    {"mnuStretch", "mnuOthers", Item, {"Contrast Stretch", "延伸  "}, "", 0, Operate},
    {"mnuView", "", Item, {"&View ", "(V) 查看  "}},
    {"mnuViewOpts0", "mnuView", IconItem, {"Language", "语言  "}, "", 26},
    {"mnuLanguageOpts0", "mnuViewOpts0", Option, {"Chinese (Simplified)", "简体中文    "}, "", 0, SwitchTo<kChinese>, Always, Speaks<kChinese>},
    {"mnuLanguageOpts1", "mnuViewOpts0", Option, {"English", "English 英语  "}, "", 0, SwitchTo<kEnglish>, Always, Speaks<kEnglish>},
    {"mnuHelp", "", Item, {"&Help ", "(H) 帮助  "}},
    {"mnuHomePage", "mnuHelp", IconItem, {"Home Page", "主页  "}, "", 20, Call<&ShellCommands::mnuHomePage_Click>},
    {"mnuHelp2", "mnuHelp", IconItem, {"&Help", "帮助  "}, "", 12, kHelp},
    {"Separator60", "mnuHelp", Separator},
    {"mnuAbout", "mnuHelp", Item, {"&About...", "关于...  "}, "", 0, Call<&ShellCommands::mnuAbout_Click>},
});
// clang-format on

}  // namespace

std::span<const CommandRow> MenuBarRows() {
    return kMenuBar;
}

}  // namespace kestrel::commands
