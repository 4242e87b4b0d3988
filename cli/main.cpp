// kestrel-icon: the editor's commands on icon files, without a window.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <csignal>
#include <exception>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/Actions.h"
#include "cli/ExitCodes.h"
#include "cli/IconOutput.h"
#include "cli/Streams.h"
#include "cli/Subcommands.h"

namespace {

using namespace kestrel;
using cli::Arguments;
using cli::Subcommand;

// An empty value comes of a variable that is not set: taken for an option left out, it would let
// the last of several files be taken for the one to write.
void RefuseEmptyValues(CLI::App& command) {
    for (CLI::Option* option : command.get_options()) {
        if (option->get_positional() || option->get_expected_max() == 0) continue;
        option->check([](const std::string& value) {
            return std::string(value.empty() ? "an empty value is none" : "");
        });
    }
}

// Declaring is most of the work: where a subcommand comes first, that one alone is declared.
void Declare(CLI::App& app, std::string_view firstWord, Arguments& arguments) {
    app.require_subcommand(1);
    app.set_version_flag("-V,--version", "kestrel-icon " KESTREL_VERSION);
    app.footer(
        "Example:\n  kestrel-icon apply emboss in.ico out.ico\n"
        "\"kestrel-icon SUBCOMMAND --help\" tells more.");
    const auto isFirst = [firstWord](const Subcommand& each) { return firstWord == each.name; };
    const bool onlyFirst = std::ranges::any_of(cli::Subcommands(), isFirst);
    for (const Subcommand& subcommand : cli::Subcommands()) {
        if (onlyFirst && !isFirst(subcommand)) continue;
        CLI::App& command = *app.add_subcommand(subcommand.name, subcommand.help);
        subcommand.declare(command, arguments);
        RefuseEmptyValues(command);
    }
}

// What was typed, last word first, as the parser takes it. It ends at "--" where it expects no more
// names: names that begin like options are turned into paths instead.
std::vector<std::string> ReversedWords(int argc, char* argv[]) {
    std::vector<std::string> words;
    bool isName = false;
    for (int i = 1; i < argc; ++i) {
        std::string word = argv[i];
        if (!isName && word == "--") {
            isName = true;
            continue;
        }
        if (isName && word.size() > 1 && word[0] == '-') word.insert(0, "./");
        words.push_back(std::move(word));
    }
    std::ranges::reverse(words);
    return words;
}

Result<void> Run(int argc, char* argv[]) {
    CLI::App app("Runs the commands of KestrelIconEditor on icon files.", "kestrel-icon");
    Arguments arguments;
    Declare(app, argc > 1 ? argv[1] : "", arguments);
    const std::string output(cli::kStandardStream);
    if (argc < 2) {
        cli::Tell(app.help());
        return cli::WrongUsage("");
    }
    try {
        app.parse(ReversedWords(argc, argv));
    } catch (const CLI::CallForHelp&) {
        return cli::WriteText(output, app.help());
    } catch (const CLI::CallForVersion&) {
        return cli::WriteText(output, app.version() + "\n");
    } catch (const CLI::ParseError& error) {
        if (app.get_subcommands().empty())
            return cli::WrongUsage(std::string(argv[1]) + ": no such command or option");
        return cli::WrongUsage(error.what());
    }
    const std::string chosen = app.get_subcommands().front()->get_name();
    const auto subcommand = std::ranges::find_if(
        cli::Subcommands(), [&](const Subcommand& each) { return chosen == each.name; });
    return subcommand->run(arguments);
}

}  // namespace

int main(int argc, char* argv[]) {
    // A closed pipe and a full quota are failures of a write like any other.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        const Result<void> done = Run(argc, argv);
        if (done) return 0;
        // Without a description all is told already.
        if (!done.error().description.empty()) cli::Complain(done.error().description);
        return cli::ExitCodeOf(done.error());
    } catch (const std::exception& error) {
        cli::Complain(error.what());
    }
    return 1;
}
