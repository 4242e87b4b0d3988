#pragma once

#include <span>
#include <string_view>

#include "i18n/Language.h"

namespace kestrel::commands {

// One button of the toolbar, from the left.
struct ToolbarButton {
    std::string_view key;
    // The hint in the status bar while the pointer is over it.
    i18n::Text status;
    i18n::Text toolTip;
    // Number of its picture in the image list.
    int picture;
};

std::span<const ToolbarButton> ToolbarButtons();

}  // namespace kestrel::commands
