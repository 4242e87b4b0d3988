#pragma once

#include <span>
#include <string_view>

#include "i18n/Language.h"
#include "platform/controls/SmartMenuXP.h"

namespace kestrel::commands {

struct Commands;

// What a row does; it gets its own key, so that rows of a family can share one function.
using Action = void (*)(Commands& commands, std::string_view key);
// What a row asks about its state, after every command and when a menu opens.
using Question = bool (*)(Commands& commands);

// Of headings and separators, which are no commands, and of commands that change nothing.
void Nothing(Commands& commands, std::string_view key);
bool Always(Commands& commands);
bool Never(Commands& commands);

// Of commands that the program lacks yet: their items are shown disabled.
inline constexpr Action kNotBuilt = nullptr;

// One item of a menu, or one button of the toolbar.
struct CommandRow {
    std::string_view key;
    // The item that it is below; empty for one that stands on the bar, and for buttons.
    std::string_view parent = {};
    controls::ItemKind kind = controls::ItemKind::Item;
    // Of a button its tool tip. Separators and the recent files have none here.
    i18n::Text caption = {};
    // As in "Ctrl+Shift+S". In the pop-up it is only shown.
    std::string_view shortcut = {};
    // Number of its picture in the image list, 0 for none.
    int picture = 0;
    Action run = Nothing;
    Question enabled = Always;
    // The mark of an option.
    Question checked = Never;
    // Of a button: the hint in the status bar while the pointer is over it.
    i18n::Text hint = {};
    // A hidden item is in the menu, runs its command, and is not seen.
    bool visible = true;
    // Of a button: a line parts it from the one before.
    bool beginsGroup = false;
};

std::span<const CommandRow> MenuBarRows();
// The editing pop-up over the grid; its items are below the one root "mnuEdit".
std::span<const CommandRow> PopupRows();
// The pop-up of the icon in the desktop's tray; its captions are the classic ones.
std::span<const CommandRow> TrayRows();
// From the left.
std::span<const CommandRow> ToolbarRows();

}  // namespace kestrel::commands
