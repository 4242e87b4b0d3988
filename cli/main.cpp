// kestrel-icon: the editor's commands on icon files, without a window.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <csignal>
#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Actions.h"
#include "cli/IconCommands.h"
#include "cli/IconOutput.h"
#include "cli/Streams.h"

namespace {

using namespace kestrel;
using cli::Arguments;

constexpr const char* kInHelp =
    "icon, cursor or PNG file, program, library or animated cursor to read; - is standard "
    "input";
constexpr const char* kOutHelp = "file to write, .ico or .png; - is standard output";

// An option whose absence matters.
void AddOptional(CLI::App& command, const char* name, std::optional<std::string>& value,
                 const char* help) {
    command.add_option_function<std::string>(
        name, [&](const std::string& text) { value = text; }, help);
}

void AddSource(CLI::App& command, Arguments& arguments) {
    command.add_option("IN", arguments.in, kInHelp)->required();
    AddOptional(
        command, "--icon", arguments.choice.icon,
        "which icon of a program, library or animation, as info counts them (the first that "
        "can be read when left out)");
    AddOptional(command, "--image", arguments.choice.image,
                "which image of the icon, as info counts them (the one that suits best when left "
                "out)");
}

void AddFiles(CLI::App& command, Arguments& arguments) {
    command.add_option("FILE", arguments.files, kInHelp)->required();
}

void AddIn(CLI::App& command, Arguments& arguments) {
    AddSource(command, arguments);
    command.add_flag("--keep-aspect", arguments.keepAspect,
                     "shrink a large PNG in proportion instead of to 32 x 32");
}

void AddOut(CLI::App& command, Arguments& arguments) {
    command.add_option("OUT", arguments.out, kOutHelp)->required();
    command.add_option("--format", arguments.format,
                       "ico or png, whatever OUT ends in; standard output is ico otherwise");
}

void DeclareInfo(CLI::App& command, Arguments& arguments) {
    AddFiles(command, arguments);
    command.add_flag("--json", arguments.json, "one JSON object a line and file");
    command.footer(
        "Examples:\n  kestrel-icon info kestrel.ico\n"
        "  kestrel-icon info --json *.dll");
}

void DeclareExtract(CLI::App& command, Arguments& arguments) {
    AddFiles(command, arguments);
    command.add_option("--into", arguments.into, "folder to write to, made where there is none");
    command.add_flag("--png", arguments.png, "write each image as PNG, not each icon as .ico");
    command
        .add_option("--icon", arguments.icons,
                    "an icon to write, as info counts them; can be given several times (all when "
                    "left out)")
        ->allow_extra_args(false);
    command.footer(
        "Icons are called NAME-1.ico and so on, NAME being that of FILE without its ending;\n"
        "images NAME-1-1.png.\n\n"
        "Examples:\n  kestrel-icon extract setup.exe\n"
        "  kestrel-icon extract --into icons --png --icon 1 --icon 3 setup.exe");
}

void DeclareThumbnail(CLI::App& command, Arguments& arguments) {
    AddSource(command, arguments);
    command.add_option("OUT", arguments.out, "PNG file to write; - is standard output")->required();
    command.add_option("--size", arguments.size,
                       "longest side in pixels, 1 to 1024 (128 when left out)");
    command.footer("Example:\n  kestrel-icon thumbnail --size 256 setup.exe setup.png");
}

void DeclareApply(CLI::App& command, Arguments& arguments) {
    command
        .add_option("COMMANDS", arguments.commands,
                    "KEY[=VALUE][,KEY...], run in order on the whole icon")
        ->required();
    AddIn(command, arguments);
    AddOut(command, arguments);
    AddOptional(command, "--seed", arguments.seed,
                "start of the random numbers, 0 to 4294967295, for the same noise every time");
    command.footer("Keys (mnuGamma takes the factor times 100, 1 to 9999):\n" + cli::CommandKeys() +
                   "\n\nExamples:\n  kestrel-icon apply mnuEmboss in.ico out.ico\n"
                   "  kestrel-icon apply mnuGamma=200,mnuRotateOpts1 in.ico out.png\n"
                   "  kestrel-icon apply --seed 7 mnuAddNoise - - <in.ico >out.ico");
}

void DeclareGradient(CLI::App& command, Arguments& arguments) {
    command.add_option("--from", arguments.from, "start colour, R,G,B from 0 to 255")->required();
    command.add_option("--to", arguments.to, "end colour")->required();
    command.add_option("--angle", arguments.angle,
                       "where the start colour is: 0 left, 45 top left and so on clockwise, to "
                       "360 (0 when left out)");
    AddOut(command, arguments);
    command.footer(
        "Example:\n  kestrel-icon gradient --from 255,0,0 --to 0,0,255 --angle 45 out.ico");
}

void DeclarePalette(CLI::App& command, Arguments& arguments) {
    command.add_option("OUT", arguments.out, "palette file to write; - is standard output")
        ->required();
    command.footer("Example:\n  kestrel-icon palette default.pal");
}

void DeclareConvert(CLI::App& command, Arguments& arguments) {
    AddIn(command, arguments);
    AddOut(command, arguments);
    command.footer(
        "Examples:\n  kestrel-icon convert in.ico out.png\n"
        "  kestrel-icon convert --icon 3 setup.exe out.ico\n"
        "  kestrel-icon convert --keep-aspect photo.png out.ico");
}

struct Subcommand {
    const char* name;
    const char* help;
    void (*declare)(CLI::App& command, Arguments& arguments);
    Result<void> (*run)(const Arguments& arguments);
};
constexpr Subcommand kSubcommands[] = {
    {"info", "list icons and their images", DeclareInfo, cli::Info},
    {"extract", "write icons as files of their own", DeclareExtract, cli::Extract},
    {"thumbnail", "write the PNG that file managers show", DeclareThumbnail, cli::Thumbnail},
    {"apply", "run menu commands on an icon", DeclareApply, cli::Apply},
    {"gradient", "write an icon that is a gradient", DeclareGradient, cli::Gradient},
    {"palette", "write the default palette", DeclarePalette, cli::Palette},
    {"convert", "turn icons into PNG and PNG into icons", DeclareConvert, cli::Convert},
};

// Declaring is most of the work: where a subcommand comes first, that one alone is declared.
void Declare(CLI::App& app, std::string_view firstWord, Arguments& arguments) {
    app.require_subcommand(1);
    app.set_version_flag("--version", "kestrel-icon " KESTREL_VERSION);
    app.footer(
        "Example:\n  kestrel-icon apply mnuEmboss in.ico out.ico\n"
        "\"kestrel-icon SUBCOMMAND --help\" tells more.");
    const auto isFirst = [firstWord](const Subcommand& each) { return firstWord == each.name; };
    const bool onlyFirst = std::ranges::any_of(kSubcommands, isFirst);
    for (const Subcommand& subcommand : kSubcommands) {
        if (onlyFirst && !isFirst(subcommand)) continue;
        subcommand.declare(*app.add_subcommand(subcommand.name, subcommand.help), arguments);
    }
}

Result<void> Run(int argc, char* argv[]) {
    CLI::App app("Runs the commands of KestrelIconEditor on icon files.", "kestrel-icon");
    Arguments arguments;
    Declare(app, argc > 1 ? argv[1] : "", arguments);
    const std::string output(cli::kStandardStream);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        return cli::WriteText(output, app.help());
    } catch (const CLI::CallForVersion&) {
        return cli::WriteText(output, app.version() + "\n");
    } catch (const CLI::ParseError& error) {
        if (app.get_subcommands().empty() && argc > 1)
            return Fail(EINVAL, std::string(argv[1]) + ": no such command or option");
        return Fail(EINVAL, error.what());
    }
    const CLI::App* chosen = app.get_subcommands().front();
    const auto* subcommand =
        std::find_if(std::begin(kSubcommands), std::end(kSubcommands),
                     [&](const Subcommand& each) { return chosen->get_name() == each.name; });
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
        cli::Complain(done.error().description);
    } catch (const std::exception& error) {
        cli::Complain(error.what());
    }
    return 1;
}
