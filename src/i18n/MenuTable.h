#pragma once

#include <span>
#include <string_view>

#include "i18n/Language.h"

namespace kestrel::i18n {

enum class ItemKind { Item, IconItem, Option, Separator };

// One entry of a menu. Entries of a parent stand in the order of the table; an empty parent is the
// menu bar itself.
struct MenuItem {
    std::string_view key;
    std::string_view parent;
    ItemKind kind = ItemKind::Item;
    // '&' stands before the letter that opens the entry by keyboard.
    Text caption;
    // As in "Ctrl+Shift+S"; empty for none.
    std::string_view shortcut;
    // Number of its picture in the image list, 0 for none.
    int picture = 0;
};

std::span<const MenuItem> MenuBar();

}  // namespace kestrel::i18n
