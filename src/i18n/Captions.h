#pragma once

#include <array>

#include "i18n/Language.h"

namespace kestrel::i18n {

// Status bar: hints under the pointer, and the readout of a pixel without colour.
inline constexpr Text kForegroundColor{"Foreground Color", "设置前景色"};
inline constexpr Text kBackgroundColor{"Background Color", "设置背景色"};
inline constexpr Text kExchangeColors{"Exchange colors", "切换前景和背景色"};
inline constexpr Text kDefaultColors{"Select Black and White colors", "默认前景色和背景色"};
inline constexpr Text kActualSize{"Actual Size", "图标实际大小"};
inline constexpr Text kTransparent{"Transparent", "透明"};
inline constexpr Text kSelfDefineColor{"Self-Define Color", "双击调色板 自定义颜色"};
inline constexpr Text kLoadPalette{"Load Palette", "打开调色板"};
inline constexpr Text kSavePalette{"Save Palette", "保存调色板"};

// The paste-fitting dialog.
inline constexpr Text kPasteTitle{"KestrelIconEditor - Paste", "KestrelIconEditor - 粘贴"};
inline constexpr Text kPasteTooLarge{"The image on the clipboard is too large.",
                                     "对于剪切板来说该尺寸太大。"};
inline constexpr Text kPasteChoice{"What would you like to do?", "选择方式"};
inline constexpr Text kShrinkToFit{"Shrink to fit.", "收缩尺寸"};
inline constexpr Text kShrinkKeepingAspect{"Shrink to fit keeping aspect.", "保持原比例"};
inline constexpr Text kOk{"OK", "确定"};
inline constexpr Text kCancel{"Cancel", "取消"};

// The colour adjustment.
inline constexpr Text kColorAdjustmentTitle{"KestrelIconEditor - Color Adjustment",
                                            "KestrelIconEditor - 颜色调整"};
inline constexpr Text kBrightness{"Brightness:", "亮度:"};
inline constexpr Text kRed{"Red(R):", "红(R):"};
inline constexpr Text kGreen{"Green(G):", "绿(G):"};
inline constexpr Text kBlue{"Blue(B):", "蓝(B):"};
inline constexpr Text kReset{"Reset", "复位"};

// The gamma correction.
inline constexpr Text kGammaTitle{"KestrelIconEditor - Gamma Correction",
                                  "KestrelIconEditor - 伽马校正"};
inline constexpr Text kGammaPrompt{"Input Gamma Factor * 100", "输入伽马要素 * 100"};
inline constexpr Text kGammaOk{"&OK", "确定(&O)"};
inline constexpr Text kGammaCancel{"&Cancel", "取消(&C)"};

// The gradient background.
inline constexpr Text kGradientTitle{"KestrelIconEditor - Gradient Background",
                                     "KestrelIconEditor - 填充渐变色"};
inline constexpr Text kGradientRed{"  (R):", "红(R):"};
inline constexpr Text kGradientGreen{"  (G):", "绿(G):"};
inline constexpr Text kGradientBlue{"  (B):", "蓝(B):"};
inline constexpr Text kDegrees{"Degrees:", " 角度:"};
// What screen readers call its controls: an end of the gradient, and a part of that end's colour.
inline constexpr std::array kShadeEndNames{Text{"Start color", "起始颜色"},
                                           Text{"End color", "结束颜色"}};
inline constexpr std::array kShadePartNames{Text{"red", "红"}, Text{"green", "绿"},
                                            Text{"blue", "蓝"}};

// What screen readers call the picture that follows the controls of a dialog.
inline constexpr Text kPreviewName{"Preview", "预览"};

// The extraction of icons: its button, what screen readers call the grid and the bar beside it, and
// the line for the first icon of the file that it begins with, and of a file chosen since.
inline constexpr Text kBrowse{"Browse", "提取"};
inline constexpr Text kIconsName{"Icons of the file", "文件中的图标"};
inline constexpr Text kIconsScrollName{"Scroll the icons", "滚动图标"};
inline constexpr Text kFirstIcon{"Icon No 1 Selected.", "选中第1个图标."};
inline constexpr Text kFirstChosenIcon{"Icon No. 1 Selected.", "选中第1个图标."};

// The preview of states.
inline constexpr Text kStatesTitle{"KestrelIconEditor - Test Icon", "KestrelIconEditor - 测试图标"};
inline constexpr Text kClose{"&Close", "关闭(&C)"};
// The windows that show the frozen screen while one picks.
inline constexpr Text kCaptureTitle{"KestrelIconEditor - Capture Image",
                                    "KestrelIconEditor - 捕捉图像"};
// The magnifier: its title, what its switches are called, and what screen readers call the others.
inline constexpr Text kZoomTitle{"KestrelIconEditor - Screen Zoom",
                                 "KestrelIconEditor - 屏幕放大器"};
inline constexpr Text kGridTip{"GridOrNot", "网格"};
inline constexpr Text kOnTopTip{"OnTopOrNot", "置顶"};
inline constexpr Text kGridName{"Pixel grid", "网格"};
inline constexpr Text kOnTopName{"Always on top", "置顶"};
inline constexpr Text kZoomName{"Zoom in percent", "缩放百分比"};
inline constexpr Text kZoomBarName{"Zoom", "缩放"};
inline constexpr Text kZoomPictureName{"Screen around the pointer", "指针周围的屏幕"};

// The About box.
inline constexpr Text kAboutTitle{"About KestrelIconEditor", "关于 KestrelIconEditor"};
inline constexpr Text kAboutVersion{"Version ", "版本 "};
inline constexpr Text kAboutPurpose{"Draws and repairs icons of 32 x 32 pixels.",
                                    "绘制和修复 32 x 32 像素的图标."};
inline constexpr Text kAboutCopyright{"Copyright (c) 2026 The KestrelIconEditor developers",
                                      "版权所有 (c) 2026 KestrelIconEditor 开发者"};
inline constexpr Text kAboutLicence{"Free software under the MIT licence, without any warranty.",
                                    "依据 MIT 许可证发布的自由软件, 不提供任何担保."};
inline constexpr Text kSystemInfo{"&System Info...", "系统信息(&S)..."};

}  // namespace kestrel::i18n
