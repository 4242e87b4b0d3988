#pragma once

#include "i18n/Language.h"

namespace kestrel::i18n {

// Controls of the main window.
inline constexpr Text kLabel1{"32 * 32 True Color", "32 * 32 真彩色"};

// Status bar: hints under the pointer, and the readout of a pixel without colour.
inline constexpr Text kPencilHint{"Left-Click (Forecolor) Or Right-Click (Backcolor)",
                                  "点击鼠标左键 (前景色) 或 点击鼠标右键 (背景色)"};
inline constexpr Text kActualSize{"Actual Size", "图标实际大小"};
inline constexpr Text kTransparent{"Transparent", "透明"};

}  // namespace kestrel::i18n
