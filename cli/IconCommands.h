#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "imaging/Operations.h"
#include "platform/Result.h"

namespace kestrel::cli {

// A menu command on the whole icon, with its value where it takes one.
struct IconCommand {
    const imaging::Operation* operation = nullptr;
    int value = 0;
};

// Reads NAME[=VALUE][,NAME...]. Gamma alone takes a value, which it must have.
Result<std::vector<IconCommand>> ReadCommands(std::string_view list);

// The same seed brings the same noise.
void RunCommands(const std::vector<IconCommand>& commands, std::uint32_t seed,
                 gdi::IconPlanes& icon);

// Name, key and meaning of every command, a line each.
std::string CommandList();

}  // namespace kestrel::cli
