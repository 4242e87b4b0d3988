#pragma once

#include <span>
#include <string_view>

#include "i18n/Language.h"

namespace kestrel::i18n {

// One button of the toolbar, from the left.
struct ToolbarButton {
    std::string_view key;
    // The hint in the status bar while the pointer is over it.
    Text status;
    Text toolTip;
    // Number of its picture in the image list.
    int picture;
};

std::span<const ToolbarButton> ToolbarButtons();

}  // namespace kestrel::i18n
