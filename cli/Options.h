#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "cli/Actions.h"

namespace kestrel::cli {

// Options that several subcommands share. What is typed comes to stand in `arguments`, which must
// outlive the command.

// An option whose absence matters.
void AddOptional(CLI::App& command, const char* name, std::optional<std::string>& value,
                 const char* help);
// IN and the choice among its icons and images.
void AddSource(CLI::App& command, Arguments& arguments);
// FILE, once or several times.
void AddFiles(CLI::App& command, Arguments& arguments);
// A source that becomes an icon of 32 x 32.
void AddIn(CLI::App& command, Arguments& arguments);
// OUT and its format.
void AddOut(CLI::App& command, Arguments& arguments);

}  // namespace kestrel::cli
