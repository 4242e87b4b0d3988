#include "cli/Subcommands.h"

#include "cli/IconCommands.h"
#include "cli/Options.h"

namespace kestrel::cli {

namespace {

void DeclareInfo(CLI::App& command, Arguments& arguments) {
    AddFiles(command, arguments);
    command.add_flag("--json", arguments.json, "one JSON object a line and file");
    command.footer(
        "Examples:\n  kestrel-icon info kestrel.ico\n"
        "  kestrel-icon info --json *.dll");
}

void DeclareExtract(CLI::App& command, Arguments& arguments) {
    AddFiles(command, arguments);
    AddInto(command, arguments);
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
    command.add_option("--size", arguments.size,
                       "longest side in pixels, 1 to 1024 (128 when left out)");
    command.footer("Example:\n  kestrel-icon thumbnail --size 256 setup.exe setup.png");
}

void DeclareApply(CLI::App& command, Arguments& arguments) {
    command
        .add_option("COMMANDS", arguments.commands,
                    "NAME[=VALUE][,NAME...], run in order on the whole icon")
        ->required();
    AddIn(command, arguments);
    command.add_flag("--in-place", arguments.inPlace,
                     "write each result in place of its file, .ico, .cur or .png");
    AddOptional(command, "--seed", arguments.seed,
                "start of the random numbers, 0 to 4294967295, for the same noise every time");
    command.footer("Commands by name or key, in any letter case (gamma=200 is a factor of 2):\n" +
                   CommandList() +
                   "\n\nExamples:\n  kestrel-icon apply emboss in.ico out.ico\n"
                   "  kestrel-icon apply gamma=200,rotate-right in.ico out.png\n"
                   "  kestrel-icon apply --seed 7 add-noise - - <in.ico >out.ico");
}

void DeclareGradient(CLI::App& command, Arguments& arguments) {
    command.add_option("--from", arguments.from, "start colour, R,G,B from 0 to 255, or #rrggbb")
        ->required();
    command.add_option("--to", arguments.to, "end colour")->required();
    command.add_option("--angle", arguments.angle,
                       "where the start colour is: 0 left, 45 top left and so on clockwise, to "
                       "360 (0 when left out)");
    AddOut(command, arguments);
    command.footer(
        "Example:\n  kestrel-icon gradient --from 255,0,0 --to '#0000ff' --angle 45 out.ico");
}

void DeclarePalette(CLI::App& command, Arguments& arguments) {
    command.add_option("OUT", arguments.out, "palette file to write; - is standard output")
        ->required();
    command.footer("Example:\n  kestrel-icon palette default.pal");
}

void DeclareConvert(CLI::App& command, Arguments& arguments) {
    AddIn(command, arguments);
    command.add_option("--sizes", arguments.sizes,
                       "sides of an icon's images, 1 to 256, parted by commas; each is made of the "
                       "best image of all files before OUT");
    AddOptional(command, "--hotspot", arguments.hotspot,
                "the point of a cursor that points, X,Y in pixels of the first size (32 without "
                "--sizes)");
    command.footer(
        "Examples:\n  kestrel-icon convert in.ico out.png\n"
        "  kestrel-icon convert --into pictures --format png *.ico\n"
        "  kestrel-icon convert --sizes 16,24,32,48,256 logo.png small.png out.ico\n"
        "  kestrel-icon convert --hotspot 3,5 arrow.png arrow.cur\n"
        "  kestrel-icon convert --icon 3 setup.exe out.ico\n"
        "  kestrel-icon convert --image 4 in.ico fourth.png\n"
        "  kestrel-icon convert --keep-aspect photo.png out.ico");
}

constexpr Subcommand kSubcommands[] = {
    {"info", "list icons and their images", DeclareInfo, Info},
    {"extract", "write icons as files of their own", DeclareExtract, Extract},
    {"thumbnail", "write the PNG that file managers show", DeclareThumbnail, Thumbnail},
    {"apply", "run menu commands on an icon", DeclareApply, Apply},
    {"gradient", "write an icon that is a gradient", DeclareGradient, Gradient},
    {"palette", "write the default palette", DeclarePalette, Palette},
    {"convert", "turn icons into PNG and PNG into icons", DeclareConvert, Convert},
};

}  // namespace

std::span<const Subcommand> Subcommands() {
    return kSubcommands;
}

}  // namespace kestrel::cli
