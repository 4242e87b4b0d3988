#include "cli/Options.h"

namespace kestrel::cli {

namespace {

constexpr const char* kInHelp =
    "icon, cursor or PNG file, program, library or animated cursor to read; - is standard "
    "input";
constexpr const char* kFormatHelp =
    "ico, cur or png, whatever the name of the result ends in; standard output is ico otherwise";
constexpr const char* kOutHelp = "file to write, .ico, .cur or .png; - is standard output";

// `before` says what else FILE can be.
void AddFilesAs(CLI::App& command, Arguments& arguments, const std::string& before) {
    command.add_option("FILE", arguments.files, before + kInHelp);
    command.add_option("--files-from", arguments.filesFrom,
                       "file that lists the FILEs, one a line; - is standard input");
    command.add_flag("-0,--null", arguments.zeros, "names in the list end in a zero byte instead");
    command.add_option("-j,--jobs", arguments.jobs,
                       "files to work on at once (as many as there are processors when left out)");
    command.add_flag("-q,--quiet", arguments.quiet, "no line on the terminal tells how far it is");
}

}  // namespace

void AddOptional(CLI::App& command, const char* name, std::optional<std::string>& value,
                 const char* help) {
    command.add_option_function<std::string>(
        name, [&](const std::string& text) { value = text; }, help);
}

void AddFiles(CLI::App& command, Arguments& arguments) {
    AddFilesAs(command, arguments, "");
}

void AddInto(CLI::App& command, Arguments& arguments) {
    command.add_option("--into", arguments.into, "folder to write to, made where there is none");
    command.add_flag("--skip-existing", arguments.skipExisting,
                     "leave results alone that are newer than their files");
}

void AddSource(CLI::App& command, Arguments& arguments) {
    AddFilesAs(command, arguments,
               "IN OUT, the file to read and the one to write (- is standard output), or with "
               "--into any number to read: ");
    AddInto(command, arguments);
    command.add_flag("--force", arguments.force, "write to standard output even on a terminal");
    AddOptional(
        command, "--icon", arguments.choice.icon,
        "which icon of a program, library or animation, as info counts them (the first that "
        "can be read when left out)");
    AddOptional(command, "--image", arguments.choice.image,
                "which image of the icon, as info counts them (the one that suits best when left "
                "out)");
}

void AddIn(CLI::App& command, Arguments& arguments) {
    AddSource(command, arguments);
    command.add_flag("--keep-aspect", arguments.keepAspect,
                     "shrink a large PNG in proportion instead of to 32 x 32");
    command.add_option("--format", arguments.format, kFormatHelp);
}

void AddOut(CLI::App& command, Arguments& arguments) {
    command.add_option("OUT", arguments.out, kOutHelp)->required();
    command.add_option("--format", arguments.format, kFormatHelp);
    command.add_flag("--force", arguments.force, "write to standard output even on a terminal");
}

}  // namespace kestrel::cli
