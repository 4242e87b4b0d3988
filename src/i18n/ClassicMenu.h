#pragma once

#include <span>
#include <string_view>

#include "i18n/Language.h"

namespace kestrel::i18n {

// A second, plain caption of a command, for menus that are no menu control (the tray's): without
// blanks for looks, with the shortcut in the text where one is to be seen.
struct ClassicRow {
    std::string_view key;
    Text caption;
};

std::span<const ClassicRow> ClassicRows();
// Empty for a command that has none.
Text ClassicCaption(std::string_view key);

}  // namespace kestrel::i18n
