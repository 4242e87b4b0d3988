#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/IconDocument.h"
#include "imaging/filters/FilterTable.h"
#include "platform/Result.h"

namespace kestrel::cli {

// A menu command on the whole icon: a filter with its parameter, or a change of its own.
struct IconCommand {
    const filters::FilterRow* filter = nullptr;
    int param = 0;
    void (*change)(document::IconDocument& icon) = nullptr;
};

// Reads KEY[=VALUE][,KEY...]. Gamma alone takes a value, which it must have.
Result<std::vector<IconCommand>> ReadCommands(std::string_view list);

// The same seed brings the same noise.
void RunCommands(const std::vector<IconCommand>& commands, std::uint32_t seed,
                 document::IconDocument& icon);

// Every key, in lines for the help.
std::string CommandKeys();

}  // namespace kestrel::cli
