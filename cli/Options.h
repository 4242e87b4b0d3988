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
// FILE, once or several times, or a list of them, and how a run over files goes.
void AddFiles(CLI::App& command, Arguments& arguments);
// Results in a folder, and whether those that are there stay.
void AddInto(CLI::App& command, Arguments& arguments);
// IN OUT, or files with results in a folder, and the choice among an input's icons and images.
void AddSource(CLI::App& command, Arguments& arguments);
// A source that becomes an icon of 32 x 32, in a format.
void AddIn(CLI::App& command, Arguments& arguments);
// OUT and its format, where nothing is read.
void AddOut(CLI::App& command, Arguments& arguments);

}  // namespace kestrel::cli
