#pragma once

#include <string>

#include "i18n/Messages.h"
#include "services/MessageBoxes.h"

namespace kestrel::app {

// Tells that a command failed.
inline void ShowError(dialogs::MessageBoxes& boxes, const std::string& text,
                      std::string_view title = i18n::kErrorTitle.Now()) {
    boxes.Show(dialogs::BoxIcon::Exclamation, dialogs::BoxButtons::Ok, text, std::string(title));
}

}  // namespace kestrel::app
