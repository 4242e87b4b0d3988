#pragma once

#include <span>
#include <string>

#include "commands/CommandTable.h"

namespace kestrel::commands {

// What a letter key of the main window does, pressed alone or with Shift.
struct KeyRow {
    char letter{};
    bool shift = false;
    Action run = Nothing;
    // What to say to those who cannot see what it has done.
    std::string (*told)(Commands& commands){};
};

std::span<const KeyRow> KeyRows();

}  // namespace kestrel::commands
