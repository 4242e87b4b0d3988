#pragma once

#include <span>
#include <string_view>

#include "i18n/Language.h"
#include "platform/controls/SmartMenuXP.h"

namespace kestrel::commands {

// How an item looks at start.
enum class ItemFlag { None, Hidden, Checked };

// One item of a menu, as the menu control takes it, with its caption in both languages. Separators
// and the recent files have none here.
struct MenuRow {
    std::string_view key;
    std::string_view parent;
    controls::ItemKind kind = controls::ItemKind::Item;
    i18n::Text caption = {};
    std::string_view shortcut = {};
    int picture = 0;
    ItemFlag flag = ItemFlag::None;
};

// The menu bar.
std::span<const MenuRow> MenuBarRows();
// The editing pop-up menu over the grid; its items are below the one root "mnuEdit".
std::span<const MenuRow> PopupMenuRows();

}  // namespace kestrel::commands
