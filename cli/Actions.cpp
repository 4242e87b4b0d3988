#include "cli/Actions.h"

#include <cerrno>
#include <cstdint>
#include <limits>
#include <random>
#include <string_view>
#include <vector>

#include "cli/Conversion.h"
#include "cli/ExitCodes.h"
#include "cli/IconCommands.h"
#include "cli/IconInput.h"
#include "cli/IconOutput.h"
#include "cli/Numbers.h"
#include "formats/PaletteFile.h"
#include "imaging/Shades.h"
#include "platform/gdi/Blit.h"
#include "platform/system/LetterCase.h"
#include "resources/DefaultPalette.h"

namespace kestrel::cli {

namespace {

using Bytes = Result<std::vector<std::uint8_t>>;

// The number that was typed, for every file; without one each gets another.
Result<std::optional<std::uint32_t>> ReadSeed(const std::optional<std::string>& text) {
    if (!text) return std::nullopt;
    constexpr auto kMost = std::numeric_limits<std::uint32_t>::max();
    const auto seed = NumberIn(*text, 0, kMost);
    if (!seed) return WrongUsage("--seed wants a number from 0 to " + std::to_string(kMost));
    return static_cast<std::uint32_t>(*seed);
}

// A result in place of a program, say, would be its end.
bool IsWhatItsNameSays(const SourceFile& file) {
    const std::string_view kind = formats::KindName(file.Source().kind);
    const std::string_view name = file.Name();
    return name.size() > kind.size() &&
           system::SameName(name.substr(name.size() - kind.size()), kind);
}

}  // namespace

Result<void> Apply(const Arguments& arguments) {
    const auto commands = ReadCommands(arguments.commands);
    if (!commands) return tl::unexpected(commands.error());
    const auto seed = ReadSeed(arguments.seed);
    if (!seed) return tl::unexpected(seed.error());
    if (auto checked = CheckChoice(arguments.choice); !checked) return checked;
    const auto make = [&](const InputFile& in, const IconTarget& target) -> Bytes {
        const auto file = SourceFile::Open(in);
        if (!file) return tl::unexpected(file.error());
        if (arguments.inPlace && !IsWhatItsNameSays(*file))
            return file->Failure({EINVAL, "its content is not what its name says"});
        auto icon = ReadIcon(*file, arguments.choice, arguments.Fit());
        if (!icon) return tl::unexpected(icon.error());
        RunCommands(*commands, seed->value_or(std::random_device()()), icon->planes);
        return EncodeIcon(target, icon->planes, icon->hotspot);
    };
    return MakeResults(arguments, arguments.format, make);
}

Result<void> Gradient(const Arguments& arguments) {
    const IconTarget target{arguments.out, arguments.format};
    if (auto known = FormatNamed(target.format); !known) return tl::unexpected(known.error());
    if (auto checked = CheckTarget(target); !checked) return checked;
    if (auto checked = CheckTerminal(target.name, arguments.force); !checked) return checked;
    const auto from = ColorIn(arguments.from);
    const auto to = ColorIn(arguments.to);
    constexpr int kFullTurn = imaging::kDegreesPerStep * imaging::kDirections;
    const auto angle = NumberIn(arguments.angle, 0, kFullTurn);
    if (!from || !to)
        return WrongUsage("--from and --to want a colour as R,G,B, each from 0 to 255, or #rrggbb");
    if (!angle || *angle % imaging::kDegreesPerStep != 0)
        return WrongUsage("--angle wants 0 to 360 in steps of 45");
    gdi::IconPlanes icon;
    gdi::PatBlt(icon.mask, icon.Bounds(), gdi::kBlack);
    icon.image = imaging::DrawShade({*from, *to, static_cast<int>(*angle)});
    return WriteOutput(target.name, EncodeIcon(target, icon));
}

Result<void> Palette(const Arguments& arguments) {
    return WriteText(arguments.out, formats::PaletteText(resources::kDefaultPalette));
}

}  // namespace kestrel::cli
