#pragma once

#include <string_view>

namespace kestrel::i18n {

// The text to show for one of the desktop's own English texts (standard buttons, file dialogs);
// empty when it may stay as it is, in English always.
std::string_view DesktopText(std::string_view english);

}  // namespace kestrel::i18n
