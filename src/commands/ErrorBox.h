#pragma once

#include <string>

#include "i18n/Messages.h"
#include "services/MessageBoxes.h"

namespace kestrel::commands {

// Tells that a command failed.
inline void ShowError(services::MessageBoxes& boxes, const std::string& text,
                      std::string_view title = i18n::kErrorTitle.Now()) {
    boxes.Show(services::BoxIcon::Exclamation, services::BoxButtons::Ok, text, std::string(title));
}

}  // namespace kestrel::commands
