#pragma once

#include <CLI/CLI.hpp>
#include <span>

#include "cli/Actions.h"
#include "platform/Result.h"

namespace kestrel::cli {

struct Subcommand {
    const char* name;
    const char* help;
    void (*declare)(CLI::App& command, Arguments& arguments);
    Result<void> (*run)(const Arguments& arguments);
};

std::span<const Subcommand> Subcommands();

}  // namespace kestrel::cli
