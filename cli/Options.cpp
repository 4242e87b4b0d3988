#include "cli/Options.h"

namespace kestrel::cli {

namespace {

constexpr const char* kInHelp =
    "icon, cursor or PNG file, program, library or animated cursor to read; - is standard "
    "input";
constexpr const char* kOutHelp = "file to write, .ico, .cur or .png; - is standard output";

}  // namespace

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
                       "ico, cur or png, whatever OUT ends in; standard output is ico otherwise");
}

}  // namespace kestrel::cli
